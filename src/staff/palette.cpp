#include "staff/palette.h"

#include "staff/glyphs.h"
#include "staff/note_entry.h"

#include <array>

namespace staff {

namespace {

constexpr Rect area{0, 0, 40, 41};
constexpr Rect picture{0, 0, 32, 32};
/// A picture under the pointer shows the middle of a field.
constexpr int margin = 4;

/// An accidental in its field, and where its anchor stands there.
struct FieldSign {
    void (*paint)(Surface&, i16, i16);
    int x, y;
};
constexpr std::array<FieldSign, source::count> fieldSigns{{{DoppelBeMalen, 12, 10},
                                                           {BeMalen, 16, 10},
                                                           {AufloesungMalen, 16, 10},
                                                           {KreuzMalen, 16, 10},
                                                           {DoppelKreuzMalen, 16, 18}}};

}  // namespace

Palette::Palette(form::Form& form, form::Control& staff)
    : pbNoten(form, {"pbNoten"}),
      grdnot(form, "grdnot", source::count, &pbNoten),
      NotP(form, source::control, source::count),
      DragIco(form, {"DragIco"}),
      Ico(form, "Ico", source::count, &DragIco),
      staff_(staff) {
    pbNoten.backColour = base::rgb(255, 224, 192);
    DragIco.caption = "DragIco";
    DragIco.visible = false;
    for (int i = 0; i < source::count; ++i) {
        NotP(i).setContainer(grdnot(i));
        NotP(i).bounds = area;
        Ico(i).bounds = picture;
        NotP(i).dragPicture = &Ico(i);
    }
    NotP(2).hint = "doppeltpunktiert";
    NotP(3).hint = "punktiert";
}

void Palette::PaletteMalen() {
    pbNoten.enabled = false;
    staff_.enabled = false;
    frames(false);
    for (int i = 0; i < source::count; ++i) {
        const FieldSign& z = fieldSigns.at(static_cast<std::size_t>(i));
        NotP(i).clear();
        z.paint(NotP(i), z.x, z.y);
        Ico(i).clear();
        z.paint(Ico(i), z.x - margin, z.y - margin);
    }
}

void Palette::PaletteEin() {
    pbNoten.enabled = true;
    staff_.enabled = true;
    frames(true);
}

void Palette::PaletteAus() {
    pbNoten.enabled = false;
    frames(false);
}

void Palette::frames(bool open) {
    for (form::Group& frame : grdnot)
        frame.backColour = open ? base::rgb(128, 255, 128) : base::colours::red;
}

void Palette::mark(int index) {
    for (int i = 0; i < source::count; ++i)
        NotP(i).mark = i == index ? Rect{1, 1, area.width - 2, area.height - 2} : Rect{};
}

}  // namespace staff
