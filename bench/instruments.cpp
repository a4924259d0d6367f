#include "base/i16.h"
#include "core/host.h"
#include "core/katalog.h"
#include "core/zustand.h"
#include "fontfile/font_files.h"
#include "form/virtual_time.h"
#include "rehearsal/scripted_dialogs.h"
#include "rehearsal/temp_folder.h"
#include "sound/phrase.h"
#include "soundfont/digest.h"
#include "soundfont/measured_font.h"
#include "soundfont/meter.h"
#include "synth/engine.h"
#include "synth/mail.h"
#include "synth/synth_output.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <optional>
#include <span>
#include <string>
#include <vector>

// What the instruments of soundfonts are worth: every one plays the scale of C major from its
// lowest notes, from the middle and to the highest, in every tuning, as the drill plays it (tuning,
// bends, queue, output, its file), once as it is in the font and once corrected. What is heard is
// measured against what was meant.

namespace {

using Clock = std::chrono::steady_clock;
using soundfont::FontTable;
using soundfont::Instrument;
using soundfont::Tone;

constexpr int rate = synth::Engine::sampleRate;
constexpr int noteMs = 1500;
constexpr int beforehand = 5;  ///< ms before a note from which on it is listened to
constexpr std::array starts{36, 60, 84};
constexpr std::array major{0, 2, 4, 5, 7, 9, 11, 12};
/// From here on the instruments are percussion and effects.
constexpr int lastPitched = 103;

double seconds(Clock::time_point since) {
    return std::chrono::duration<double>(Clock::now() - since).count();
}

std::vector<float> samplesOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    in.ignore(44);
    std::vector<float> samples;
    for (std::array<std::int16_t, 2> frame{};
         in.read(reinterpret_cast<char*>(frame.data()), sizeof frame);)
        samples.push_back(static_cast<float>(frame[0] + frame[1]) / 65536);
    return samples;
}

/// A note as it was meant and as it was heard.
struct Heard {
    int key;
    double expected;  ///< Hz
    Tone tone;
};

class Player {
  public:
    explicit Player(std::string font) : font_(std::move(font)) {}

    /// @param tables where the font's table is, or nothing to leave the instruments as they are.
    std::vector<Heard> play(int program, int tuning,
                            const std::optional<soundfont::TablePlaces>& tables) const {
        const std::string file = folder_.path() / "sound.wav";
        const std::vector<sound::PhraseNote> notes = notesOf(tuning);
        perform(program, tuning, tables, notes, file);
        const std::vector<float> samples = samplesOf(file);
        std::vector<Heard> heard;
        for (std::size_t i = 0; i < notes.size(); ++i) {
            constexpr int framesPerMs = rate / 1000;
            const std::size_t from =
                (i * noteMs + synth::Engine::leadIn - beforehand) * rate / 1000;
            const std::size_t length = noteMs * 9 / 10 * framesPerMs;
            const int key = notes[i].note;
            const double cents = notes[i].correction * 200.0 / 64;
            const double hz = 440 * std::exp2((key - 69 + cents / 100) / 12);
            heard.push_back({key, hz, soundfont::toneOf({&samples.at(from), length}, rate, hz)});
        }
        return heard;
    }

  private:
    static std::vector<sound::PhraseNote> notesOf(int tuning) {
        std::vector<sound::PhraseNote> notes;
        for (const int start : starts)
            for (int degree = 0; degree < std::ssize(major); ++degree) {
                const int key = start + major[static_cast<std::size_t>(degree)];
                notes.push_back({key, degree,
                                 core::katalog::tuningCorrection(tuning, 0, degree % 7, key % 12)});
            }
        return notes;
    }

    void perform(int program, int tuning, const std::optional<soundfont::TablePlaces>& tables,
                 const std::vector<sound::PhraseNote>& notes, const std::string& file) const {
        synth::test::Mail mail;
        form::VirtualTime loop;
        rehearsal::ScriptedDialogs dialogs;
        core::Zustand state;
        const core::Host host({}, dialogs, state);
        const auto output = synth::makeSynthOutput({.driver = "file",
                                                    .audioFile = file,
                                                    .soundfont = font_,
                                                    .tables = tables,
                                                    .paced = false,
                                                    .openDevice = {}},
                                                   mail.post());
        bool ended = false;
        sound::Midi midi(loop, host);
        midi.MidiInit(*output);
        output->queueEmpty = [&] { ended = true; };
        base::FixedArray<base::i16, 9> patch;
        patch.fill(program);
        midi.setInstruments(patch);
        sound::queuePhrase(midi, notes, {.noteDuration = noteMs, .stimmung = tuning});
        output->start();
        mail.runUntil([&] { return ended; });
    }

    std::string font_;
    rehearsal::TempFolder folder_;
};

/// Sizes of what is off, to be told by their middle and the worst.
struct Sizes {
    std::vector<double> all;
    void add(double value) { all.push_back(std::fabs(value)); }
    std::string told(const char* unit) {
        if (all.empty()) return "-";
        std::ranges::sort(all);
        const auto part = [&](double share) {
            return all[static_cast<std::size_t>(share * double(all.size() - 1))];
        };
        std::array<char, 80> text{};
        std::snprintf(text.data(), text.size(), "%.1f, %.1f, %.1f %s", part(0.5), part(0.99),
                      all.back(), unit);
        return text.data();
    }
};

/// One way of playing, over all instruments.
struct Result {
    Sizes pitch, attack, spread;
    int even = 0, scales = 0;
};

void listen(const std::vector<Heard>& heard, const Instrument& instrument, Result& result) {
    for (std::size_t first = 0; first < heard.size(); first += major.size()) {
        const std::span scale(&heard[first], major.size());
        double loudest = -200, softest = 200;
        for (const Heard& note : scale) {
            const Tone& known = instrument.at(note.key);
            if (!known.sounds()) continue;
            loudest = std::max(loudest, note.tone.level);
            softest = std::min(softest, note.tone.level);
            if (known.hasPitch() && std::fabs(known.pitch.cents) <= 150)
                result.pitch.add(note.tone.pitch.cents);
            // Where the note before has not died away yet, the beginning cannot be told.
            const bool told = instrument.lag(note.key) == known.attack && known.attack > 0;
            if (told && note.tone.attack > 0) result.attack.add(note.tone.attack - beforehand);
        }
        if (instrument.fitness(scale.front().key, scale.back().key) != soundfont::Fitness::Fit)
            continue;
        ++result.scales;
        result.even += loudest - softest <= 3 ? 1 : 0;
        result.spread.add(loudest - softest);
    }
}

void tell(const std::string& font) {
    const rehearsal::TempFolder tables;
    soundfont::TablePlaces places{{}, tables.path(), {}};
    const auto begin = Clock::now();
    const auto file = soundfont::measureWhole(font, tables.path(), [](int) {});
    const double time = seconds(begin);
    const auto table =
        *FontTable::load(file, {soundfont::digestOfFile(font), soundfont::Meter::version()});

    std::printf("\n%s: all measured in %.1f s\n\n", font.c_str(), time);
    std::printf(
        "| notes | fit | partly silent | unclear | other octave | missing "
        "|\n|---|---|---|---|---|---|\n");
    for (const auto& [lowest, highest] : {std::pair{36, 96}, {48, 72}, {48, 84}, {60, 96}}) {
        std::array<int, 5> count{};
        for (int program = 0; program < soundfont::programCount; ++program)
            ++count.at(static_cast<std::size_t>(table.find(program)->fitness(lowest, highest)));
        std::printf("| %d to %d | %d | %d | %d | %d | %d |\n", lowest, highest, count[0], count[1],
                    count[2], count[3], count[4]);
    }
    std::printf(
        "\n| tuning | | pitch: median, 99 %%, worst | attack | level in an octave | within 3 dB "
        "|\n|---|---|---|---|---|---|\n");
    const Player player(font);
    for (int tuning = 0; tuning < 3; ++tuning)
        for (const bool corrected : {false, true}) {
            Result result;
            for (int program = 0; program <= lastPitched; ++program)
                listen(
                    player.play(program, tuning, corrected ? std::optional(places) : std::nullopt),
                    *table.find(program), result);
            constexpr std::array names{"equal", "Pythagorean", "meantone"};
            std::printf("| %s | %s | %s | %s | %s | %d of %d |\n", names.at(std::size_t(tuning)),
                        corrected ? "corrected" : "as it is", result.pitch.told("cents").c_str(),
                        result.attack.told("ms").c_str(), result.spread.told("dB").c_str(),
                        result.even, result.scales);
            std::fflush(stdout);
        }
}

}  // namespace

/// `instruments [FONT...]`, by default the fonts that are installed.
int main(int argc, char** argv) {
    std::vector<std::string> fonts(argv + 1, argv + argc);
    if (fonts.empty())
        for (const auto& font : fontfile::installedFonts()) fonts.push_back(font.string());
    for (const std::string& font : fonts) tell(font);
}
