#pragma once
#include "drill/drill.h"
#include "rehearsal/midi_tap.h"
#include "rehearsal/room.h"
#include "rehearsal/temp_folder.h"
#include "sim/file_words.h"
#include "sim/options.h"
#include "sim/outcome.h"
#include "sim/pupil.h"
#include "sim/setup_road.h"
#include "sim/trace.h"

#include <memory>
#include <optional>
#include <ostream>
#include <vector>

namespace sim {

/// The drill on a clock that is advanced by hand, with a host in memory, a silent device and a
/// simulated learner.
class Simulation {
  public:
    /// @param trace nullptr for none. @throws UsageError for options that cannot be carried out.
    explicit Simulation(const Options& options, std::ostream* trace = nullptr);

    /// One run from its worksheet's start to its end, or over the whole road.
    Outcome run();
    /// The record of the last run.
    std::string record() const { return drill_.xml.text(); }
    /// What is simulated, between runs.
    drill::Drill& drill() { return drill_; }

  private:
    void startUp();
    void openWorksheet();
    void made(form::Form& form);
    void gone(form::Form& form);
    void notice(worksheets::Worksheet::Turn turn);
    Ending ending() const;
    std::string fault() const;

    const Options& options_;
    const engine::Exercise& exercise_;
    const core::Zustand state_;
    rehearsal::Room room_;
    rehearsal::MemoryHost host_;
    std::optional<FileWords> words_;
    rehearsal::TempFolder folder_;
    std::unique_ptr<Trace> trace_;
    rehearsal::MidiTap output_;
    drill::Drill drill_;
    Pupil pupil_;
    SetupRoad road_;

    const worksheets::Worksheet* sheet_ = nullptr;
    Outcome outcome_;
    bool over_ = false;
    bool kept_ = false;  ///< the run before was a training and was saved
    std::int64_t lastTurn_ = 0;
    form::Connection made_, gone_, turns_;
};

}  // namespace sim
