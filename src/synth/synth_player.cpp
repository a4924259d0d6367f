#include "synth/synth_player.h"

#include <malloc.h>

#include <array>
#include <system_error>
#include <utility>

namespace synth {

using namespace std::chrono_literals;
using sound::SoundProblem;

namespace {

/// Frames of one pull without a device.
constexpr int period = 512;
constexpr auto periodTime =
    std::chrono::nanoseconds(std::int64_t{1'000'000'000} * period / Engine::sampleRate);

/// How often an open device is looked at, and how long it may not pull before it counts as lost.
constexpr auto watchEvery = 250ms;
constexpr auto lostAfter = 750ms;
/// How long the device stays open after the last sound: the next task finds it warm, and a drill
/// that waits for its user costs nothing.
constexpr auto linger = 1500ms;
/// How long a sound may be held up by what it is good to know before it.
constexpr auto unnoticed = 150ms;
/// What may still lie in the device's buffers.
constexpr auto deviceBuffer = 60ms;

}  // namespace

SynthPlayer::SynthPlayer(SynthOptions options, Reports reports)
    : options_(std::move(options)),
      reports_(std::move(reports)),
      engine_(mailbox_, reports_.ended,
              [this](int program) {
                  const auto known = font();
                  return known ? known->find(program) : nullptr;
              }),
      thread_([this] { run(); }) {}

SynthPlayer::~SynthPlayer() {
    mailbox_.put({.kind = Command::Kind::Silence});
    mailbox_.quit();
}

/// A task whose instrument is not known yet waits for that a little.
void SynthPlayer::put(Command command) {
    if (command.kind == Command::Kind::Reset) reopened_ = true;
    const bool chooses = (command.event.status & 0xf0) == 0xc0;
    if (chooses) program_ = command.event.data1 & 0x7f;
    if (const auto measured = font()) {
        if (chooses) measured->find(program_);
        if (command.kind == Command::Kind::Play) measured->wait(program_, unnoticed);
    }
    mailbox_.put(std::move(command));
}

sound::Fitness SynthPlayer::fitness(int program, int lowest, int highest) const {
    const auto measured = font();
    const auto instrument = measured ? measured->known(program) : nullptr;
    if (!instrument) return sound::Fitness::Unknown;
    switch (instrument->fitness(lowest, highest)) {
        case soundfont::Fitness::Fit:
            return sound::Fitness::Fit;
        case soundfont::Fitness::PartlySilent:
            return sound::Fitness::PartlySilent;
        case soundfont::Fitness::UnclearPitch:
            return sound::Fitness::UnclearPitch;
        case soundfont::Fitness::OtherOctave:
            return sound::Fitness::OtherOctave;
        case soundfont::Fitness::Missing:
            return sound::Fitness::Missing;
    }
    return sound::Fitness::Unknown;
}

void SynthPlayer::setVolume(int left, int right) {
    constexpr float full = sound::MidiOutput::maxVolume;
    engine_.setVolume(static_cast<float>(left) / full, static_cast<float>(right) / full);
}

void SynthPlayer::run() {
    while (true) {
        if (!engine_.busy()) mailbox_.wait();
        if (mailbox_.quitting()) return;
        reopened_ = false;
        findFont();
        serve();
    }
}

/// A file that was replaced is loaded anew: its samples are read when they are needed, and would
/// come from other places.
void SynthPlayer::findFont() {
    if (engine_.hasFont() && !fontChanged()) return;
    engine_.unloadFont();
    measure("");
    fontFile_ = findSoundfont(options_.soundfont);
    fontMark_ = fontfile::markOf(fontFile_);
    if (fontFile_.empty() || !engine_.loadFont(fontFile_)) return;
    measure(fontFile_);
#ifdef __GLIBC__
    malloc_trim(0);  // parsing leaves a tenth of the font's size behind as free memory
#endif
}

/// @param font empty for none.
void SynthPlayer::measure(const std::string& font) {
    if (!options_.tables) return;
    std::shared_ptr<soundfont::MeasuredFont> last;
    {
        // It may tell at once what it knows: whoever asks then must find it.
        const std::lock_guard lock(fontMutex_);
        last = std::move(font_);
        if (!font.empty())
            font_ = std::make_shared<soundfont::MeasuredFont>(font, *options_.tables,
                                                              reports_.fitnessKnown);
    }
    if (!font.empty()) this->font()->wait(program_, unnoticed);
}

std::shared_ptr<soundfont::MeasuredFont> SynthPlayer::font() const {
    const std::lock_guard lock(fontMutex_);
    return font_;
}

void SynthPlayer::serve() {
    if (options_.driver == "file") return pullToFile();
    if (auto device = openDevice()) {
        tell(SoundProblem::None);
        if (watch()) return;
        device.reset();
        reopened_ = false;
        tell(SoundProblem::DeviceLost);
    } else {
        tell(SoundProblem::NoAudioDevice);
    }
    pull(nullptr);
}

std::unique_ptr<AudioDevice> SynthPlayer::openDevice() {
    if (options_.driver == "none") return nullptr;
    const OpenDevice fluid = [driver = options_.driver](Pull pull) {
        return openFluidDevice(driver, Engine::sampleRate, std::move(pull));
    };
    return guard_.open(
        options_.openDevice ? options_.openDevice : fluid,
        [this](float* left, float* right, int frames) { engine_.render(left, right, frames); });
}

/// Waits until nothing has sounded for a while. False when the device stopped pulling.
bool SynthPlayer::watch() {
    auto frames = engine_.frames();
    auto pulled = Clock::now();
    auto sounded = pulled;
    while (!mailbox_.quitting()) {
        mailbox_.pause(Clock::now() + watchEvery);
        const auto now = Clock::now();
        if (std::exchange(frames, engine_.frames()) != frames)
            pulled = now;
        else if (now - pulled > lostAfter)
            return false;
        if (!idle())
            sounded = now;
        else if (now - sounded > linger || fontChanged())
            return true;
    }
    playOut();
    return true;
}

/// Lets a note that sounds at the end of the program fade before the device goes.
void SynthPlayer::playOut() {
    if (!engine_.busy()) return;
    const auto limit = Clock::now() + lostAfter;
    while (!idle() && Clock::now() < limit) std::this_thread::sleep_for(2ms);
    std::this_thread::sleep_for(deviceBuffer);
}

void SynthPlayer::pullToFile() {
    try {
        if (!file_) file_.emplace(options_.audioFile, Engine::sampleRate);
        tell(SoundProblem::None);
        pull(&*file_);
    } catch (const std::system_error&) {
        file_.reset();
        tell(SoundProblem::NoAudioDevice);
        pull(nullptr);
    }
}

/// Renders at the clock's pace until nothing sounds, into `file` or into nothing. A reset ends the
/// playing into nothing: there may be a device again.
void SynthPlayer::pull(WavFile* file) {
    std::array<float, period> left{};
    std::array<float, period> right{};
    auto next = Clock::now();
    while (!idle() && (file || !(mailbox_.quitting() || reopened_))) {
        engine_.render(left.data(), right.data(), period);
        if (file) file->write(left.data(), right.data(), period);
        if (!options_.paced) continue;
        next = std::max(next + periodTime, Clock::now() - lostAfter);
        mailbox_.pause(next);
    }
}

void SynthPlayer::tell(SoundProblem device) {
    const auto problem = engine_.hasFont() ? device : SoundProblem::NoSoundfont;
    if (problem_.exchange(problem) != problem) reports_.problemChanged();
}

}  // namespace synth
