#include "sim/file_words.h"

#include "sim/usage_error.h"

#include <pugixml.hpp>

namespace sim {

namespace {

class Words final : public core::SprachObjekt {
  public:
    explicit Words(const std::map<std::string, std::string>& texts) : texts_(texts) {}
    std::string Wort(const std::string& key) override { return texts_.at(key); }

  private:
    const std::map<std::string, std::string>& texts_;
};

}  // namespace

FileWords::FileWords(const std::string& file) {
    pugi::xml_document document;
    const auto outcome = document.load_file(file.c_str());
    if (!outcome) throw UsageError(file + ": " + outcome.description());
    for (const auto& message : document.child("TS").child("context").children("message"))
        texts_[message.attribute("id").value()] = message.child_value("translation");
    if (texts_.empty()) throw UsageError(file + ": no words in it");
}

std::unique_ptr<core::SprachObjekt> FileWords::erzeugen(const std::string&) {
    return std::make_unique<Words>(texts_);
}

}  // namespace sim
