#pragma once
#include "base/rnd.h"
#include "core/host.h"
#include "form/ports.h"
#include "form/virtual_time.h"
#include "forms/tally.h"
#include "rehearsal/memory_host.h"
#include "sound/null_output.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace soak {

/// True once in `n` times.
inline bool oncePer(base::Rnd& chance, int n) { return chance.below(n) == 0; }

/// What goes wrong in an episode.
struct Weather {
    int lostCalls = 0;     ///< one host call in so many fails as a call; 0 for none
    int refusals = 0;      ///< one record in so many is refused; 0 for none
    int damaged = 0;       ///< one record in so many comes back damaged; 0 for none
    bool goneFor = false;  ///< the host goes at some moment and stays away
    bool badFolder = false;
    /// Nothing that the program may tell as an error.
    bool fair() const { return damaged == 0 && !badFolder; }
};

/// A host that outlives the episodes of one user, and fails as the weather has it.
class UnsteadyHost {
  public:
    UnsteadyHost(base::Rnd& chance, Tally& tally) : chance_(chance), tally_(tally) {
        memory_.user.reset();
    }
    core::Host::Factory factory();

    Weather weather;
    bool present = true;
    bool gone = false;
    /// Hears of an error that the program has met: its number, and where.
    std::function<void(int number, const std::string& where)> error;

  private:
    class Link;
    void damage(core::Value& record);

    base::Rnd& chance_;
    Tally& tally_;
    rehearsal::MemoryHost memory_;
};

/// Message boxes are answered in their time; files are good, missing or damaged.
class Answers final : public form::Dialogs {
  public:
    Answers(form::VirtualTime& loop, base::Rnd& chance, Tally& tally, std::filesystem::path folder)
        : loop_(loop), chance_(chance), tally_(tally), folder_(std::move(folder)) {}
    void message(form::Icon icon, const std::string& title, const std::string& text) override;
    bool askYesNo(const std::string& title, const std::string& text) override;
    bool confirm(const std::string& title, const std::string& text) override {
        return askYesNo(title, text);
    }
    std::string askOpenFile(const FileQuestion& question) override;
    std::string askSaveFile(const FileQuestion& question) override;

    /// A path that a user may name.
    std::string path();
    /// Boxes that are open: what was there before them cannot be reached.
    int open() const { return open_; }
    /// Files may be damaged.
    bool damages = false;

  private:
    void pass();
    std::string damagedFile();

    form::VirtualTime& loop_;
    base::Rnd& chance_;
    Tally& tally_;
    std::filesystem::path folder_;
    int open_ = 0;
};

/// A device whose queue ends in its time, and whose volume can be faded.
class TimedOutput final : public sound::NullOutput {
  public:
    TimedOutput(form::MessageLoop& loop, Tally& tally) : tally_(tally), loop_(loop) {}
    void queue(const sound::MidiEvent& event) override;
    void send(const sound::MidiEvent& event) override;
    void start() override;
    void stop() override;
    int volumeLeft() const override { return volume; }
    int volumeRight() const override { return volume; }
    void setVolume(int left, int) override { volume = left; }
    sound::SoundProblem problem() const override { return trouble; }

    int volume = 0;
    sound::SoundProblem trouble = sound::SoundProblem::None;
    /// Whether something may sound now.
    std::function<bool()> mayPlay;

  private:
    void check(const sound::MidiEvent& event);

    Tally& tally_;
    form::MessageLoop& loop_;
    form::Connection end_;
    int length_ = 0;
};

struct NoPrinter final : form::Printer {
    explicit NoPrinter(base::Rnd& chance) : chance_(chance) {}
    void print(form::Form&) override {
        if (oncePer(chance_, 3)) throw form::PrintFault(oncePer(chance_, 2) ? "" : "printer");
    }
    base::Rnd& chance_;
};

}  // namespace soak
