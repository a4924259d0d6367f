#include "setup/groups.h"

#include "core/wort.h"

#include <array>

namespace setup {

namespace wort = core::wort;

namespace {

/// What is to be known of a group.
enum Trait : unsigned {
    nurKlang = 1,  ///< only a branch with sound has it
    modus = 2,     ///< a mode opens it, a continued training locks it
    pruefung = 4,  ///< an exam locks it
    wahl = 8       ///< single scales depend on it: disabled while they are being picked
};
/// A group as it opens, and its heading.
struct Gruppe {
    int index;
    wort::Id wort;  ///< none without a heading
    unsigned traits = 0;
    base::Colour farbe = farben::offen;

    bool has(Trait trait) const { return (traits & trait) != 0; }
};
constexpr std::array gruppen{
    Gruppe{group::range, wort::pitchRange, modus},
    Gruppe{group::category, wort::scaleType, modus | wahl},
    Gruppe{group::reference, wort::referencePitch, modus | nurKlang},
    Gruppe{group::tuning, wort::tuning, modus | nurKlang},
    Gruppe{group::order, wort::noteOrder, modus | wahl | pruefung},
    Gruppe{group::next, wort::advance, modus | pruefung},
    Gruppe{group::key, wort::keySignatureOrFinal, modus | pruefung},
    Gruppe{group::mode, wort::exerciseMode, 0, farben::modus},
    Gruppe{group::scales, wort::scalesIncluded, modus | pruefung},
    Gruppe{group::single, wort::scaleSelection, modus},
    Gruppe{group::answers, wort::display, modus},
    Gruppe{group::check, wort::none, 0, farben::klang},
    Gruppe{group::sound, wort::timbre, 0, farben::klang},
};

std::vector<int> indices(Zweig zweig, bool ueberschrift) {
    std::vector<int> alle;
    for (const Gruppe& g : gruppen)
        if ((klingt(zweig) || !g.has(nurKlang)) && (!ueberschrift || g.wort != wort::none))
            alle.push_back(g.index);
    return alle;
}

/// Calls `f` with each group of the form that has the trait.
template <class F>
void each(const Groups& groups, Trait trait, F f) {
    for (const Gruppe& g : gruppen)
        if (form::Group* gruppe = groups.find(g.index); gruppe && g.has(trait)) f(g, *gruppe);
}

}  // namespace

void sperren(form::Control& control) {
    control.enabled = false;
    control.backColour = farben::gesperrt;
    control.foreColour = base::colours::black;
}

Groups::Groups(core::Formular& form, Zweig zweig)
    : grdeinst(form, "grdeinst", indices(zweig, false)),
      geinst_lb(form, "geinst_lb", indices(zweig, true)) {
    for (const Gruppe& g : gruppen) {
        form::Group* gruppe = find(g.index);
        if (!gruppe) continue;
        gruppe->backColour = g.farbe;
        if (g.wort == wort::none) continue;
        geinst_lb(g.index).setContainer(*gruppe);
        form.beschriften({{geinst_lb(g.index), g.wort}});
        form.benennen({{*gruppe, g.wort}});
    }
    grdeinst(group::check).setContainer(grdeinst(group::sound));
}

form::Group* Groups::find(int index) const {
    for (form::Group& gruppe : grdeinst)
        if (gruppe.index() == index) return &gruppe;
    return nullptr;
}

void Groups::GruppenOeffnen(bool auswahl) const {
    each(*this, modus, [auswahl](const Gruppe& g, form::Group& gruppe) {
        if (!auswahl || !g.has(wahl)) gruppe.enabled = true;
        gruppe.backColour = farben::offen;
    });
}

void Groups::lockForTraining() const {
    each(*this, modus, [](const Gruppe&, form::Group& gruppe) { sperren(gruppe); });
}

void Groups::lockForExam() const {
    each(*this, pruefung, [](const Gruppe&, form::Group& gruppe) { sperren(gruppe); });
}

void Groups::enableForPicking(bool enabled) const {
    each(*this, wahl, [&](const Gruppe& g, form::Group& gruppe) {
        gruppe.enabled = enabled;
        geinst_lb(g.index).enabled = enabled;
    });
}

}  // namespace setup
