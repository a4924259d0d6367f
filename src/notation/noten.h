#pragma once
#include "notation/flaeche.h"

namespace notation {

using base::Colour;

/// Note head around (x, y). @param imZwischenraum it stands in a space of the staff or below: its
/// top row would touch the line above and is left out.
void NotenkopfMalen(Flaeche& flaeche, int x, int y, Colour farbe, bool imZwischenraum);

/// Ledger lines from the staff to a note. @param oben, unten first ledger position above and below
/// the staff, in steps of 4 pixels. @return 4 for each line drawn.
int HilfslinienMalen(Flaeche& flaeche, int x, int y, int oben, int unten);

// Accidentals at an anchor: left edge and top of the glyph.
void BeMalen(Flaeche& flaeche, int x, int y);
void DoppelBeMalen(Flaeche& flaeche, int x, int y);
void KreuzMalen(Flaeche& flaeche, int x, int y);
void DoppelKreuzMalen(Flaeche& flaeche, int x, int y);
void AufloesungMalen(Flaeche& flaeche, int x, int y);

/// The accidental -2..2 before a note head at (x, y); nothing for 0.
void VorzeichenMalen(Flaeche& flaeche, int x, int y, int vorzeichen);

/// Treble clef, curled around y = 88; x from 12 to 30.
void ViolinschluesselMalen(Flaeche& flaeche);

/// Five lines from x 0 to `breite`, the top one at position `oben`, in steps of 4 pixels.
void NotenlinienMalen(Flaeche& flaeche, int breite, int oben);

}  // namespace notation
