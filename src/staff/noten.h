#pragma once
#include "base/i16.h"
#include "staff/flaeche.h"

namespace staff {

using base::i16;

// Everything is drawn for a staff whose lines lie 8 pixels apart. Positions k count steps of the
// scale: y = 4k. Colours are numbers, see farbe.h.

/// The surface belongs to no staff of a worksheet.
inline constexpr int keineZeile = -1;
/// Position of the top line of a staff. @param s 0 treble, 1 bass.
constexpr i16 obersteLinie(i16 s) { return 16 - 4 * s; }
/// First ledger lines above and below the staff, and the first position whose stem rises.
constexpr i16 hilfslinieOben(i16 s) { return 14 - 4 * s; }
constexpr i16 hilfslinieUnten(i16 s) { return 26 - 4 * s; }
constexpr i16 halsWende(i16 s) { return 21 - 4 * s; }

/// Note head around (x, y). @param zeile staff of a worksheet: in its spaces the head leaves out
/// the row that would touch the line above.
void NotenkopfMalen(Flaeche& flaeche, i16 x, i16 y, int farbe, int zeile = keineZeile);

/// Ledger lines from the staff to a note. @param oben, unten first ledger positions.
/// @param zaehler grows by 4 for each line.
void HilfslinienMalen(Flaeche& flaeche, i16 x, i16 y, i16 oben, i16 unten, i16& zaehler);

/// Stem of a note: up on the right from position `wende` on, else down on the left.
/// @param zaehler pixels by which it is longer than 24.
void HalsMalen(Flaeche& flaeche, i16 x, i16 y, i16 zaehler, i16 wende);

/// Pixels to the left and right of a column's middle that a wipe takes.
inline constexpr int spalteHalb = 25;
/// Wipes a column, 51 pixels wide though columns lie 40 apart, and mends the five lines.
/// @param oben position of the top line.
void SpalteLoeschen(Flaeche& flaeche, i16 oben, i16 x);

// Accidentals, from an anchor at the upper left.
void BeMalen(Flaeche& flaeche, i16 ax, i16 ay);
void DoppelBeMalen(Flaeche& flaeche, i16 ax, i16 ay);
void KreuzMalen(Flaeche& flaeche, i16 ax, i16 ay);
void DoppelKreuzMalen(Flaeche& flaeche, i16 ax, i16 ay);
void AufloesungMalen(Flaeche& flaeche, i16 ax, i16 ay);

/// The accidental of a note whose head is at (x, y), up to 22 pixels left of it. A natural is never
/// drawn. @param vorzeichen -2..2.
void VorzeichenMalen(Flaeche& flaeche, i16 x, i16 y, int vorzeichen);

/// The letters "8va", 25 pixels wide and 9 high.
void OktavMarkeMalen(Flaeche& flaeche, i16 x, i16 y, int farbe);

/// Treble clef, its curl around y = 88; x from 13 to 29.
void ViolinschluesselMalen(Flaeche& flaeche);
/// Bass clef, its dots on both sides of y = 56; x from 8 to 30.
void BassschluesselMalen(Flaeche& flaeche);

/// Five lines from x 0 to `breite`, the top one at position `oben`.
void LinienMalen(Flaeche& flaeche, int breite, i16 oben);

/// "+" above 0, else "-".
constexpr const char* VorzeichenZeichen(int zahl) { return zahl > 0 ? "+" : "-"; }

}  // namespace staff
