#include "soundfont/tone.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace soundfont {

namespace {

constexpr double unheard = -120;  ///< dB
constexpr double heard = 0.1;     ///< of the peak: from there on a note counts as begun
constexpr double settled = 0.1;   ///< s from the attack to where the pitch is taken
constexpr double longest = 0.2;   ///< s over which the level is taken

double decibels(double amplitude) {
    return std::max(unheard, 20 * std::log10(std::max(amplitude, 1e-9)));
}

/// Root mean square of every two milliseconds, a quarter of one apart.
struct Envelope {
    Envelope(std::span<const float> sound, double rate)
        : step(static_cast<std::size_t>(rate / 4000)) {
        const std::size_t window = 8 * step;
        std::vector<double> energy{0};
        for (const float s : sound) energy.push_back(energy.back() + double(s) * double(s));
        for (std::size_t at = 0; at + window < energy.size(); at += step)
            levels.push_back(std::sqrt((energy[at + window] - energy[at]) / double(window)));
    }

    /// The first that reaches a level.
    std::size_t reaches(double level) const {
        const auto found = std::ranges::find_if(levels, [=](double l) { return l >= level; });
        return static_cast<std::size_t>(found - levels.begin());
    }
    double ms(std::size_t index, double rate) const { return 1000 * double(index * step) / rate; }

    std::size_t step;
    std::vector<double> levels;
};

}  // namespace

Tone toneOf(std::span<const float> sound, double rate, double expected) {
    Tone tone;
    const Envelope envelope(sound, rate);
    if (envelope.levels.empty()) return tone;
    const double peak = std::ranges::max(envelope.levels);
    tone.level = decibels(peak);
    if (!tone.sounds()) return tone;
    const std::size_t begin = envelope.reaches(heard * peak);
    tone.attack = envelope.ms(begin, rate);
    tone.rise = envelope.ms(envelope.reaches(peak / 2) - begin, rate);
    const auto rest = sound.subspan(begin * envelope.step);
    double energy = 0;
    const auto head = rest.first(std::min(rest.size(), static_cast<std::size_t>(longest * rate)));
    for (const float s : head) energy += double(s) * double(s);
    tone.level = decibels(std::sqrt(energy / double(head.size())));
    if (const auto skipped = static_cast<std::size_t>(settled * rate); skipped < rest.size())
        tone.pitch = pitchOf(rest.subspan(skipped), rate, expected);
    if (tone.hasPitch()) tone.octave = octaveOf(head, rate, expected);
    return tone;
}

}  // namespace soundfont
