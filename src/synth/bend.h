#pragma once
#include <algorithm>

namespace synth {

/// Bend value of an instrument in tune; a bend reaches from 0 to 16383, two semitones each way.
constexpr int bendCentre = 8192;
constexpr int bendMaximum = 16383;

/// The synthesiser cuts a pitch to whole cents. Half a cent (8192 / 400 steps) put on top turns
/// the cut into rounding, so a tone is never further off than half a cent.
constexpr int halfCent = 20;

/// The 14-bit bend of a message's two data bytes, raised by `offset` steps.
constexpr int bendValue(int data1, int data2, int offset) {
    return std::clamp((data2 & 0x7f) * 128 + (data1 & 0x7f) + offset, 0, bendMaximum);
}

}  // namespace synth
