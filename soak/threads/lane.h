#pragma once
#include "base/rnd.h"
#include "core/host.h"
#include "core/zustand.h"
#include "rehearsal/scripted_dialogs.h"
#include "sound/midi.h"
#include "synth/mail.h"
#include "synth/synth_options.h"
#include "threads/sound_server.h"
#include "threads/watched_output.h"

#include <filesystem>

namespace soak {

/// The drill's loop of messages: nothing happens in it but what is posted.
class MailLoop final : public form::MessageLoop {
  public:
    base::Moment now() const override { return {}; }
    float clock() const override { return 0; }
    form::Connection after(int, std::function<void()>) override {
        throw std::logic_error("no timers here");
    }
    void doEvents() override { mail.runFor(std::chrono::milliseconds(0)); }
    void wait(double milliseconds, const bool& abort) override {
        mail.runUntil([&abort] { return abort; },
                      std::chrono::milliseconds(static_cast<int>(milliseconds)));
    }
    void runUntil(const std::function<bool()>& done) override { mail.runUntil(done); }
    void post(std::function<void()> call) override { mail.post()(std::move(call)); }

    synth::test::Mail mail;
};

/// A drill that makes one output after another and does with each what comes to its mind.
class Lane {
  public:
    /// @param folder its own, for what sounds.
    Lane(Laws& laws, SoundServer& server, const std::filesystem::path& folder, std::string name,
         std::int64_t seed);

    /// One output, from its making to its end.
    void life();

    Progress& progress() { return progress_; }
    const std::string& name() const { return name_; }

  private:
    struct Action {
        int weight;  ///< how often, among the others
        const char* name;
        void (Lane::*act)();
        bool nested;  ///< whether a user may wish it in the middle of another one
    };
    static const std::vector<Action> actions;

    synth::SynthOptions machineAndOptions();
    void act(bool nested);
    void end();
    void checkFile();
    bool oneIn(int n) { return rnd_.below(n) == 0; }
    bool until(const std::function<bool()>& done);
    void queueTask();

    void present();
    void soundCheck();
    void replace();
    void startNothing();
    void startClosed();
    void stop();
    void setVolume();
    void reset();
    void listDevices();
    void openAny();
    void close();
    void waitShortly();
    void waitForEnd();
    void waitUntilNearTheEnd();
    void loseDevice();
    void unplug();
    void plug();
    void changeCard();
    void changePorts();
    void changeServer();
    void press();
    void settle();

    Laws& laws_;
    SoundServer& server_;
    std::filesystem::path file_;
    std::string name_;
    base::Rnd rnd_;
    Progress progress_;
    MailLoop loop_;
    rehearsal::ScriptedDialogs dialogs_;
    core::Zustand state_;
    core::Host host_{[] { return nullptr; }, dialogs_, state_};
    std::string who_;
    int lives_ = 0;
    int depth_ = 0;
    std::shared_ptr<Machine> machine_;
    std::optional<sound::Midi> midi_;
    std::unique_ptr<WatchedOutput> output_;
};

}  // namespace soak
