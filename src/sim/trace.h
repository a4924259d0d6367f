#pragma once
#include "form/virtual_time.h"
#include "rehearsal/midi_tap.h"
#include "results/testergebnis.h"
#include "sim/json_line.h"
#include "sim/outcome.h"
#include "staff/staff.h"
#include "worksheets/worksheet.h"

#include <ostream>

namespace sim {

/// Writes what happens in a run as JSON lines, one for each turn.
class Trace {
  public:
    Trace(std::ostream& stream, const form::VirtualTime& loop) : stream_(stream), loop_(loop) {}

    /// A worksheet has come: what is put on its staff, when it has one, is told.
    void follow(worksheets::Worksheet& sheet);
    /// A turn of a run.
    void notice(worksheets::Worksheet::Turn turn, const worksheets::Worksheet& sheet,
                const core::Zustand& z);
    /// From now on what a device is given is told.
    void hear(rehearsal::MidiTap& device);
    void result(const results::Testergebnis& form);
    void end(const Outcome& outcome);

  private:
    void run(const worksheets::Worksheet& sheet, const core::Zustand& z);
    void task(const worksheets::Worksheet& sheet, const core::Zustand& z);
    void spelling(JsonLine& line, const worksheets::Worksheet& sheet);
    void draw(int column);
    /// @param time milliseconds from the queue's start, -1 without a queue.
    void midi(const sound::MidiEvent& event, int time);
    void answer(const engine::Run& run);
    void closed(const engine::Run& run, const core::Zustand& z);

    std::ostream& stream_;
    const form::VirtualTime& loop_;
    staff::Staff* staff_ = nullptr;
    form::Connection draws_;
    std::string drawn_;  ///< notes not told yet
};

}  // namespace sim
