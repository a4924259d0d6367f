#include "worksheets/notenbild.h"

#include "core/wort.h"
#include "engine/tonart.h"
#include "staff/tonname.h"

namespace worksheets {

namespace {

/// Above this note the staff of a run begins as treble.
constexpr int mitte = 66;

}  // namespace

Notenbild::Notenbild(core::Formular& form, core::Programm& programm, form::Control& bereich)
    : zeile(form), form_(form), p(programm) {
    zeile.PicBNot.setContainer(bereich);
    zeile.PicBNot.beschreibung = [this] { return beschreibung(); };
}

void Notenbild::vorbereiten(i16 tonAnz, bool signatur) {
    const core::Zustand& z = p.zustand;
    form_.benennen({{zeile.PicBNot, core::wort::staff}});
    zeile.setzeSchluessel(z.FrquMaxAkt > mitte ? 0 : 1);
    zeile.NotenzeileAufbauen(tonAnz, {0, 0, 0, z.FrquMinAkt, z.FrquMaxAkt},
                             signatur ? std::optional(i16(0)) : std::nullopt);
}

void Notenbild::aufbauen(const engine::Aufgabe& a, bool signatur) {
    const core::Zustand& z = p.zustand;
    zeile.SchluesselWahl(a.noten[a.tonAnz - 1]);
    zeile.NotenzeileAufbauen(a.tonAnz,
                             {a.quintLage, engine::Tonartwahl::stufenQz(z.skal_typ, a.skala_nr),
                              a.transpLage, z.FrquMinAkt, z.FrquMaxAkt},
                             signatur ? std::optional(a.quintLage) : std::nullopt);
}

std::string Notenbild::beschreibung() const {
    std::string text;
    for (int c = 0; c < zeile.tonAnz(); ++c)
        if (zeile.NotSelb(c).hatNote())
            text += (c == 0 ? "" : ", ") + staff::tonname(p.worte, zeile.NotSelb(c).qz);
    return text;
}

}  // namespace worksheets
