#include "setup/presets.h"

#include "base/rounding.h"
#include "core/fortsetzung.h"
#include "core/wort.h"
#include "setup/choices.h"

#include <array>
#include <string_view>

namespace setup {

namespace wort = core::wort;
namespace modus = core::modus;

namespace {

/// Choices that a saved training does not keep, but a next run begins with, each in its element of
/// the record; what a saved training keeps follows. The order of tones comes before all choices
/// that depend on it.
constexpr std::array ahead{"training_Combo", "prfnr_Comb", "abfolge", "ComboPatch"};

constexpr std::array beginnersScales{1, 3, 6};  // Ionian, Phrygian, Aeolian, upward

}  // namespace

Presets::Presets(core::Formular& form, core::Programm& programm, ScaleChoice& scales,
                 const SavedChoice& saved, form::Group& actions)
    : form_(form),
      p(programm),
      z(programm.zustand),
      scales_(scales),
      saved_(saved),
      asLastTime(form, {"asLastTime", &actions}),
      forBeginners(form, {"forBeginners", &actions}) {
    asLastTime.onClick = {"asLastTime_click.", [this] { chooseLast(); }};
    forBeginners.onClick = {"forBeginners_click.", [this] { chooseForBeginners(); }};
    asLastTime.visible = false;
    forBeginners.visible = false;
    form.beschriften({{asLastTime, wort::asLastTime}, {forBeginners, wort::forBeginners}});
    asLastTime.hint = p.Wort(wort::asLastTimeAbout);
    forBeginners.hint = p.Wort(wort::forBeginnersAbout);
}

std::string Presets::record() const { return "L" + core::satz(z); }

void Presets::offer() {
    const bool free = p.aufruf.startdatei.empty();
    forBeginners.visible = free;
    asLastTime.visible = free && p.host.HostLesen(record()).has_value();
}

void Presets::keep() const {
    core::Value::Array kept;
    for (const char* name : ahead) {
        const bool offered = form_.find(name) || name == std::string_view("abfolge");
        const int choice = offered ? chosen(form_, z, name) : -1;
        kept.push_back(choice < 0 ? "" : std::to_string(choice));
    }
    for (core::Value& choice : saved_.WahlMerken()) kept.push_back(std::move(choice));
    p.host.HostMerken(record(), kept);
}

/// A training that went on was one: it is begun anew here. While the choices are made a mode is
/// chosen in which all of them are open.
void Presets::chooseLast() const {
    const auto kept = p.host.HostLesen(record());
    if (!kept) return;
    const auto number = [&](std::size_t i) { return base::parseInt(kept->at(i).text()); };
    const auto has = [&](std::size_t i) { return !kept->at(i).text().empty(); };
    choose(form_, ahead[0], modus::training);
    for (std::size_t i = 2; i < ahead.size(); ++i)
        if (has(i)) choose(form_, ahead.at(i), number(i));
    core::Value::Array rest(kept->items().begin() + ahead.size(), kept->items().end());
    saved_.WahlWiederherstellen(std::move(rest));
    const int mode = number(0);
    choose(form_, ahead[1], number(1));
    choose(form_, ahead[0], mode == modus::fortsetzung ? modus::training : mode);
}

void Presets::chooseForBeginners() const {
    struct Choice {
        const char* name;
        int value;
    };
    for (const Choice& c : {Choice{"training_Combo", modus::ausprobieren},
                            {"skal_typ_cmb", 0},
                            {"abfolge", 0},
                            {"Combo_richtung", 0}})
        choose(form_, c.name, c.value);
    if (const form::Control* sameFinal = form_.find("final", 1); sameFinal && sameFinal->visible())
        choose(form_, "final", 1);
    choose(form_, "ska_ausw", 1);
    scales_.ska_ausw_click();
    for (const int code : beginnersScales) scales_.choose(code);
}

}  // namespace setup
