#pragma once
#include "fontfile/font_files.h"
#include "soundfont/measured_font.h"
#include "synth/device_guard.h"
#include "synth/engine.h"
#include "synth/player.h"
#include "synth/synth_options.h"
#include "synth/wav_file.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace synth {

/// Plays on the built-in synthesiser. Its thread loads the soundfont and keeps the audio device
/// open for as long as something sounds and a little longer; without a device it pulls the sound
/// itself, at the clock's pace, into nothing. What is missing is looked for
/// again at every reset, and whenever something plays after a pause.
class SynthPlayer : public Player {
  public:
    /// Throws soundfont::FluidError.
    SynthPlayer(SynthOptions options, Reports reports);
    ~SynthPlayer() override;

    void put(Command command) override;
    sound::SoundProblem problem() const override { return problem_; }
    sound::Fitness fitness(int program, int lowest, int highest) const override;
    bool hasVolume() const override { return true; }
    void setVolume(int left, int right) override;

  private:
    using Clock = std::chrono::steady_clock;

    void run();
    void findFont();
    bool fontChanged() const { return fontfile::markOf(fontFile_) != fontMark_; }
    void measure(const std::string& font);
    void serve();
    bool watch();
    void playOut();
    void pull(WavFile* file);
    void pullToFile();
    std::shared_ptr<soundfont::MeasuredFont> font() const;
    bool idle() const { return mailbox_.empty() && !engine_.busy(); }
    std::unique_ptr<AudioDevice> openDevice();
    void tell(sound::SoundProblem device);

    SynthOptions options_;
    Reports reports_;
    Mailbox mailbox_;
    mutable std::mutex fontMutex_;
    std::shared_ptr<soundfont::MeasuredFont> font_;
    std::atomic<int> program_{0};  ///< what was chosen last, for the next task
    std::string fontFile_;         ///< that is loaded
    fontfile::Mark fontMark_;
    Engine engine_;
    DeviceGuard guard_;
    std::optional<WavFile> file_;
    std::atomic<bool> reopened_{false};
    std::atomic<sound::SoundProblem> problem_{sound::SoundProblem::None};
    std::jthread thread_;
};

}  // namespace synth
