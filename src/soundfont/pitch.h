#pragma once
#include <span>

namespace soundfont {

/// Where the pitch of a tone lies.
struct Pitch {
    double cents = 0;        ///< above the one that was expected
    double uncertainty = 0;  ///< standard error of that, in cents
};

/// The pitch of a sounding tone near an expected one: that of the lowest of its first three
/// partials that is strong and sure; of several that are not, their mean. Where other strong ones
/// lie farther off than those of a stiff string would, as with a bell or with voices that beat, the
/// pitch is as uncertain as they differ.
///
/// A partial is brought down to rest: multiplied with a turn at the frequency that is expected of
/// it and averaged under a Hann window of four periods of the tone, which lets no neighbour
/// through. What is left turns as slowly as the partial is off, so the slope of its phase over time
/// is the error, exact to hundredths of a cent for a tone that is steady. The slopes of five
/// stretches of the tone are compared: a vibrato, the beating of two voices, or a noise make them
/// differ, and how much they do is the uncertainty.
///
/// @param sound one tone alone, from after its attack on.
/// @param rate samples a second. @param expected frequency in Hz; the tone may be a quarter tone
/// off.
/// @return an uncertainty of at least `noPitch` for what is no tone, or too short to tell.
Pitch pitchOf(std::span<const float> sound, double rate, double expected);

inline constexpr double noPitch = 100;

/// Octaves by which a tone lies lower or higher than it is expected: -1 for one that has strong
/// partials half-way between those of the tone that is expected, 1 for one that lacks every other.
int octaveOf(std::span<const float> sound, double rate, double expected);

}  // namespace soundfont
