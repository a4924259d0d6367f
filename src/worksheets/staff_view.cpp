#include "worksheets/staff_view.h"

#include "core/wort.h"
#include "engine/tonality.h"
#include "staff/note_name.h"

namespace worksheets {

namespace {

/// Above this note the staff of a run begins as treble.
constexpr int highest = 66;

}  // namespace

StaffView::StaffView(core::Formular& form, core::Programm& programm, form::Control& area)
    : staff(form), form_(form), p(programm) {
    staff.PicBNot.setContainer(area);
    staff.PicBNot.inWords = [this] { return inWords(); };
}

void StaffView::prepare(i16 tonAnz, bool keySignature) {
    const core::Zustand& z = p.zustand;
    form_.benennen({{staff.PicBNot, core::wort::staff}});
    staff.setClef(z.FrquMaxAkt > highest ? 0 : 1);
    staff.NotenzeileAufbauen(tonAnz, {0, 0, 0, z.FrquMinAkt, z.FrquMaxAkt},
                             keySignature ? std::optional(i16(0)) : std::nullopt);
}

void StaffView::layOut(const engine::Task& a, bool keySignature) {
    const core::Zustand& z = p.zustand;
    staff.SchluesselWahl(a.noten[a.tonAnz - 1]);
    staff.NotenzeileAufbauen(a.tonAnz,
                             {a.quintLage, engine::TonalityChoice::stufenQz(z.skal_typ, a.skala_nr),
                              a.transpLage, z.FrquMinAkt, z.FrquMaxAkt},
                             keySignature ? std::optional(a.quintLage) : std::nullopt);
}

std::string StaffView::inWords() const {
    std::string text;
    for (int c = 0; c < staff.tonAnz(); ++c)
        if (staff.NotSelb(c).hasNote())
            text += (c == 0 ? "" : ", ") + staff::noteName(p.worte, staff.NotSelb(c).qz);
    return text;
}

}  // namespace worksheets
