#include "sim/setup_road.h"

#include "core/formnamen.h"
#include "form/controls.h"
#include "sim/usage_error.h"

#include <algorithm>
#include <array>

namespace sim {

namespace {

/// The control of the set-up form behind a field: a combo whose first item is the value `first` and
/// each further one `step` more, or an array of options.
struct Choice {
    const char* field;
    const char* control;
    int first = 0;
    int step = 1;
};
/// In the order of choosing: what comes later may be changed by what comes before.
constexpr std::array choices{
    Choice{"skal_typ", "skal_typ_cmb"},   Choice{"uebungsmodus", "training_Combo"},
    Choice{"prfNr", "prfnr_Comb", 1},     Choice{"abfolge", "abfolge"},
    Choice{"richtung", "Combo_richtung"}, Choice{"final", "final"},
    Choice{"oktAnz", "CmbOktAnz"},        Choice{"FrquMinAkt", "CmbOktBer", 36, 12},
    Choice{"tempoIdx", "temp_Combo"},     Choice{"frequenz", "frequenz"},
    Choice{"stimmung", "stimm_g"},        Choice{"an_zeig", "an_zeig"},
    Choice{"abfrage", "abfrage"},
};

[[noreturn]] void notOffered(const std::string& field) {
    throw UsageError("the set-up form does not offer this " + field);
}

template <class C>
C& control(const form::Form& form, const char* name, int index = form::Place::noIndex) {
    auto* const found = dynamic_cast<C*>(form.find(name, index));
    if (!found) throw UsageError(form.name() + " has no " + name);
    return *found;
}

}  // namespace

form::Form& SetupRoad::shown(const std::string& name) {
    p.ports.loop.runUntil([&] {
        const form::Form* form = p.forms.loaded(name);
        return form && form->visible();
    });
    return *p.forms.loaded(name);
}

form::Form& SetupRoad::setUpForm() {
    const std::string name = core::setUpForm(exercise_.theoriewahl);
    if (p.forms.loaded(name)) return shown(name);
    p.forms.load("grd_einst");
    form::Form& start = shown("grd_einst");
    control<form::Option>(start, "Theoriewahl", exercise_.theoriewahl).click();
    control<form::Option>(start, "ueb_typ", exercise_.ueb_typ).click();
    control<form::Button>(start, "cmdOK").click();
    return shown(name);
}

void SetupRoad::choose(form::Form& form, const std::string& field, int value) {
    const auto choice =
        std::ranges::find_if(choices, [&](const Choice& c) { return field == c.field; });
    if (auto* const combo = dynamic_cast<form::Combo*>(form.find(choice->control))) {
        const int item = (value - choice->first) / choice->step;
        if (!combo->usable() || item < 0 || item >= combo->count()) return;
        combo->setListIndex(item);
    } else {
        control<form::Option>(form, choice->control, value).click();
    }
}

void SetupRoad::chooseScales(form::Form& form, const core::Zustand& wanted) {
    auto& chosen = control<form::ListBox>(form, "lst_ska", 1);
    if (chosen.count() > 0) return;
    control<form::Option>(form, "ska_ausw", 1).click();
    auto& offered = control<form::ListBox>(form, "lst_ska", 0);
    for (int i = 0; i <= wanted.einzelAnz; ++i) {
        const auto item = std::ranges::find(offered.items(), int(wanted.einzel_wahl[i]),
                                            &form::ItemList::Item::data);
        if (!offered.usable() || item == offered.items().end()) notOffered("einzel_wahl");
        offered.click(static_cast<int>(item - offered.items().begin()));
    }
}

void SetupRoad::go(const std::vector<Assignment>& assignments, const core::Zustand& wanted) {
    form::Form& form = setUpForm();
    const auto given = [&](const std::string& field) {
        return std::ranges::find(assignments, field, &Assignment::field) != assignments.end();
    };
    const auto all = fields();
    const auto named = [&](const std::string& field) {
        return std::ranges::find_if(all, [&](const Field& f) { return field == f.name; });
    };
    for (const Choice& choice : choices)
        if (given(choice.field))
            choose(form, choice.field, int(wanted.*named(choice.field)->member));
    if (wanted.ska_ausw == 1) chooseScales(form, wanted);

    auto& ok = control<form::Button>(form, "cmdOK");
    if (!ok.usable())
        throw UsageError(
            "the set-up form refuses this choice of scales: they are too few, or unequal in number "
            "per direction");
    ok.click();
    for (const Assignment& assignment : assignments) {
        const auto field = named(assignment.field);
        if (field != all.end() && p.zustand.*field->member != wanted.*field->member)
            notOffered(assignment.field);
    }
}

void SetupRoad::resume() {
    form::Form& form = setUpForm();
    control<form::Combo>(form, "training_Combo").setListIndex(core::modus::fortsetzung);
    if (p.zustand.uebungsmodus != core::modus::fortsetzung) notOffered("uebungsmodus");
    control<form::Button>(form, "cmdOK").click();
}

}  // namespace sim
