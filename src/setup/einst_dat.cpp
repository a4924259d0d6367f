// The recap of the settings for result form and record.
#include "setup/einstellung.h"

#include <algorithm>
#include <ranges>

namespace setup {

namespace {

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

std::string Einstellung::captionVon(const form::ControlArray<form::Option>& optionen, int wert) {
    for (const form::Option& option : optionen)
        if (option.index() == wert) return option.caption();
    return {};
}

void Einstellung::EinstDatSave() {
    const bool auswahl = z.ska_ausw == 1;
    const bool klang = klingt();
    struct Eintrag {
        std::string label, wert;
        bool gilt = true;
    };
    std::vector<Eintrag> eintraege{
        {"Übungsmodus", training_Combo.text()},
        {"Nr.:", prfnr_Comb.text(), z.uebungsmodus == core::modus::pruefung},
        {"Klangfarbe", ComboPatch.text(), klang},
        {"Tempo", temp_Combo.text(), klang},
        {"Frequenz", mitEins(captionVon(frequenz, z.frequenz)), klang},
        {"Abfolge", captionVon(abfrage, z.abfrage)},
        {"Tonraum", CmbOktAnz.text()},
        {"Oktavbereich", CmbOktBer.text()},
        {"Skalentyp", skal_typ_cmb.text()},
        {"Tonfolge", captionVon(abfolge, z.abfolge)},
        {"Ska-Richtung", Combo_richtung.text(), z.abfolge == 0},
        {"Anzeige", captionVon(an_zeig, z.an_zeig), klang},
        {"Vz/Finalis", captionVon(final, z.final)},
        {"Stimmung", captionVon(stimm_g, z.stimmung), klang},
        {"Vorkommen", captionVon(ska_ausw, z.ska_ausw)},
        {"Einzel-Auswahl Anzahl", std::to_string(z.einzelAnz + 1), auswahl},
    };
    const std::string gewaehlt = klang ? "gewähltes Iv Nr." : "gewählte Skala Nr.";
    for (int i = 0; auswahl && i <= z.einzelAnz; ++i)
        eintraege.push_back({gewaehlt + std::to_string(i + 1), lst_ska1.item(i).text});

    auto& liste = z.einst_liste;
    liste.assign(1, "");
    for (const Eintrag& e : eintraege) {
        if (!e.gilt) continue;
        liste.push_back(ohneBlanks(e.label));
        liste.push_back(ohneBlanks(e.wert));
    }
    liste.front() = std::to_string(liste.size() - 1);
}

}  // namespace setup
