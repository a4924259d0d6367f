#pragma once
#include "core/programm.h"
#include "form/controls.h"

namespace engine {

/// The control that leads to the next task: a button by hand, a label with a timer automatically.
struct NaechsteAufgabe {
    form::Button& CmdNextAufg;
    form::Label& LbNextAufg;
    form::Timer& WahlAutomat;
};

/// Captions the next-task control and offers it; notes in `schalter_frei` that a task was closed.
/// @param ist_indiziert the control is the first of a control array.
inline void Weiterschalter(core::Programm& p, const NaechsteAufgabe& n, bool abfrage_wert,
                           base::i16& schalter_frei, bool ist_indiziert) {
    if (schalter_frei < 2 && schalter_frei == 0) schalter_frei = 1;
    const std::string& text = ist_indiziert ? p.Wort(419) : p.Wort(420);
    if (abfrage_wert) {
        n.LbNextAufg.caption = text;
        n.LbNextAufg.visible = true;
        n.WahlAutomat.start();
    } else {
        n.CmdNextAufg.caption = text;
        n.CmdNextAufg.enabled = true;
    }
}

}  // namespace engine
