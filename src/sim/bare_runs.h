#pragma once
#include "sim/options.h"
#include "sim/outcome.h"
#include "sim/writer.h"

#include <array>
#include <functional>

namespace sim {

/// The runs of a simulation without forms, sound, clock and record: the learner drives the run
/// itself. The same options give the same tasks and answers as `Simulation`, but for what only
/// forms and clock know: a staff takes no note beyond its limits, the silence before a repetition
/// counts as answer time, and the time of a test comes to its end.
class BareRuns {
  public:
    /// @param protocol may be nullptr: then nothing is written down.
    /// @throws UsageError for options that cannot be carried out.
    explicit BareRuns(const Options& options, engine::RunRecorder* protocol = nullptr);
    BareRuns(const BareRuns&) = delete;
    BareRuns& operator=(const BareRuns&) = delete;

    Outcome run();

  private:
    void begin(engine::Run& run);
    bool task(engine::Run& run);
    engine::Answer named(const engine::Run& run, int tries);
    engine::Answer written(engine::Run& run, int tries);
    void think() { clock_ += time_; }

    const Options& options_;
    const engine::Exercise& exercise_;
    const core::Zustand state_;
    engine::RunRecorder* protocol_;
    std::function<std::int64_t()> seeds_;
    base::Rnd rnd_, learnersChance_;
    core::Zustand z_;
    results::Wertung scores_{z_};
    const float time_;                                  ///< that the learner thinks, seconds
    float clock_ = 0;                                   ///< seconds since the task was drawn
    std::array<int, core::katalog::maxSkalen> open_{};  ///< answers that can be given, by scale
    int openCount_ = 0;
    Accidentals standing_{};  ///< on the staff
    bool handedIn_ = false;   ///< as it stands
    core::Value saved_;       ///< training that the next run continues, empty for none
};

}  // namespace sim
