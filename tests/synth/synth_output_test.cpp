#include "synth/synth_output.h"

#include "synth/mail.h"
#include "synth/sound_meter.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <future>
#include <iterator>
#include <thread>

using namespace std::chrono_literals;
using namespace synth::test;
using sound::MidiOutput;
using sound::SoundProblem;

namespace {

synth::SynthOptions unpaced(const std::string& driver) {
    synth::SynthOptions options;
    options.driver = driver;
    options.soundfont = testFont;
    options.audioFile = testing::TempDir() + "synth_output_test.wav";
    options.paced = false;
    return options;
}

/// A device that pulls as a sound card does, until it is told that it was unplugged.
class Card : public synth::AudioDevice {
  public:
    Card(synth::Pull pull, const std::atomic<bool>& plugged)
        : thread_([pull = std::move(pull), &plugged](const std::stop_token& stop) {
              std::array<float, 512> left{};
              std::array<float, 512> right{};
              for (; !stop.stop_requested(); std::this_thread::sleep_for(5ms))
                  if (plugged) pull(left.data(), right.data(), 512);
          }) {}

  private:
    std::jthread thread_;
};

struct Drill {
    explicit Drill(synth::SynthOptions options)
        : output(synth::makeSynthOutput(std::move(options), mail.post())) {
        output->queueEmpty = [this] { ++ends; };
        output->problemChanged = [this] { problems.push_back(output->problem()); };
    }
    void queueNotes(int count, int lengthMs) {
        for (int i = 0; i < count; ++i)
            for (const auto& event : note(0, 60 + i, i * lengthMs, lengthMs * 9 / 10))
                output->queue(event);
    }
    bool hasEnded() {
        return mail.runUntil([this] { return ends > 0; });
    }

    Mail mail;
    int ends = 0;
    std::vector<SoundProblem> problems;
    std::unique_ptr<MidiOutput> output;
};

std::vector<std::int16_t> samplesOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    EXPECT_GT(bytes.size(), 44U);
    std::vector<std::int16_t> samples;
    for (std::size_t i = 44; i + 1 < bytes.size(); i += 2)
        samples.push_back(static_cast<std::int16_t>(static_cast<unsigned char>(bytes[i]) |
                                                    static_cast<unsigned char>(bytes[i + 1]) << 8));
    return samples;
}

}  // namespace

TEST(SynthOutput, EndOfAQueueIsToldExactlyOnceWhateverIsMissing) {
    const struct {
        const char* name;
        const char* driver;
        const char* font;
        SoundProblem problem;
    } rows[] = {
        {"file", "file", "", SoundProblem::None},
        {"no device", "none", "", SoundProblem::NoAudioDevice},
        {"unknown driver", "no-such-driver", "", SoundProblem::NoAudioDevice},
        {"no soundfont", "none", "/no/such/font.sf2", SoundProblem::NoSoundfont},
        {"soundfont that is none", "none", "/proc/self/exe", SoundProblem::NoSoundfont},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        auto options = unpaced(row.driver);
        options.soundfont = row.font;
        Drill drill(options);
        drill.output->open(MidiOutput::mapper);
        drill.queueNotes(8, 300);
        drill.output->start();
        ASSERT_TRUE(drill.hasEnded());
        drill.mail.runFor(100ms);
        EXPECT_EQ(drill.ends, 1);
        EXPECT_EQ(drill.output->problem(), row.problem);
        EXPECT_EQ(drill.problems.size(), row.problem == SoundProblem::None ? 0U : 1U);
    }
}

TEST(SynthOutput, StoppedQueueTellsNoEndAndAnEmptyOneTellsItAtOnce) {
    Drill drill(unpaced("none"));
    drill.output->open(MidiOutput::mapper);
    drill.output->start();
    EXPECT_EQ(drill.ends, 0) << "only through the message loop";
    EXPECT_TRUE(drill.hasEnded());
    for (const bool reopen : {false, true}) {
        drill.queueNotes(1, 100);
        drill.output->start();
        drill.output->stop();
        if (reopen) drill.output->open(MidiOutput::mapper);
    }
    drill.mail.runFor(300ms);
    EXPECT_EQ(drill.ends, 1);
}

TEST(SynthOutput, EndThatIsOnItsWayWhenTheQueueIsStoppedIsNotTold) {
    Drill drill(unpaced("file"));
    drill.output->open(MidiOutput::mapper);
    drill.queueNotes(1, 100);
    drill.output->start();
    ASSERT_TRUE(drill.mail.waitForCall());
    drill.output->stop();
    drill.mail.runFor(50ms);
    EXPECT_EQ(drill.ends, 0);
}

TEST(SynthOutput, CallsThatArriveAfterItsEndDoNothing) {
    Drill drill(unpaced("none"));
    drill.output->open(MidiOutput::mapper);
    drill.output->start();
    drill.output.reset();
    drill.mail.runFor(100ms);
    EXPECT_EQ(drill.ends, 0);
    EXPECT_TRUE(drill.problems.empty());
}

TEST(SynthOutput, FileHoldsTheWholeQueueAfterItsLeadIn) {
    const auto options = unpaced("file");
    {
        Drill drill(options);
        drill.output->open(MidiOutput::mapper);
        drill.output->send({.status = 0xc0, .data1 = brief});
        drill.queueNotes(4, 500);
        drill.output->start();
        ASSERT_TRUE(drill.hasEnded());
    }
    const auto samples = samplesOf(options.audioFile);
    ASSERT_GT(samples.size(), std::size_t{2 * 44100 * 1950 / 1000});
    const auto loud = [&](int ms) {
        int most = 0;
        for (int i = ms * 441 / 10 * 2; i < (ms + 40) * 441 / 10 * 2; ++i)
            most = std::max(most, std::abs(int(samples[static_cast<std::size_t>(i)])));
        return most > 300;
    };
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(loud(int(synth::Engine::leadIn) + i * 500 + 5)) << i;
        EXPECT_FALSE(i > 0 && loud(int(synth::Engine::leadIn) + i * 500 - 45)) << i;
    }
    std::filesystem::remove(options.audioFile);
}

TEST(SynthOutput, LostDeviceIsToldTheQueueEndsAndTheNextOpeningFindsItAgain) {
    std::atomic<bool> plugged{true};
    std::atomic<int> opened{0};
    auto options = unpaced("");
    options.paced = true;
    options.openDevice = [&](synth::Pull pull) {
        ++opened;
        return std::make_unique<Card>(std::move(pull), plugged);
    };
    Drill drill(options);
    drill.output->open(MidiOutput::mapper);
    drill.queueNotes(2, 300);
    drill.output->start();
    std::this_thread::sleep_for(200ms);
    plugged = false;
    ASSERT_TRUE(drill.hasEnded());
    EXPECT_EQ(drill.output->problem(), SoundProblem::DeviceLost);
    plugged = true;
    drill.output->setVolume(-500, 70000);
    EXPECT_EQ(drill.output->volumeLeft(), 0) << "kept to its range";
    drill.output->close();
    drill.output->open(MidiOutput::mapper);
    drill.queueNotes(1, 100);
    drill.output->start();
    ASSERT_TRUE(drill.mail.runUntil([&] { return drill.ends == 2; }));
    EXPECT_EQ(drill.problems, (std::vector{SoundProblem::DeviceLost, SoundProblem::None}));
    EXPECT_EQ(drill.output->volumeLeft(), MidiOutput::maxVolume) << "full after opening";
    EXPECT_EQ(opened, 2) << "reopening in between keeps the device";
}

TEST(SynthOutput, ServerThatHangsHoldsUpNeitherTheQueueNorTheEnd) {
    auto release = std::make_shared<std::promise<void>>();
    const auto released = release->get_future().share();
    const auto latecomer = std::make_shared<std::atomic<bool>>(true);
    auto options = unpaced("");
    options.openDevice = [released, latecomer](synth::Pull pull) {
        released.wait();
        return std::make_unique<Card>(std::move(pull), *latecomer);
    };
    {
        Drill drill(options);
        drill.output->open(MidiOutput::mapper);
        drill.queueNotes(2, 300);
        drill.output->start();
        ASSERT_TRUE(drill.hasEnded());
        EXPECT_EQ(drill.output->problem(), SoundProblem::NoAudioDevice);
    }
    options.openDevice = nullptr;
    release->set_value();
    for (int i = 0; i < 100 && latecomer.use_count() > 1; ++i) std::this_thread::sleep_for(20ms);
    EXPECT_EQ(latecomer.use_count(), 1) << "a device that comes too late is closed again";
}
