#pragma once
#include "sound/midi.h"

#include <optional>
#include <span>

namespace sound {

/// A note of a phrase.
struct PhraseNote {
    i16 note;        ///< MIDI number
    int degree = 0;  ///< which tone of the phrase's scale it is, 0..7: outside equal temperament
                     ///< its own channel, since a bend acts on a whole one
    i16 correction;  ///< of the tuning, in bend steps
};

/// How the notes of a phrase follow each other and are tuned.
struct PhraseStyle {
    int noteDuration;                ///< milliseconds from note to note
    int stimmung;                    ///< 0: all on one channel, uncorrected
    std::optional<i16> detune = {};  ///< of the whole phrase, in bend steps, where it varies
};

/// Bends the channels and queues the notes, each for nine tenths of its time: what a task and the
/// sound check play.
void queuePhrase(Midi& midi, std::span<const PhraseNote> notes, const PhraseStyle& style);

}  // namespace sound
