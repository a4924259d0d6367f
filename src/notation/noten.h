#pragma once
#include "notation/flaeche.h"

namespace notation {

using base::Colour;

// Everything is drawn for a staff whose lines lie 8 logical pixels apart.

/// Note head around (x, y): 10 wide, 8 high.
void NotenkopfMalen(Flaeche& flaeche, int x, int y, Colour farbe);

/// Ledger lines from the staff to a note. @param oben, unten first ledger position above and below
/// the staff, in steps of 4 pixels. @return 4 for each line drawn.
int HilfslinienMalen(Flaeche& flaeche, int x, int y, int oben, int unten);

/// The accidental -2..2 before a note head at (x, y): from double flat to double sharp, nothing for
/// 0. It reaches at most 21 to the left of x.
void VorzeichenMalen(Flaeche& flaeche, int x, int y, int vorzeichen);

/// Treble clef, curled around y = 88; x from 12 to 30.
void ViolinschluesselMalen(Flaeche& flaeche);

/// Five lines from x 0 to `breite`, the top one at position `oben`, in steps of 4 pixels.
void NotenlinienMalen(Flaeche& flaeche, int breite, int oben);

}  // namespace notation
