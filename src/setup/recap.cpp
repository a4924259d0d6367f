#include "setup/recap.h"

#include "setup/choices.h"

#include <array>
#include <string_view>

namespace setup {

namespace {

/// When a choice is in force.
enum class When { Always, Exam, Sound, Scale };

/// A label, and the control that the value stands in.
struct Line {
    const char* label;
    const char* name;
    When when = When::Always;
};
constexpr std::array lines{
    Line{"Übungsmodus", "training_Combo"},
    Line{"Nr.:", "prfnr_Comb", When::Exam},
    Line{"Klangfarbe", "ComboPatch", When::Sound},
    Line{"Tempo", "temp_Combo", When::Sound},
    Line{"Frequenz", "frequenz", When::Sound},
    Line{"Abfolge", "abfrage"},
    Line{"Tonraum", "CmbOktAnz"},
    Line{"Oktavbereich", "CmbOktBer"},
    Line{"Skalentyp", "skal_typ_cmb"},
    Line{"Tonfolge", "abfolge"},
    Line{"Ska-Richtung", "Combo_richtung", When::Scale},
    Line{"Anzeige", "an_zeig", When::Sound},
    Line{"Vz/Finalis", "final"},
    Line{"Stimmung", "stimm_g", When::Sound},
    Line{"Vorkommen", "ska_ausw"},
};

bool inForce(When when, const core::Zustand& z, Zweig zweig) {
    switch (when) {
        case When::Always:
            return true;
        case When::Exam:
            return z.uebungsmodus == core::modus::pruefung;
        case When::Sound:
            return klingt(zweig);
        case When::Scale:
            return z.abfolge == 0;
    }
    return false;
}

std::string ohneBlanks(const std::string& text) {
    const auto erstes = text.find_first_not_of(' ');
    if (erstes == std::string::npos) return {};
    return text.substr(erstes, text.find_last_not_of(' ') - erstes + 1);
}

/// The reference pitch a' prints as a1.
std::string mitEins(std::string text) {
    const auto stelle = text.find('\'');
    if (stelle != std::string::npos) text[stelle] = '1';
    return text;
}

}  // namespace

std::vector<std::string> recap(const form::Form& form, const core::Zustand& z, Zweig zweig,
                               const std::vector<std::string>& skalen) {
    std::vector<std::string> liste{""};
    const auto add = [&](const std::string& label, const std::string& wert) {
        liste.push_back(label);
        liste.push_back(ohneBlanks(wert));
    };
    for (const Line& line : lines) {
        if (!inForce(line.when, z, zweig)) continue;
        const std::string wert = chosenText(form, z, line.name);
        add(line.label, line.name == std::string_view("frequenz") ? mitEins(wert) : wert);
    }
    if (z.ska_ausw == 1) {
        add("Einzel-Auswahl Anzahl", std::to_string(skalen.size()));
        const std::string gewaehlt = klingt(zweig) ? "gewähltes Iv Nr." : "gewählte Skala Nr.";
        for (std::size_t i = 0; i < skalen.size(); ++i)
            add(gewaehlt + std::to_string(i + 1), skalen[i]);
    }
    liste.front() = std::to_string(liste.size() - 1);
    return liste;
}

}  // namespace setup
