#include "soundfont/pitch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>
#include <numeric>
#include <vector>

namespace soundfont {

namespace {

constexpr double turn = 2 * std::numbers::pi;
constexpr int mostPartials = 3;   ///< partials that are looked at
constexpr double highest = 6000;  ///< Hz; above, samples hold more noise than tone
constexpr int stretches = 5;
constexpr std::size_t framesOfStretch = 6;

double centsOf(double ratio) { return 1200 * std::log2(ratio); }

/// What is left of a partial when it is brought to rest, at equal distances of time.
struct Track {
    std::vector<std::complex<double>> frames;
    double seconds;  ///< from frame to frame
};

/// Sum of products, in lanes that a processor adds at once.
float product(const float* a, const float* b, std::size_t count) {
    constexpr std::size_t lanes = 8;
    std::array<float, lanes> sums{};
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        for (std::size_t lane = 0; lane < lanes; ++lane) sums[lane] += a[i + lane] * b[i + lane];
    for (; i < count; ++i) sums[0] += a[i] * b[i];
    return std::accumulate(sums.begin(), sums.end(), 0.0F);
}

Track broughtToRest(std::span<const float> sound, double rate, double frequency, double tone) {
    const auto window = static_cast<std::size_t>(4 * rate / tone);
    const std::size_t hop = window / 4;
    const double turned = turn * frequency / rate;
    std::vector<float> real(window), imaginary(window);
    for (std::size_t i = 0; i < window; ++i) {
        const std::complex<double> turning = std::polar(
            1 - std::cos(turn * (double(i) + 0.5) / double(window)), -turned * double(i));
        real[i] = static_cast<float>(turning.real());
        imaginary[i] = static_cast<float>(turning.imag());
    }
    Track track{{}, double(hop) / rate};
    for (std::size_t at = 0; at + window <= sound.size(); at += hop)
        track.frames.push_back(std::complex<double>(product(&sound[at], real.data(), window),
                                                    product(&sound[at], imaginary.data(), window)) /
                               double(window) * std::polar(1.0, -turned * double(at)));
    return track;
}

/// A number with a weight, as parts of a mean.
struct Weighted {
    double value, weight;
};

/// The partial's error over some of its frames: slope of its phase, frames weighted by their
/// energy.
Weighted slope(std::span<const std::complex<double>> frames, double seconds, double frequency) {
    double energy = 0, time = 0, phase = 0, product = 0, square = 0;
    double unwrapped = std::arg(frames.front());
    std::vector<double> phases;
    for (const auto& frame : frames) {
        unwrapped += std::remainder(std::arg(frame) - unwrapped, turn);
        phases.push_back(unwrapped);
    }
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const double weight = std::norm(frames[i]);
        energy += weight;
        time += weight * double(i);
        phase += weight * phases[i];
    }
    if (energy == 0) return {0, 0};
    time /= energy;
    phase /= energy;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const double weight = std::norm(frames[i]);
        product += weight * (double(i) - time) * (phases[i] - phase);
        square += weight * (double(i) - time) * (double(i) - time);
    }
    if (square == 0) return {0, 0};
    const double found = frequency + product / square / seconds / turn;
    return {found <= 0 ? 0 : centsOf(found / frequency), energy};
}

/// Standard error of the mean, as if the parts were so many as their weights are alike.
double standardError(std::span<const Weighted> parts) {
    double weight = 0, value = 0, square = 0, squares = 0;
    for (const Weighted& part : parts) {
        weight += part.weight;
        value += part.weight * part.value;
        squares += part.weight * part.weight;
    }
    if (weight == 0) return noPitch;
    value /= weight;
    for (const Weighted& part : parts)
        square += part.weight * (part.value - value) * (part.value - value);
    const double alike = weight * weight / squares;
    return alike <= 1.01 ? noPitch : std::sqrt(square / weight / (alike - 1));
}

/// One partial of the tone.
struct Partial {
    int number = 1;
    Pitch pitch;
    double energy = 0;
};

Partial partialOf(std::span<const float> sound, double rate, double expected, int number) {
    const double frequency = number * expected;
    const Track track = broughtToRest(sound, rate, frequency, expected);
    const std::size_t count = track.frames.size();
    if (count < framesOfStretch) return {number, {0, noPitch}, 0};
    const std::size_t length = std::max(framesOfStretch, count / stretches);
    std::vector<Weighted> parts;
    for (std::size_t at = 0; at + length <= count; at += length)
        parts.push_back(slope({track.frames.data() + at, length}, track.seconds, frequency));
    const Weighted whole = slope(track.frames, track.seconds, frequency);
    return {number, {whole.value, standardError(parts)}, whole.weight};
}

/// Cents by which two partials of one tone may differ: those of a stiff string lie the higher the
/// square of their number.
double stretched(int number, int other) { return 2.0 * std::abs(number * number - other * other); }

/// The mean of partials of which none is sure. What they disagree by is not known.
Pitch together(std::span<const Partial> partials) {
    double weight = 0, mean = 0, scatter = 0;
    for (const Partial& partial : partials) {
        const double own = 1 / (partial.pitch.uncertainty * partial.pitch.uncertainty);
        weight += own;
        mean += own * partial.pitch.cents;
    }
    mean /= weight;
    for (const Partial& partial : partials)
        scatter += (partial.pitch.cents - mean) * (partial.pitch.cents - mean) /
                   (partial.pitch.uncertainty * partial.pitch.uncertainty);
    return {mean, std::sqrt(std::max(1.0, scatter) / weight)};
}

}  // namespace

Pitch pitchOf(std::span<const float> sound, double rate, double expected) {
    constexpr double sure = 1;      // cents
    constexpr double strong = 0.1;  // of the energy of the strongest
    std::vector<Partial> partials;
    for (int number = 1; number <= mostPartials && (number == 1 || number * expected < highest);
         ++number)
        partials.push_back(partialOf(sound, rate, expected, number));
    const double strongest = std::ranges::max(partials, {}, &Partial::energy).energy;
    std::erase_if(partials, [&](const Partial& partial) {
        return partial.energy < strong * strongest || partial.pitch.uncertainty >= noPitch;
    });
    if (partials.empty()) return {0, noPitch};
    const auto found = std::ranges::find_if(
        partials, [](const Partial& partial) { return partial.pitch.uncertainty <= sure; });
    if (found == partials.end()) return together(partials);
    Pitch pitch = found->pitch;
    for (const Partial& other : partials) {
        const double apart = std::abs(other.pitch.cents - pitch.cents);
        if (apart > stretched(found->number, other.number) + 2 * other.pitch.uncertainty)
            pitch.uncertainty = std::max(pitch.uncertainty, apart);
    }
    return pitch;
}

int octaveOf(std::span<const float> sound, double rate, double expected) {
    constexpr double strong = 0.1;   // of the energy of what is expected
    constexpr double absent = 1e-3;  // of the energy of the octave
    const auto energy = [&](double partial) {
        double sum = 0;
        for (const auto& frame : broughtToRest(sound, rate, partial * expected, expected).frames)
            sum += std::norm(frame);
        return sum;
    };
    const double odd = energy(1) + energy(3), even = energy(2) + energy(4);
    if (energy(0.5) + energy(1.5) > strong * (odd + even)) return -1;
    return odd < absent * even ? 1 : 0;
}

}  // namespace soundfont
