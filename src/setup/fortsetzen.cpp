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

/// In the order in which they are chosen again: what comes later depends on what comes before.
/// Category and order of tones may have reset the direction, which is therefore chosen again behind
/// each of them; the lists are filled for what was chosen before.
std::vector<Einstellung::Gemerkt> Einstellung::gemerkteWahl() {
    const auto option = [](std::array<int, 2> stelle, i16& feld,
                           form::ControlArray<form::Option>& optionen) {
        return Gemerkt{stelle, [&feld] { return int(feld); },
                       [&optionen](int wert) { optionen(wert).choose(); }};
    };
    const auto combo = [](std::array<int, 2> stelle, form::Combo& liste) {
        return Gemerkt{stelle, [&liste] { return liste.listIndex(); },
                       [&liste](int wert) {
                           liste.item(wert);
                           liste.setListIndex(wert);
                       }};
    };
    const Gemerkt richtung = combo({2, 1}, Combo_richtung);
    Gemerkt auswahl = option({3, 2}, z.ska_ausw, ska_ausw);
    auswahl.waehlen = [this](int wert) {
        ska_ausw(wert).choose();
        ska_ausw_click();
    };
    Gemerkt richtungDanach = richtung, auswahlDanach = auswahl;
    richtungDanach.stelle[0] = auswahlDanach.stelle[0] = keine;
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
        richtungDanach,
        auswahlDanach,
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

/// Step by step: what was chosen stays when a value comes that the form has not.
/// @throws run-time errors 6, 9 and 13 for that value.
void Einstellung::WahlWiederherstellen(const core::Value& satz) {
    for (const Gemerkt& wahl : gemerkteWahl())
        wahl.waehlen(base::parseInt(satz.at(stelle(wahl)).text()));
    if (z.ska_ausw == 1) SkalenWiederherstellen(satz);
}

/// A scale that the lists do not offer is left out.
void Einstellung::SkalenWiederherstellen(const core::Value& satz) {
    const auto erste = static_cast<std::size_t>(wahlenAnz(zweig_)) + 1;
    const int letzte = base::parseInt(satz.at(erste - 1).text());
    for (int i = 0; i <= letzte; ++i) {
        const auto stelle = erste + static_cast<std::size_t>(i);
        if (stelle >= satz.items().size()) base::throwSubscript();
        const auto& liste = lst_ska0.items();
        const auto skala =
            std::ranges::find(liste, satz.at(stelle).text(), &form::ItemList::Item::text);
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
