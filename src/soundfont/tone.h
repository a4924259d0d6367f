#pragma once
#include "soundfont/pitch.h"

#include <span>

namespace soundfont {

/// What one note of an instrument sounds like.
struct Tone {
    double level = -120;  ///< of the first fifth of a second after its attack, dB below full scale
    double attack = 0;    ///< ms from its beginning to the first two that are heard
    double rise = 0;      ///< ms from there to half of its peak
    Pitch pitch{0, noPitch};
    int octave = 0;  ///< by which it lies lower or higher than its key

    bool sounds() const { return level > -66; }
    /// So steep that it can be told when the note begins.
    bool isSteep() const { return sounds() && rise <= 8; }
    bool hasPitch() const { return sounds() && pitch.uncertainty <= 2; }
};

/// Measures a note alone.
/// @param sound from its beginning on, half a second or more.
/// @param rate samples a second. @param expected frequency in Hz.
Tone toneOf(std::span<const float> sound, double rate, double expected);

}  // namespace soundfont
