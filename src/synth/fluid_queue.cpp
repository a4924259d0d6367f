#include "synth/fluid_queue.h"

#include "soundfont/fluid_error.h"
#include "synth/bend.h"

#include <algorithm>
#include <array>

namespace synth {

namespace {

constexpr int everything = -1;

int message(const sound::MidiEvent& event) { return event.status & 0xf0; }

bool isOff(const sound::MidiEvent& event) {
    return message(event) == 0x80 || (message(event) == 0x90 && event.data2 == 0);
}

bool isOn(const sound::MidiEvent& event) { return message(event) == 0x90 && event.data2 != 0; }

/// Sorts by time and gives a note that would end as it begins one millisecond: the sequencer
/// plays ends before beginnings of the same tick, and such a note would never end.
void arrange(std::vector<sound::MidiEvent>& events) {
    for (auto& event : events) event.time = std::max(event.time, 0);
    std::ranges::stable_sort(events, {}, &sound::MidiEvent::time);
    std::array<std::array<std::int32_t, 128>, 16> begun;
    for (auto& channel : begun) channel.fill(-1);
    for (auto& event : events) {
        auto& begin = begun.at(event.status & 0x0f).at(event.data1 & 0x7f);
        if (isOn(event)) begin = event.time;
        if (isOff(event) && begin == event.time) ++event.time;
    }
}

}  // namespace

FluidQueue::FluidQueue(fluid_sequencer_t* sequencer, fluid_seq_id_t destination, int (*bend)(int),
                       std::function<void(std::uint32_t)> ended)
    : sequencer_(sequencer),
      destination_(destination),
      bend_(bend),
      ended_(std::move(ended)),
      event_(soundfont::made(new_fluid_event(), "an event")),
      self_(fluid_sequencer_register_client(sequencer, "queue", &FluidQueue::onTimer, this)) {}

FluidQueue::~FluidQueue() {
    cancel();
    fluid_sequencer_unregister_client(sequencer_, self_);
}

bool FluidQueue::translate(const sound::MidiEvent& event) {
    const int channel = event.status & 0x0f;
    const auto data1 = static_cast<short>(event.data1 & 0x7f);
    const auto data2 = static_cast<short>(event.data2 & 0x7f);
    fluid_event_set_source(event_.get(), self_);
    fluid_event_set_dest(event_.get(), destination_);
    if (isOff(event)) {
        fluid_event_noteoff(event_.get(), channel, data1);
        return true;
    }
    switch (message(event)) {
        case 0x90:
            fluid_event_noteon(event_.get(), channel, data1, data2);
            return true;
        case 0xa0:
            fluid_event_key_pressure(event_.get(), channel, data1, data2);
            return true;
        case 0xb0:
            fluid_event_control_change(event_.get(), channel, data1, data2);
            return true;
        case 0xc0:
            fluid_event_program_change(event_.get(), channel, data1);
            return true;
        case 0xd0:
            fluid_event_channel_pressure(event_.get(), channel, data1);
            return true;
        case 0xe0:
            fluid_event_pitch_bend(event_.get(), channel, bend_(bendOf(event.data1, event.data2)));
            return true;
        default:
            return false;
    }
}

void FluidQueue::schedule(unsigned tick) {
    ticks_.push_back(tick);
    fluid_sequencer_send_at(sequencer_, event_.get(), tick, 1);
}

void FluidQueue::send(const sound::MidiEvent& event) {
    if (translate(event)) fluid_sequencer_send_now(sequencer_, event_.get());
}

void FluidQueue::play(std::vector<sound::MidiEvent> events, unsigned leadIn, std::uint32_t run) {
    cancel();
    arrange(events);
    const unsigned begin = fluid_sequencer_get_tick(sequencer_) + leadIn;
    unsigned end = begin;
    for (const auto& event : events) {
        if (!translate(event)) continue;
        const unsigned tick = begin + static_cast<unsigned>(event.time);
        schedule(tick);
        end = std::max(end, tick);
    }
    fluid_event_set_dest(event_.get(), self_);
    fluid_event_timer(event_.get(), nullptr);
    schedule(end + 1);
    std::ranges::sort(ticks_);
    run_ = run;
    playing_ = true;
}

void FluidQueue::cancel() {
    if (playing_) fluid_sequencer_remove_events(sequencer_, self_, everything, everything);
    ticks_.clear();
    playing_ = false;
}

std::optional<unsigned> FluidQueue::nextTick() const {
    const auto next = std::ranges::upper_bound(ticks_, fluid_sequencer_get_tick(sequencer_));
    if (next == ticks_.end()) return std::nullopt;
    return *next;
}

void FluidQueue::onTimer(unsigned, fluid_event_t* event, fluid_sequencer_t*, void* self) {
    auto& queue = *static_cast<FluidQueue*>(self);
    if (fluid_event_get_type(event) != FLUID_SEQ_TIMER || !queue.playing_) return;
    queue.playing_ = false;
    queue.ticks_.clear();
    queue.ended_(queue.run_);
}

}  // namespace synth
