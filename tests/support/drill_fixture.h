#pragma once
#include "results/testergebnis.h"
#include "sim/temp_folder.h"
#include "support/whole_drill.h"

#include <functional>
#include <string>

namespace support {

/// The drill without its set-up form: a test sets the choices, and runs the ear-training determine
/// worksheet. The record goes to a folder that lives as long as this.
struct DrillFixture : WithHost, private sim::TempFolder, WholeDrill {
    /// The host link is open and the words are there.
    explicit DrillFixture(std::int64_t seed = 1);

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
    /// Clicks a panel or button of the worksheet.
    void click(const std::string& name);
    /// Presses the result form's button as soon as it comes.
    void dismissResults();

    /// nullptr when it is not loaded.
    worksheets::Arbeitsblatt* sheet() const;
    form::Control& control(const std::string& name, int index = form::Place::noIndex) const {
        return on<form::Control>(name, index);
    }
    std::string caption(const std::string& name, int index = form::Place::noIndex) const {
        return control(name, index).caption();
    }
    /// Milliseconds that one task sounds.
    int taskLength() const { return on<form::Timer>("spieltimer").interval(); }

    /// Has `what` happen as an event of the loop after some milliseconds, also inside a wait.
    void later(int milliseconds, std::function<void()> what);

    /// What the result form showed last: its rows and its total.
    std::vector<results::Testergebnis::Zeile> rows;
    std::string total;

    core::Programm& programm = drill.programm;
    results::Wertung& wertung = drill.wertung;
    RecordingMidi& midiOut = midi;

  private:
    std::vector<form::Connection> later_;
};

}  // namespace support
