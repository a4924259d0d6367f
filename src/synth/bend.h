#pragma once
#include <algorithm>

namespace synth {

/// Bend value of an instrument in tune; values reach from 0 to 16383.
constexpr int bendCentre = 8192;
constexpr int bendMaximum = 16383;

/// The 14-bit bend of a message's two data bytes, as MIDI puts it together.
constexpr int bendOf(int data1, int data2) { return (data2 & 0x7f) * 128 + (data1 & 0x7f); }

/// What to send the synthesiser so that a bend comes out right. A bend of 8192 is meant to be two
/// semitones, but the synthesiser makes it 127/128 of that and cuts every pitch to whole cents.
/// The value given back lies in the middle of the cent nearest to the one that is meant, so that a
/// tone is never further off than half a cent, down to the very end of the range.
constexpr int tunedBend(int value) {
    constexpr double meantCents = 200.0 / bendCentre;
    constexpr double madeCents = meantCents * 127 / 128;
    const double up = (value - bendCentre) * meantCents + bendCentre;
    const int cents = static_cast<int>(up + 0.5) - bendCentre;
    const double middle = (cents + 0.5) / madeCents;
    return std::clamp(static_cast<int>(middle + bendCentre), 0, bendMaximum);
}

}  // namespace synth
