#pragma once
#include "drill/drill.h"
#include "sim/memory_host.h"
#include "sim/options.h"
#include "sim/outcome.h"
#include "sim/pupil.h"
#include "sim/setup_road.h"
#include "sim/temp_folder.h"
#include "sim/trace.h"
#include "sim/words.h"

#include <memory>
#include <ostream>
#include <vector>

namespace sim {

/// The drill on a clock that is advanced by hand, with a host in memory, a silent device and a
/// simulated learner.
class Simulation {
  public:
    /// Tasks after which a run without a limit is given up.
    static constexpr int endless = 100000;

    /// @param trace nullptr for none. @throws UsageError for options that cannot be carried out.
    explicit Simulation(const Options& options, std::ostream* trace = nullptr);

    /// One run from its worksheet's start to its end, or over the whole road.
    Outcome run();
    /// The record of the last run.
    std::string record() const { return drill_.xml.text(); }
    /// What is simulated, between runs.
    drill::Drill& drill() { return drill_; }

  private:
    /// Message boxes are answered at once; a training is saved when that is wanted.
    struct Dialogs final : form::Dialogs {
        explicit Dialogs(bool keeps) : keep(keeps) {}
        void message(form::Icon, const std::string&, const std::string& text) override {
            messages.push_back(text);
        }
        bool askYesNo(const std::string&, const std::string&) override { return keep; }
        std::string askOpenFile(const FileQuestion&) override { return {}; }
        std::string askSaveFile(const FileQuestion&) override { return {}; }
        const bool keep;
        std::vector<std::string> messages;
    };
    struct Printer final : form::Printer {
        void print(form::Form&) override {}
    };
    struct Help final : form::Help {
        void open(const std::string&, const std::string&) override {}
    };

    void startUp();
    void openWorksheet();
    void made(form::Form& form);
    void gone(form::Form& form);
    void notice(worksheets::Arbeitsblatt::Ereignis turn);
    Ending ending() const;
    std::string fault() const;

    const Options& options_;
    const engine::Uebung& exercise_;
    const core::Zustand state_;
    form::VirtualTime loop_;
    MemoryHost host_;
    Words words_;
    Dialogs dialogs_;
    Printer printer_;
    Help help_;
    TempFolder folder_;
    std::unique_ptr<Trace> trace_;
    TracedOutput output_;
    drill::Drill drill_;
    Pupil pupil_;
    SetupRoad road_;

    const worksheets::Arbeitsblatt* sheet_ = nullptr;
    Outcome outcome_;
    bool over_ = false;
    bool kept_ = false;  ///< the run before was a training and was saved
    std::int64_t lastTurn_ = 0;
    std::size_t faults_ = 0;  ///< reported before this run
    form::Connection made_, gone_, turns_;
};

}  // namespace sim
