#pragma once
#include "core/programm.h"
#include "engine/run.h"

namespace worksheets {

/// The training of an exercise as the host keeps it, and its offer on the set-up form.
class KeptTraining {
  public:
    KeptTraining(core::Programm& programm, engine::Run& run)
        : p(programm), z(programm.zustand), run_(run) {}

    /// Takes the run up where it was left. @throws what Run::resume does, and run-time error 5 when
    /// the host has none.
    void resume();
    /// Keeps the run as it stands and offers it, if the host took it.
    void keep();
    /// A training that has ended leaves nothing to continue.
    void discard();
    /// One that cannot be gone on with is not offered once more.
    void withdraw() { offer(false, core::modus::training); }

  private:
    bool store();
    void offer(bool available, int mode);

    core::Programm& p;
    core::Zustand& z;
    engine::Run& run_;
};

}  // namespace worksheets
