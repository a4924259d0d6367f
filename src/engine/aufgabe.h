#pragma once
#include "base/array.h"
#include "base/i16.h"

#include <array>

namespace engine {

using base::i16;

/// The task in hand, and what of a run its drawing needs. One per worksheet.
struct Aufgabe {
    base::FixedArray<i16, 9> stufe;        ///< semitones above the first note, by degree
    base::FixedArray<i16, 7> stufenStimm;  ///< Pythagorean correction by degree, in bend steps
    i16 tonAnz;                            ///< notes that a task plays
    i16 oktSpanne;                         ///< octaves by which a task may be shifted up
    i16 oktLage;                           ///< base note, MIDI number
    i16 transp;                            ///< transposition, semitones
    i16 transpLage;                        ///< the same on the staff: lower where that lies high
    i16 quintLage;                         ///< key of a spelled task, in fifths from C
    i16 finalis;                           ///< pitch class of the first note where the final stays
    base::FixedArray<i16, 9> noten;        ///< MIDI numbers in scale order, always rising
    base::FixedArray<i16, 9> notenQz;      ///< their fifths numbers where the task is spelled
    base::FixedArray<i16, 9> stimmWert;    ///< tuning correction of each note, in bend steps
    base::FixedArray<i16, 9> ton_abfolg;   ///< melodic order: indices into noten
    i16 letzteSkala = 11;                  ///< skala_nr of the task before
    i16 letzterTon;                        ///< noten(0) of the task before
    i16 matIndex;                          ///< row of matbox drawn last
};

/// Octaves of a range by its index.
inline constexpr std::array oktTab{2, 3, 4, 5};

}  // namespace engine
