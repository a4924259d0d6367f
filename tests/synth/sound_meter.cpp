#include "synth/sound_meter.h"

#include "soundfont/meter.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <map>
#include <numbers>

namespace synth::test {

namespace {

constexpr double rate = Engine::sampleRate;
constexpr double framesPerMs = rate / 1000;
constexpr double centsPerStep = 200.0 / 64;
constexpr std::array<int, 8> major{0, 2, 4, 5, 7, 9, 11, 12};

double hertz(int key) { return 440.0 * std::exp2((key - 69) / 12.0); }

/// First sample from `begin` on of two milliseconds that pass a tenth of the loudest up to `end`.
double heardFrom(const std::vector<float>& sound, std::size_t begin, std::size_t end) {
    constexpr std::size_t window = 88;
    const auto level = [&](std::size_t at) {
        double energy = 0;
        for (std::size_t i = at; i < at + window; ++i) energy += double(sound[i]) * sound[i];
        return std::sqrt(energy);
    };
    double loudest = 0;
    for (std::size_t at = begin; at + window < end; at += window / 4)
        loudest = std::max(loudest, level(at));
    for (std::size_t at = begin; at + window < end; ++at)
        if (level(at) >= loudest / 10) return double(at);
    return double(end);
}

}  // namespace

const std::array<Tuning, 5> tunings{{
    {"equal", false, {}},
    {"equal, detuned up", false, {15, 15, 15, 15, 15, 15, 15, 15}},
    {"equal, detuned down", false, {-13, -13, -13, -13, -13, -13, -13, -13}},
    {"Pythagorean", true, {-2, -1, 1, -3, -1, 0, 1, -2}},
    {"meantone", true, {5, 6, 1, 4, 6, 0, 1, 5}},
}};

std::shared_ptr<const soundfont::Instrument> instrumentOf(int program) {
    static std::map<int, std::shared_ptr<const soundfont::Instrument>> known;
    auto& found = known[program];
    if (!found)
        found = std::make_shared<const soundfont::Instrument>(
            *soundfont::Meter(measuredFont).measure(program, {}));
    return found;
}

Rendering::Rendering(bool font)
    : engine(
          mailbox, [this](std::uint32_t run) { ended.push_back(run); }, instrumentOf) {
    if (font) engine.loadFont(measuredFont);
}

void Rendering::send(int status, int data1, int data2) {
    put({.kind = Command::Kind::Send, .event = {.status = status, .data1 = data1, .data2 = data2}});
}

void Rendering::play(std::vector<sound::MidiEvent> events, std::uint32_t run) {
    put({.kind = Command::Kind::Play, .events = std::move(events), .run = run});
}

void Rendering::render(int milliseconds) {
    const int frames = static_cast<int>(milliseconds * framesPerMs) / 64 * 64 + 64;
    std::vector<float> right(static_cast<std::size_t>(frames));
    const std::size_t begin = sound.size();
    sound.resize(begin + right.size());
    engine.render(sound.data() + begin, right.data(), frames);
}

float Rendering::peak(double beginMs, double lengthMs) const {
    float most = 0;
    const double end = std::min((beginMs + lengthMs) * framesPerMs, double(sound.size()));
    for (auto i = static_cast<std::size_t>(beginMs * framesPerMs); double(i) < end; ++i)
        most = std::max(most, std::fabs(sound[i]));
    return most;
}

std::vector<sound::MidiEvent> note(int channel, int key, int start, int length, int velocity) {
    return {{.status = 0x90 + channel, .data1 = key, .data2 = velocity, .time = start},
            {.status = 0x80 + channel, .data1 = key, .data2 = velocity, .time = start + length}};
}

void append(std::vector<sound::MidiEvent>& to, const std::vector<sound::MidiEvent>& more) {
    to.insert(to.end(), more.begin(), more.end());
}

std::size_t onset(const std::vector<float>& sound, std::size_t begin, float threshold) {
    const auto found = std::find_if(sound.begin() + static_cast<std::ptrdiff_t>(begin), sound.end(),
                                    [=](float s) { return std::fabs(s) > threshold; });
    return static_cast<std::size_t>(found - sound.begin());
}

double frequency(const std::vector<float>& sound, std::size_t begin, std::size_t length,
                 double nominal) {
    constexpr std::size_t window = 2048;
    constexpr std::size_t hop = 256;
    const double turn = 2 * std::numbers::pi * nominal / rate;
    std::vector<double> phases;
    for (std::size_t at = begin; at + window <= begin + length; at += hop) {
        std::complex<double> sum;
        for (std::size_t i = 0; i < window; ++i) {
            const double hann = 1 - std::cos(2 * std::numbers::pi * double(i) / window);
            sum += double(sound[at + i]) * hann * std::polar(1.0, -turn * double(at + i));
        }
        double phase = std::arg(sum);
        if (!phases.empty())
            phase +=
                2 * std::numbers::pi * std::round((phases.back() - phase) / (2 * std::numbers::pi));
        phases.push_back(phase);
    }
    const double middle = double(phases.size() - 1) / 2;
    double product = 0;
    double square = 0;
    for (std::size_t i = 0; i < phases.size(); ++i) {
        product += (double(i) - middle) * phases[i];
        square += (double(i) - middle) * (double(i) - middle);
    }
    return nominal + product / square / hop * rate / (2 * std::numbers::pi);
}

std::vector<Deviation> measure(const Tuning& tuning, int program, int firstKey, int noteMs) {
    Rendering scale;
    std::vector<sound::MidiEvent> events;
    for (int i = 0; i < 8; ++i) {
        const auto degree = static_cast<std::size_t>(i);
        const int channel = tuning.ownChannels ? i + 1 : 0;
        scale.send(0xc0 + channel, program, 0);
        if (tuning.steps[degree] != 0) scale.send(0xe0 + channel, 0, 64 + tuning.steps[degree]);
        append(events, note(channel, firstKey + major[degree], i * noteMs, noteMs * 9 / 10));
    }
    scale.play(events);
    scale.render(noteMs * 8 + 500);

    std::vector<Deviation> deviations;
    for (int i = 0; i < 8; ++i) {
        const auto degree = static_cast<std::size_t>(i);
        const double nominal = hertz(firstKey + major[degree]);
        const double planned = (i * noteMs + int(Engine::leadIn)) * framesPerMs;
        const auto at = [&](double ms) {
            return static_cast<std::size_t>(planned + ms * framesPerMs);
        };
        const double begun = heardFrom(scale.sound, at(-15), at(0.8 * noteMs));
        const double hz =
            frequency(scale.sound, at(0.3 * noteMs), at(0.8 * noteMs) - at(0.3 * noteMs), nominal);
        deviations.push_back(
            {(begun - planned) / framesPerMs,
             1200 * std::log2(hz / nominal) - tuning.steps[degree] * centsPerStep});
    }
    return deviations;
}

}  // namespace synth::test
