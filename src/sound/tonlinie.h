#pragma once
#include "sound/midi.h"

#include <optional>
#include <span>

namespace sound {

/// A note of a line.
struct Linienton {
    i16 note;       ///< MIDI number
    int stufe = 0;  ///< which tone of the line's scale it is, 0..7: outside equal temperament its
                    ///< own channel, since a bend acts on a whole one
    i16 korrektur;  ///< of the tuning, in bend steps
};

/// How the notes of a line follow each other and are tuned.
struct Linienart {
    int tondauer;                         ///< milliseconds from note to note
    int stimmung;                         ///< 0: all on one channel, uncorrected
    std::optional<i16> verstimmung = {};  ///< of the whole line, in bend steps, where it varies
};

/// Bends the channels and queues the notes, each for nine tenths of its time: what a task and the
/// sound check play.
void TonlinieLegen(Midi& midi, std::span<const Linienton> toene, const Linienart& art);

}  // namespace sound
