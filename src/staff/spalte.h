#pragma once
#include "base/i16.h"
#include "staff/tonhoehe.h"

namespace staff {

/// One column of the staff as it is written; the columns together are the table `NotSelb`, the
/// numbers below the places of its rows.
struct Spalte {
    i16 midi;        ///< 0: MIDI number; 0 or less: no note
    i16 vorzeichen;  ///< 1: -2 double flat .. 2 double sharp
    i16 schluessel;  ///< 2: staff, 0 treble, 1 bass
    i16 oktave;      ///< 3: 1 when written an octave lower under "8va"
    i16 SchrittY;    ///< 4: y of the head / 4
    i16 abgelegt;    ///< 5: 1 once the user has dropped something here
    i16 farbe;       ///< 6: of the head, see farbe.h
    i16 qz;          ///< 7: fifths number
    i16 zeichen;     ///< 8: sign that is drawn, see `zeichen`

    constexpr bool hatNote() const { return midi > 0; }
    constexpr i16 y() const { return SchrittY * 4; }
    constexpr Ton ton() const { return {midi, qz}; }
};

/// Codes of the sign before a note.
namespace zeichen {
inline constexpr int ohne = 7;      ///< a letter without accidental
inline constexpr int schonDa = 10;  ///< an earlier note on the line has it
constexpr int von(int vorzeichen) { return vorzeichen + ohne; }
/// The accidental that is drawn, 0 for none.
constexpr int vorzeichen(int code) { return code >= 5 && code <= 9 ? code - ohne : 0; }
}  // namespace zeichen

/// Where things stand along the staff. Column c, 0..8, has its middle at `x(c)`.
struct Spaltenlage {
    /// Pixels by which a key signature moves the columns to the right.
    i16 versatz = 0;

    static constexpr int spalten = 9;
    static constexpr int abstand = 40;
    constexpr i16 x(i16 c) const { return abstand * c + 60 + versatz; }
    constexpr i16 breite(i16 tonAnz) const { return abstand * tonAnz + 42 + versatz; }
    /// Where the limit lines begin, and the first x that can be dropped on.
    constexpr i16 anfang() const { return 80 + versatz; }
    constexpr i16 ziffer(i16 c) const { return abstand * c + 45 + versatz; }
    /// Where "8va" stands: it drifts away from its note to the right.
    constexpr i16 oktavMarke(i16 c) const { return 50 * c + 54 + versatz; }
    /// The column under x, cut to 0..8.
    constexpr int spalteBei(float x) const {
        const float c = (x - static_cast<float>(versatz + abstand)) / abstand;
        return c < 0 ? 0 : c >= spalten ? spalten - 1 : static_cast<int>(c);
    }
};

}  // namespace staff
