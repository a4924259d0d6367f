// The settings of a saved training: kept as a list of texts, and chosen again from it.
#include "base/rounding.h"
#include "core/fortsetzung.h"
#include "setup/einstellung.h"

#include <algorithm>

namespace setup {

namespace {

/// Stands where a branch does not keep a choice.
constexpr int keine = -1;

/// How many choices the settings of a branch hold; chosen scales follow: their highest index, then
/// their texts.
constexpr int wahlenAnz(Zweig zweig) { return zweig == Zweig::Gehoerbildung ? 11 : 9; }

}  // namespace

/// In the order in which they are chosen again: what comes later depends on what comes before. The
/// direction is chosen twice, since the category may have reset it.
std::vector<Einstellung::Gemerkt> Einstellung::gemerkteWahl() {
    const auto option = [](std::array<int, 2> stelle, i16& feld,
                           form::ControlArray<form::Option>& optionen) {
        return Gemerkt{stelle, [&feld] { return int(feld); },
                       [&optionen](int wert) { return optionen(wert).visible(); },
                       [&optionen, &feld](int wert) {
                           optionen(wert).choose();
                           feld = wert;
                       }};
    };
    const auto combo = [](std::array<int, 2> stelle, form::Combo& liste) {
        return Gemerkt{stelle, [&liste] { return liste.listIndex(); },
                       [](int wert) { return wert >= 0; },
                       [&liste](int wert) { liste.setListIndex(wert); }};
    };
    const Gemerkt richtung = combo({2, 1}, Combo_richtung);
    Gemerkt auswahl = option({3, 2}, z.ska_ausw, ska_ausw);
    // The lists are filled anew for the category and the direction that were chosen before.
    auswahl.waehlen = [this](int wert) {
        ska_ausw(wert).choose();
        ska_ausw_click(wert);
    };
    std::vector<Gemerkt> alle{
        option({0, 0}, z.abfrage, abfrage),
        combo({1, keine}, temp_Combo),
        richtung,
        combo({8, 6}, skal_typ_cmb),
        richtung,
        auswahl,
        option({4, 3}, z.final, final),
        combo({5, 4}, CmbOktAnz),
        combo({6, 5}, CmbOktBer),
        option({7, keine}, z.frequenz, frequenz),
        option({9, keine}, z.stimmung, stimm_g),
        option({z.ueb_typ == core::uebung::bestimmen ? 10 : keine, 7}, z.an_zeig, an_zeig),
        option({keine, 8}, z.abfolge, abfolge),
    };
    std::erase_if(alle, [this](const Gemerkt& g) {
        return g.stelle[static_cast<std::size_t>(zweig_)] == keine;
    });
    return alle;
}

std::size_t Einstellung::stelle(const Gemerkt& wahl) const {
    return static_cast<std::size_t>(wahl.stelle[static_cast<std::size_t>(zweig_)]);
}

/// Whether there is a training to continue is asked for the ear-training branch also in the other
/// one.
bool Einstellung::FortsetzungVorhanden() {
    const std::string typ = std::to_string(z.ueb_typ);
    return p.host.LeseEinstellung("E" + typ) && p.host.LeseAbbruch("A" + typ) &&
           z.gelesen_a.at(0) == core::Value("true");
}

core::Value::Array Einstellung::WahlMerken() {
    core::Value::Array satz(static_cast<std::size_t>(wahlenAnz(zweig_)), "");
    for (const Gemerkt& wahl : gemerkteWahl()) satz[stelle(wahl)] = std::to_string(wahl.lesen());
    if (z.ska_ausw != 1) return satz;
    satz.push_back(std::to_string(z.einzelAnz));
    for (int i = 0; i <= z.einzelAnz; ++i) satz.push_back(lst_ska1.item(i).text);
    return satz;
}

/// Nothing is chosen before everything is known to be offered: settings of another form must not
/// be restored in part. @throws run-time errors 9 and 13 for settings that do not fit.
void Einstellung::WahlWiederherstellen(const core::Value& satz) {
    const auto zahl = [&](std::size_t i) { return base::parseInt(satz.at(i).text()); };
    const auto wahlen = gemerkteWahl();
    for (const Gemerkt& wahl : wahlen)
        if (!wahl.bietet(zahl(stelle(wahl)))) base::throwSubscript();
    for (const Gemerkt& wahl : wahlen) wahl.waehlen(zahl(stelle(wahl)));

    if (z.ska_ausw != 1) return;
    const auto anzahl = static_cast<std::size_t>(wahlenAnz(zweig_));
    const auto erster = anzahl + 1;
    const int letzter = zahl(anzahl);
    if (letzter < 0 || erster + static_cast<std::size_t>(letzter) >= satz.items().size())
        base::throwSubscript();
    for (int i = 0; i <= letzter; ++i) {
        const std::string text = satz.at(erster + static_cast<std::size_t>(i)).text();
        const auto& liste = lst_ska0.items();
        const auto skala = std::ranges::find(liste, text, &form::ItemList::Item::text);
        if (skala != liste.end()) lst_ska0.click(static_cast<int>(skala - liste.begin()));
    }
}

/// What cannot be continued becomes a new training.
void Einstellung::TrainingFortsetzen() {
    if (training_Combo.text() == core::keineFortsetzung)
        return training_Combo.setListIndex(core::modus::training);
    p.host.LeseEinstellung("E" + core::satz(z));
    try {
        WahlWiederherstellen(z.gelesen_e);
    } catch (const base::RuntimeError&) {
        return training_Combo.setListIndex(core::modus::training);
    }
    for (const int i : modusGruppen)
        if (find("grdeinst", i)) sperren(grdeinst(i));
    sperren(temp_Combo);
}

}  // namespace setup
