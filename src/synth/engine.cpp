#include "synth/engine.h"

#include "soundfont/fluid_error.h"
#include "soundfont/fluid_settings.h"
#include "synth/bend.h"

#include <algorithm>
#include <utility>

namespace synth {

namespace {

constexpr int block = 64;
constexpr int allChannels = -1;
/// A queued message is heard with the block after the one in which it falls due, 1 to 2.5 ms late:
/// in the middle so much earlier it is queued.
constexpr double blockDelay = 1.75;

}  // namespace

Engine::Engine(Mailbox& mailbox, std::function<void(std::uint32_t)> ended, Instruments instruments)
    : mailbox_(mailbox),
      settings_(soundfont::makeSettings()),
      synth_(soundfont::made(new_fluid_synth(settings_.get()), "a synthesiser")),
      sequencer_(soundfont::made(new_fluid_sequencer2(0), "a sequencer")),
      tuning_(synth_.get(), std::move(instruments)),
      queue_(sequencer_.get(), fluid_sequencer_register_fluidsynth(sequencer_.get(), synth_.get()),
             tunedBend, std::move(ended)),
      level_(sampleRate) {}

bool Engine::loadFont(const std::string& file) {
    if (fluid_synth_sfload(synth_.get(), file.c_str(), 0) == FLUID_FAILED) return false;
    resetChannels();
    return true;
}

void Engine::unloadFont() {
    while (fluid_sfont_t* font = fluid_synth_get_sfont(synth_.get(), 0))
        if (fluid_synth_sfunload(synth_.get(), fluid_sfont_get_id(font), 0) == FLUID_FAILED) return;
}

/// Every channel has the first instrument. The library's own reset would read a drum kit into the
/// memory, of ten megabytes and more, which nothing here plays.
void Engine::resetChannels() {
    constexpr int allControllersOff = 121;
    for (int channel = 0; channel < fluid_synth_count_midi_channels(synth_.get()); ++channel) {
        fluid_synth_cc(synth_.get(), channel, allControllersOff, 0);
        fluid_synth_set_channel_type(synth_.get(), channel, CHANNEL_TYPE_MELODIC);
        fluid_synth_bank_select(synth_.get(), channel, 0);
        fluid_synth_program_change(synth_.get(), channel, 0);
    }
    tuning_.reset();
}

bool Engine::hasFont() const { return fluid_synth_sfcount(synth_.get()) > 0; }

void Engine::render(float* left, float* right, int frames) {
    for (int done = 0; done < frames; done += block) {
        const int count = std::min(block, frames - done);
        takeCommands();
        fluid_synth_write_float(synth_.get(), count, left + done, 0, 1, right + done, 0, 1);
        level_.apply(left + done, right + done, count);
        busy_ = queue_.playing() || afterFade_ || voices() > 0;
    }
    frames_ += static_cast<std::uint64_t>(frames);
}

void Engine::takeCommands() {
    if (afterFade_) {
        if (!level_.closed()) return;
        perform(*afterFade_);
        afterFade_.reset();
        level_.open();
    }
    while (auto command = mailbox_.take()) {
        busy_ = true;
        if (command->kind == Command::Kind::Send) {
            queue_.send(command->event);
            tuning_.follow(command->event);
            continue;
        }
        queue_.cancel();
        if (voices() > 0) {
            level_.fadeOut();
            afterFade_ = std::move(command);
            return;
        }
        perform(*command);
    }
}

void Engine::perform(Command& command) {
    silence(command.kind);
    if (command.kind != Command::Kind::Play) return;
    tuning_.tune();
    for (sound::MidiEvent& event : command.events) tuning_.prepare(event, leadIn - blockDelay);
    queue_.play(std::move(command.events), 0, command.run);
}

void Engine::silence(Command::Kind kind) {
    fluid_synth_all_sounds_off(synth_.get(), allChannels);
    if (kind == Command::Kind::Reset) resetChannels();
    if (kind == Command::Kind::Play) return;
    for (int channel = 0; channel < fluid_synth_count_midi_channels(synth_.get()); ++channel)
        fluid_synth_pitch_bend(synth_.get(), channel, bendCentre);
}

int Engine::voices() const { return fluid_synth_get_active_voice_count(synth_.get()); }

}  // namespace synth
