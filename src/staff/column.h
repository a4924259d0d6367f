#pragma once
#include "base/i16.h"
#include "staff/position.h"

namespace staff {

/// One column of the staff as it is written; the columns together are the table `NotSelb`, the
/// numbers below the places of its rows.
struct Column {
    i16 midi;        ///< 0: MIDI number; 0 or less: no note
    i16 accidental;  ///< 1: -2 double flat .. 2 double sharp
    i16 clef;        ///< 2: staff, 0 treble, 1 bass
    i16 octave;      ///< 3: 1 when written an octave lower under "8va"
    i16 SchrittY;    ///< 4: y of the head / 4
    i16 dropped;     ///< 5: 1 once the user has dropped something here
    i16 farbe;       ///< 6: of the head, see ink.h
    i16 qz;          ///< 7: fifths number
    i16 zeichen;     ///< 8: sign that is drawn, see `sign`

    constexpr bool hasNote() const { return midi > 0; }
    constexpr i16 y() const { return SchrittY * 4; }
    constexpr Pitch pitch() const { return {midi, qz}; }
};

/// Codes of the sign before a note.
namespace sign {
inline constexpr int none = 7;      ///< a letter without accidental
inline constexpr int already = 10;  ///< an earlier note on the line has it
constexpr int of(int accidental) { return accidental + none; }
/// The accidental that is drawn, 0 for none.
constexpr int accidental(int code) { return code >= 5 && code <= 9 ? code - none : 0; }
}  // namespace sign

/// Where things stand along the staff. Column c, 0..8, has its middle at `x(c)`.
struct ColumnLayout {
    /// Pixels by which a key signature moves the columns to the right.
    i16 versatz = 0;

    static constexpr int columns = 9;
    static constexpr int spacing = 40;
    constexpr i16 x(i16 c) const { return spacing * c + 60 + versatz; }
    constexpr i16 width(i16 tonAnz) const { return spacing * tonAnz + 42 + versatz; }
    /// Where the limit lines begin, and the first x that can be dropped on.
    constexpr i16 start() const { return 80 + versatz; }
    constexpr i16 numberX(i16 c) const { return spacing * c + 45 + versatz; }
    /// Where "8va" stands: it drifts away from its note to the right.
    constexpr i16 octaveMarkX(i16 c) const { return 50 * c + 54 + versatz; }
    /// The column under x, cut to 0..8.
    constexpr int columnAt(float x) const {
        const float c = (x - static_cast<float>(versatz + spacing)) / spacing;
        return c < 0 ? 0 : c >= columns ? columns - 1 : static_cast<int>(c);
    }
};

}  // namespace staff
