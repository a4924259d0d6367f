#include "setup/saved_choice.h"

#include "base/rounding.h"
#include "setup/choices.h"

#include <array>
#include <string_view>

namespace setup {

namespace {

/// Stands where a branch does not keep a choice.
constexpr int keine = -1;

/// A choice by its control, and its element in the settings of each branch.
struct Gemerkt {
    const char* name;
    std::array<int, 2> stelle;
    bool nurBestimmen = false;  ///< in ear training a written exercise does not keep it
};
/// In the order in which they are chosen again: what comes later depends on what comes before.
/// Category and order of tones may have reset the direction, which is therefore chosen again behind
/// each of them; the lists are filled for what was chosen before.
constexpr std::array gemerkteWahl{
    Gemerkt{"abfrage", {0, 0}},        Gemerkt{"temp_Combo", {1, keine}},
    Gemerkt{"Combo_richtung", {2, 1}}, Gemerkt{"skal_typ_cmb", {8, 6}},
    Gemerkt{"Combo_richtung", {2, 1}}, Gemerkt{"ska_ausw", {3, 2}},
    Gemerkt{"final", {4, 3}},          Gemerkt{"CmbOktAnz", {5, 4}},
    Gemerkt{"CmbOktBer", {6, 5}},      Gemerkt{"frequenz", {7, keine}},
    Gemerkt{"stimm_g", {9, keine}},    Gemerkt{"an_zeig", {10, 7}, true},
    Gemerkt{"abfolge", {keine, 8}},    Gemerkt{"Combo_richtung", {keine, 1}},
    Gemerkt{"ska_ausw", {keine, 2}},
};

/// How many choices the settings of a branch hold; chosen scales follow: their highest index, then
/// their texts.
constexpr std::size_t wahlenAnz(Zweig zweig) { return klingt(zweig) ? 11 : 9; }

/// Calls `f` with name and element of each choice that an exercise keeps.
template <class F>
void eachKept(Zweig zweig, int ueb_typ, F f) {
    for (const Gemerkt& wahl : gemerkteWahl) {
        const int stelle = wahl.stelle[klingt(zweig) ? 0 : 1];
        const bool ausser =
            wahl.nurBestimmen && klingt(zweig) && ueb_typ != core::uebung::bestimmen;
        if (stelle != keine && !ausser) f(wahl.name, static_cast<std::size_t>(stelle));
    }
}

}  // namespace

bool SavedChoice::FortsetzungVorhanden() const {
    const std::string typ = std::to_string(z.ueb_typ);
    return p.host.LeseEinstellung("E" + typ) && p.host.LeseAbbruch("A" + typ) &&
           z.gelesen_a.at(0) == core::Value("true");
}

core::Value::Array SavedChoice::WahlMerken() const {
    core::Value::Array satz(wahlenAnz(zweig_), "");
    eachKept(zweig_, z.ueb_typ, [&](const char* name, std::size_t stelle) {
        satz[stelle] = std::to_string(chosen(form_, z, name));
    });
    if (z.ska_ausw != 1) return satz;
    satz.push_back(std::to_string(z.einzelAnz));
    for (std::string& text : scales_.chosen()) satz.push_back(std::move(text));
    return satz;
}

void SavedChoice::WahlWiederherstellen(const core::Value& satz) const {
    eachKept(zweig_, z.ueb_typ, [&](const char* name, std::size_t stelle) {
        choose(form_, name, base::parseInt(satz.at(stelle).text()));
        if (name == std::string_view("ska_ausw")) scales_.ska_ausw_click();
    });
    if (z.ska_ausw == 1) SkalenWiederherstellen(satz);
}

void SavedChoice::SkalenWiederherstellen(const core::Value& satz) const {
    std::size_t stelle = wahlenAnz(zweig_);
    for (int mehr = base::parseInt(satz.at(stelle).text()); mehr >= 0; --mehr) {
        if (++stelle >= satz.items().size()) base::throwSubscript();
        scales_.choose(satz.at(stelle).text());
    }
}

}  // namespace setup
