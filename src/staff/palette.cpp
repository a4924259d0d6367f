#include "staff/palette.h"

#include "staff/noten.h"
#include "staff/noteneingabe.h"

#include <array>

namespace staff {

namespace {

constexpr Rechteck feld{0, 0, 40, 41};
constexpr Rechteck bild{0, 0, 32, 32};
/// A picture under the pointer shows the middle of a field.
constexpr int rand = 4;

/// An accidental in its field, and where its anchor stands there.
struct Feldzeichen {
    void (*malen)(Flaeche&, i16, i16);
    int x, y;
};
constexpr std::array<Feldzeichen, quelle::anzahl> feldzeichen{{{DoppelBeMalen, 12, 10},
                                                               {BeMalen, 16, 10},
                                                               {AufloesungMalen, 16, 10},
                                                               {KreuzMalen, 16, 10},
                                                               {DoppelKreuzMalen, 16, 18}}};

}  // namespace

Palette::Palette(form::Form& form, form::Control& staff)
    : pbNoten(form, {"pbNoten"}),
      grdnot(form, "grdnot", quelle::anzahl, &pbNoten),
      NotP(form, quelle::feld, quelle::anzahl),
      DragIco(form, {"DragIco"}),
      Ico(form, "Ico", quelle::anzahl, &DragIco),
      staff_(staff) {
    pbNoten.backColour = base::rgb(255, 224, 192);
    DragIco.caption = "DragIco";
    DragIco.visible = false;
    for (int i = 0; i < quelle::anzahl; ++i) {
        NotP(i).setContainer(grdnot(i));
        NotP(i).lage = feld;
        Ico(i).lage = bild;
        NotP(i).zugbild = &Ico(i);
    }
    NotP(2).hint = "doppeltpunktiert";
    NotP(3).hint = "punktiert";
}

void Palette::PaletteMalen() {
    pbNoten.enabled = false;
    staff_.enabled = false;
    rahmen(false);
    for (int i = 0; i < quelle::anzahl; ++i) {
        const Feldzeichen& z = feldzeichen.at(static_cast<std::size_t>(i));
        NotP(i).leeren();
        z.malen(NotP(i), z.x, z.y);
        Ico(i).leeren();
        z.malen(Ico(i), z.x - rand, z.y - rand);
    }
}

void Palette::PaletteEin() {
    pbNoten.enabled = true;
    staff_.enabled = true;
    rahmen(true);
}

void Palette::PaletteAus() {
    pbNoten.enabled = false;
    rahmen(false);
}

void Palette::rahmen(bool offen) {
    for (form::Group& frame : grdnot)
        frame.backColour = offen ? base::rgb(128, 255, 128) : base::colours::red;
}

void Palette::markieren(int index) {
    for (int i = 0; i < quelle::anzahl; ++i)
        NotP(i).marke = i == index ? Rechteck{1, 1, feld.breite - 2, feld.hoehe - 2} : Rechteck{};
}

}  // namespace staff
