#pragma once
#include "base/i16.h"
#include "staff/surface.h"

namespace staff {

using base::i16;

// Everything is drawn for a staff whose lines lie 8 pixels apart. Positions k count steps of the
// scale: y = 4k. Colours are numbers, see ink.h.

/// The surface belongs to no staff of a worksheet.
inline constexpr int noStaff = -1;
/// Position of the top line of a staff. @param s 0 treble, 1 bass.
constexpr i16 topLine(i16 s) { return 16 - 4 * s; }
/// First ledger lines above and below the staff, and the first position whose stem rises.
constexpr i16 ledgerAbove(i16 s) { return 14 - 4 * s; }
constexpr i16 ledgerBelow(i16 s) { return 26 - 4 * s; }
constexpr i16 stemTurn(i16 s) { return 21 - 4 * s; }

/// Note head around (x, y). @param staff that of a worksheet: in its spaces the head leaves out
/// the row that would touch the line above.
void NotenkopfMalen(Surface& surface, i16 x, i16 y, int farbe, int staff = noStaff);

/// Ledger lines from the staff to a note. @param oben, unten first ledger positions.
/// @param zaehler grows by 4 for each line.
void HilfslinienMalen(Surface& surface, i16 x, i16 y, i16 oben, i16 unten, i16& zaehler);

/// Stem of a note: up on the right from position `wende` on, else down on the left.
/// @param zaehler pixels by which it is longer than 24.
void HalsMalen(Surface& surface, i16 x, i16 y, i16 zaehler, i16 wende);

/// Pixels to the left and right of a column's middle that a wipe takes.
inline constexpr int columnHalf = 25;
/// Wipes a column, 51 pixels wide though columns lie 40 apart, and mends the five lines.
/// @param oben position of the top line.
void SpalteLoeschen(Surface& surface, i16 oben, i16 x);

// Accidentals, from an anchor at the upper left.
void BeMalen(Surface& surface, i16 ax, i16 ay);
void DoppelBeMalen(Surface& surface, i16 ax, i16 ay);
void KreuzMalen(Surface& surface, i16 ax, i16 ay);
void DoppelKreuzMalen(Surface& surface, i16 ax, i16 ay);
void AufloesungMalen(Surface& surface, i16 ax, i16 ay);

/// The accidental of a note whose head is at (x, y), up to 22 pixels left of it. A natural is never
/// drawn. @param accidental -2..2.
void paintAccidental(Surface& surface, i16 x, i16 y, int accidental);

/// What became of a note, 9 pixels wide and high around x, from y on: a green tick, a red cross.
void paintTick(Surface& surface, i16 x, i16 y);
void paintCross(Surface& surface, i16 x, i16 y);

/// The letters "8va", 25 pixels wide and 9 high.
void OktavMarkeMalen(Surface& surface, i16 x, i16 y, int farbe);

/// Treble clef, its curl around y = 88; x from 13 to 29.
void ViolinschluesselMalen(Surface& surface);
/// Bass clef, its dots on both sides of y = 56; x from 8 to 30.
void BassschluesselMalen(Surface& surface);

/// Five lines from x 0 to `width`, the top one at position `oben`.
void paintLines(Surface& surface, int width, i16 oben);

/// "+" above 0, else "-".
constexpr const char* VorzeichenZeichen(int number) { return number > 0 ? "+" : "-"; }

}  // namespace staff
