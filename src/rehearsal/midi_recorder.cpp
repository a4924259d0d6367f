#include "rehearsal/midi_recorder.h"

#include <algorithm>

namespace rehearsal {

sound::MidiDevice MidiRecorder::device(int id) {
    return id == mapper ? sound::MidiDevice{5, "built in"}
                        : sound::MidiDevice{1, "port " + std::to_string(id)};
}

void MidiRecorder::start() {
    starts.push_back(loop_.elapsed());
    startedAt_ = loop_.elapsed();
    std::int32_t last = 0;
    for (const auto& event : queued) last = std::max(last, event.time);
    end_ = loop_.after(last, [this] {
        startedAt_ = -1;
        queued.clear();
        if (queueEmpty) queueEmpty();
    });
}

void MidiRecorder::stop() {
    queued.clear();
    startedAt_ = -1;
    end_ = {};
}

void MidiRecorder::setVolume(int left, int right) {
    volume = {left, right};
    volumes.push_back(volume);
    if (volumeSet) volumeSet();
}

std::set<std::pair<int, int>> MidiRecorder::sounding() const {
    std::set<std::pair<int, int>> notes;
    if (startedAt_ < 0) return notes;
    auto events = queued;
    std::ranges::stable_sort(events, {}, &sound::MidiEvent::time);
    for (const auto& event : events) {
        if (startedAt_ + event.time > loop_.elapsed()) break;
        const std::pair note{event.status & 0x0F, event.data1};
        if ((event.status & 0xF0) == 0x90)
            notes.insert(note);
        else
            notes.erase(note);
    }
    return notes;
}

std::vector<sound::MidiEvent> MidiRecorder::noteOns() const {
    std::vector<sound::MidiEvent> ons;
    std::ranges::copy_if(queued, std::back_inserter(ons),
                         [](const auto& e) { return (e.status & 0xF0) == 0x90; });
    std::ranges::stable_sort(ons, {}, &sound::MidiEvent::time);
    return ons;
}

std::vector<sound::MidiEvent> MidiRecorder::sentWith(int status) const {
    std::vector<sound::MidiEvent> found;
    std::ranges::copy_if(sends, std::back_inserter(found),
                         [status](const auto& e) { return (e.status & 0xF0) == status; });
    return found;
}

}  // namespace rehearsal
