#pragma once
#include "core/worte.h"

#include <map>
#include <set>
#include <string>

namespace rehearsal {

/// Two languages whose word for a number tells the number: "W354" in "Deutsch", "E354" in
/// "English".
struct NumberWords final : core::SprachListe {
    std::set<std::string> lacking;             ///< keys such as "354s" that both languages lack
    std::map<std::string, std::string> texts;  ///< keys whose word is another

    std::vector<Sprache> sprachen() override { return {{"Deutsch", "de"}, {"English", "en"}}; }
    std::unique_ptr<core::SprachObjekt> erzeugen(const std::string& klasse) override;
};

}  // namespace rehearsal
