#include "sim/words.h"

#include "sim/usage_error.h"

#include <pugixml.hpp>

namespace sim {

namespace {

struct NumberWords final : core::SprachObjekt {
    std::string Wort(const std::string& key) override {
        return "W" + key.substr(0, key.size() - 1);
    }
};

class FileWords final : public core::SprachObjekt {
  public:
    explicit FileWords(const std::map<std::string, std::string>& texts) : texts_(texts) {}
    std::string Wort(const std::string& key) override { return texts_.at(key); }

  private:
    const std::map<std::string, std::string>& texts_;
};

}  // namespace

Words::Words(const std::string& file) {
    pugi::xml_document document;
    const auto outcome = document.load_file(file.c_str());
    if (!outcome) throw UsageError(file + ": " + outcome.description());
    for (const auto& message : document.child("TS").child("context").children("message"))
        texts_[message.attribute("id").value()] = message.child_value("translation");
    if (texts_.empty()) throw UsageError(file + ": no words in it");
}

std::unique_ptr<core::SprachObjekt> Words::erzeugen(const std::string&) {
    if (texts_.empty()) return std::make_unique<NumberWords>();
    return std::make_unique<FileWords>(texts_);
}

}  // namespace sim
