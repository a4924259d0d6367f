#pragma once
#include "sound/null_output.h"

#include <functional>

namespace rehearsal {

/// A silent device that hands on what it is given, and keeps nothing.
struct MidiTap final : sound::NullOutput {
    std::function<void(const sound::MidiEvent&)> queued, sent;  ///< empty: nobody listens

    void queue(const sound::MidiEvent& event) override {
        if (queued) queued(event);
    }
    void send(const sound::MidiEvent& event) override {
        if (sent) sent(event);
    }
};

}  // namespace rehearsal
