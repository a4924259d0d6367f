#pragma once
#include "base/array.h"
#include "staff/notenzeile.h"

namespace staff {

/// The notes that a task expects in scale order, and the order in which it presents them.
struct Erwartung {
    base::FixedArray<Ton, 9> toene;
    i16 tonAnz;
    i16 abfolge;       ///< 0 scale, else melody in the order of ton_abfolg
    i16 akt_richtung;  ///< 1 ascending
    base::FixedArray<i16, 9> ton_abfolg;

    /// Index in scale order of the note that belongs in a column.
    constexpr int index(int c) const {
        if (abfolge != 0) return ton_abfolg[c];
        return akt_richtung == 1 ? c : int(tonAnz) - 1 - c;
    }
    constexpr const Ton& inSpalte(int c) const { return toene[index(c)]; }
};

/// The note of its letter without accidental.
constexpr Ton ohneVorzeichen(const Ton& ton) {
    const i16 qz = ton.qz % 7 + 14;
    return {ton.midi + (qz - ton.qz) / 7, qz};
}

/// Columns between the first and the last whose note is not the one expected, in sound and in
/// spelling.
i16 falscheSpalten(const Notenzeile& zeile, const Erwartung& erwartung);

/// Puts the task on the staff: the first and the last note as they are, the others as letters.
void NotenZeigen(Notenzeile& zeile, const Erwartung& erwartung);

/// Puts the right notes with red heads in place of the wrong ones; right ones turn black.
void LoesungZeigen(Notenzeile& zeile, const Erwartung& erwartung);

}  // namespace staff
