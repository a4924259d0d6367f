#include "core/worte.h"

#include <algorithm>
#include <stdexcept>

namespace core {

void Worte::SprachenLaden() {
    sprachListe_ok_ = sprachListe_ != nullptr;
    if (sprachListe_ok_) sprachen_ = sprachListe_->sprachen();
}

void Worte::SpracheSetzen(const std::string& name) {
    const auto it = std::ranges::find(sprachen_, name, &SprachListe::Sprache::name);
    if (it == sprachen_.end()) return;
    sprachObjekt_ = sprachListe_->erzeugen("melvoralang." + it->suffix);
    suffix_ = it->suffix;
    gelesen_.clear();
}

const std::string& Worte::Wort(int id) {
    const auto [it, neu] = gelesen_.try_emplace(id, "VOID");
    if (neu && sprachObjekt_) {
        try {
            it->second = sprachObjekt_->Wort(std::to_string(id) + "s");
        } catch (const std::out_of_range&) {
        }
    }
    return it->second;
}

std::string eingesetzt(std::string text, const std::string& wert) {
    const auto stelle = text.find("%1");
    return stelle == std::string::npos ? text : text.replace(stelle, 2, wert);
}

}  // namespace core
