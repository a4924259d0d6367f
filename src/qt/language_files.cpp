#include "qt/language_files.h"

#include <stdexcept>

namespace qt {

namespace {

class Texts final : public core::SprachObjekt {
  public:
    explicit Texts(const suite::Language& language) : language_(language) {
        toolkit_.take(language);
    }
    std::string Wort(const std::string& key) override {
        const QString text = language_.text(key.c_str());
        if (text.isNull()) throw std::out_of_range(key);
        return text.toStdString();
    }

  private:
    const suite::Language& language_;
    suite::ToolkitTexts toolkit_;
};

}  // namespace

std::vector<core::SprachListe::Sprache> LanguageFiles::sprachen() {
    std::vector<Sprache> all;
    for (const suite::Language& language : languages_)
        all.push_back({language.name.toStdString(), language.suffix.toStdString()});
    return all;
}

std::unique_ptr<core::SprachObjekt> LanguageFiles::erzeugen(const std::string& klasse) {
    for (const suite::Language& language : languages_)
        if (klasse == "melvoralang." + language.suffix.toStdString())
            return std::make_unique<Texts>(language);
    return nullptr;
}

}  // namespace qt
