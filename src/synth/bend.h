#pragma once
#include <algorithm>

namespace synth {

/// Bend value of an instrument in tune; values reach from 0 to 16383.
constexpr int bendCentre = 8192;
constexpr int bendMaximum = 16383;

/// The 14-bit bend of a message's two data bytes, as MIDI puts it together.
constexpr int bendOf(int data1, int data2) { return (data2 & 0x7f) * 128 + (data1 & 0x7f); }

/// What to send the synthesiser so that a bend comes out right. A bend of 8192 is meant to be two
/// semitones, but the synthesiser makes it 127/128 of that. The value given back is the nearest;
/// its steps are a fortieth of a cent.
constexpr int tunedBend(int value) {
    constexpr int up = bendMaximum;  // so that what is cut off is a part of a positive number
    const int meant = (value - bendCentre) * 128 + up * 127;
    return std::clamp((2 * meant + 127) / 254 - up + bendCentre, 0, bendMaximum);
}

}  // namespace synth
