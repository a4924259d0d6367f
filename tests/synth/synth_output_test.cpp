#include "synth/synth_output.h"

#include "rehearsal/temp_folder.h"
#include "synth/mail.h"
#include "synth/sound_meter.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <future>
#include <thread>

using namespace std::chrono_literals;
using namespace synth::test;
using sound::MidiOutput;
using sound::SoundProblem;

namespace {

synth::SynthOptions unpaced(const std::string& driver) {
    synth::SynthOptions options;
    options.driver = driver;
    options.soundfont = measuredFont;
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
        told = output->problemChanged.connect([this] { problems.push_back(output->problem()); });
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
    form::Connection told;
};

/// The left channel of a file of 16 bits.
std::vector<float> samplesOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    in.ignore(44);
    std::vector<float> left;
    for (std::array<std::int16_t, 2> frame{};
         in.read(reinterpret_cast<char*>(frame.data()), sizeof frame);)
        left.push_back(static_cast<float>(frame[0]) / 32768);
    return left;
}

}  // namespace

TEST(SynthOutput, EndOfAQueueIsToldExactlyOnceWhateverIsMissing) {
    const struct {
        const char* name;
        const char* driver;
        const char* font;
        SoundProblem problem;
    } rows[] = {
        {"file", "file", measuredFont, SoundProblem::None},
        {"no device", "none", measuredFont, SoundProblem::NoAudioDevice},
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

/// Samples are read when they are needed: from a file that was replaced they would be noise.
TEST(SynthOutput, ASoundfontThatIsReplacedOrRemovedIsLoadedAnewOrMissed) {
    const rehearsal::TempFolder folder;
    const auto copy = folder.path() / "font.sf2", other = folder.path() / "other.sf2";
    std::filesystem::copy_file(measuredFont, copy);
    auto options = unpaced("file");
    options.soundfont = copy;
    options.tables = soundfont::TablePlaces{MELVORA_FONT_TABLES, folder.path(), {}};
    Drill drill(options);
    auto piano = sound::Fitness::Unknown;
    const auto told =
        drill.output->fitnessKnown.connect([&] { piano = drill.output->fitness(0, 60, 72); });
    drill.output->open(MidiOutput::mapper);
    int runs = 0;
    const auto plays = [&] {
        drill.queueNotes(1, 100);
        drill.output->start();
        ++runs;
        return drill.mail.runUntil([&] { return drill.ends == runs; });
    };
    // Between two sounds: the next one waits until the last has died away.
    const auto becomes = [&](SoundProblem problem) {
        for (int i = 0; i < 200 && drill.output->problem() != problem; ++i) {
            std::this_thread::sleep_for(20ms);
            EXPECT_TRUE(plays());
        }
        return drill.output->problem() == problem;
    };
    EXPECT_TRUE(plays());
    EXPECT_TRUE(drill.mail.runUntil([&] { return piano != sound::Fitness::Unknown; }))
        << "what is told can be asked for";
    // As a damaged one would be: nothing of the old file is of use.
    std::filesystem::copy_file(measuredFont, other);
    std::fstream(other, std::ios::in | std::ios::out | std::ios::binary).write("none", 4);
    std::filesystem::rename(other, copy);
    EXPECT_TRUE(becomes(SoundProblem::NoSoundfont));
    std::filesystem::remove(copy);
    EXPECT_TRUE(plays());
    std::filesystem::copy_file(measuredFont, copy);
    EXPECT_TRUE(becomes(SoundProblem::None));
    drill.mail.runFor(20ms);
    EXPECT_EQ(drill.problems, (std::vector{SoundProblem::NoSoundfont, SoundProblem::None}));
    std::filesystem::remove(options.audioFile);
}

TEST(SynthOutput, TheEndOfAnEmptyQueueIsToldAndOfOneThatWasCutIsNot) {
    for (const char* cut : {"none", "stop", "stop while it is told", "open", "destroy"}) {
        SCOPED_TRACE(cut);
        const std::string how = cut;
        Drill drill(unpaced("none"));
        drill.output->open(MidiOutput::mapper);
        if (how != "none") drill.queueNotes(1, 100);
        drill.output->start();
        if (how == "stop while it is told") {
            ASSERT_TRUE(drill.mail.waitForCall());
        }
        if (how.starts_with("stop")) drill.output->stop();
        if (how == "open") drill.output->open(MidiOutput::mapper);
        if (how == "destroy") drill.output.reset();
        EXPECT_EQ(drill.ends, 0) << "only through the message loop";
        drill.mail.runFor(200ms);
        EXPECT_EQ(drill.ends, how == "none" ? 1 : 0);
    }
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
    for (int i = 0; i < 4; ++i) {
        const double planned = (synth::Engine::leadIn + i * 500) * 44.1;
        const auto begun =
            double(onset(samples, static_cast<std::size_t>(planned - 15 * 44.1), 0.01F));
        EXPECT_GE(begun, planned) << i;
        EXPECT_LT(begun, planned + 40 * 44.1) << i;
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
