#pragma once
#include "core/programm.h"
#include "determine/arbeitsblatt1.h"
#include "form/virtual_time.h"
#include "results/testergebnis.h"
#include "results/wertung.h"
#include "sound/midi.h"
#include "support/fake_host.h"
#include "support/fake_ports.h"
#include "support/fake_words.h"
#include "support/recording_midi.h"

#include <filesystem>
#include <functional>
#include <string>

namespace support {

/// The drill without set-up and screen: a program with its ports faked, under virtual time, and the
/// ear-training determine worksheet. The record goes to a folder that lives as long as this.
struct DrillFixture {
    /// The host link is open and the words are there.
    explicit DrillFixture(std::int64_t seed = 1);
    ~DrillFixture();
    DrillFixture(const DrillFixture&) = delete;
    DrillFixture& operator=(const DrillFixture&) = delete;

    /// All scales of a category, both directions.
    void category(int skal_typ);
    /// Scales after choice.
    void choose(std::initializer_list<int> codes);
    /// Does what a set-up form does, and waits until the worksheet is ready.
    void run();
    /// Goes to the next task and waits until its answers are open.
    void next();
    /// Milliseconds that pass.
    void wait(std::int64_t milliseconds) { loop.advance(milliseconds); }
    /// A click on an answer. @return whether it could be reached.
    bool answer(int scale);
    void answerRight() { answer(z.skala_nr); }
    /// A wrong answer that is still open. @return false when none is.
    bool answerWrong();
    bool open(int scale) const;
    /// Clicks a panel or button of the worksheet.
    void click(const std::string& control);
    /// Presses the result form's button as soon as it comes.
    void dismissResults();

    /// nullptr when it is not loaded.
    determine::Arbeitsblatt1* sheet() const;
    /// A control of the worksheet; it must be there.
    form::Control& control(const std::string& name, int index = form::Place::noIndex) const;
    std::string caption(const std::string& name, int index = form::Place::noIndex) const {
        return control(name, index).caption();
    }
    /// Milliseconds that one task sounds.
    int taskLength() const;

    /// Has `what` happen as an event of the loop after some milliseconds, also inside a wait.
    void later(int milliseconds, std::function<void()> what);

    /// What the result form showed last: its rows and its total.
    std::vector<results::Testergebnis::Zeile> rows;
    std::string total;

    form::VirtualTime loop;
    FakeHost host;
    FakeWords words;
    ScriptedDialogs dialogs;
    FakePrinter printer;
    FakeHelp help;
    RecordingMidi midiOut;
    std::filesystem::path folder;
    core::Programm programm;
    core::Zustand& z;
    sound::Midi midi;
    results::Wertung wertung;

  private:
    struct Alarm;
    std::vector<std::unique_ptr<Alarm>> alarms_;
    form::Connection watch_;
};

}  // namespace support
