#include "core/worte.h"

#include <algorithm>
#include <stdexcept>

namespace core {

void Worte::SprachenLaden() {
    if (sprachListe_) sprachen_ = sprachListe_->sprachen();
}

void Worte::SpracheSetzen(const std::string& name) {
    const auto it = std::ranges::find(sprachen_, name, &SprachListe::Sprache::name);
    if (it == sprachen_.end()) return;
    sprachObjekt_ = sprachListe_->erzeugen("melvoralang." + it->suffix);
    suffix_ = it->suffix;
    gelesen_.clear();
}

const std::string& Worte::Wort(wort::Id wort) {
    const auto [it, neu] = gelesen_.try_emplace(wort, "VOID");
    if (neu && sprachObjekt_) {
        try {
            it->second = sprachObjekt_->Wort(std::to_string(static_cast<int>(wort)) + "s");
        } catch (const std::out_of_range&) {
        }
    }
    return it->second;
}

std::string eingesetzt(std::string text, const std::string& wert, const std::string& zweiter) {
    // The second first: a value that holds "%2" stays as it is.
    for (const auto& [marke, ersatz] : {std::pair{"%2", &zweiter}, {"%1", &wert}})
        if (const auto stelle = text.find(marke); stelle != std::string::npos)
            text.replace(stelle, 2, *ersatz);
    return text;
}

}  // namespace core
