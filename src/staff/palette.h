#pragma once
#include "form/controls.h"
#include "staff/canvas.h"

namespace staff {

/// The five fields that accidentals are dragged from, in coloured frames, and the pictures that
/// follow the pointer. Lives as long as the form.
class Palette {
  public:
    /// @param staff opens and closes with the palette.
    Palette(form::Form& form, form::Control& staff);

    /// Draws the fields and closes palette and staff, frames red: once per run.
    void PaletteMalen();
    /// Opens palette and staff, frames green.
    void PaletteEin();
    /// Closes the palette, frames red.
    void PaletteAus();
    /// Marks a field as chosen by the keyboard. @param index -1 for none.
    void mark(int index);

    form::Group pbNoten;
    form::ControlArray<form::Group> grdnot;
    form::ControlArray<Canvas> NotP;
    form::Group DragIco;
    form::ControlArray<Canvas> Ico;

  private:
    void frames(bool open);

    form::Control& staff_;
};

}  // namespace staff
