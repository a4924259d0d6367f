#pragma once
#include "drill/drill.h"
#include "form/controls.h"
#include "rehearsal/midi_recorder.h"
#include "rehearsal/room.h"
#include "rehearsal/temp_folder.h"
#include "worksheets/worksheet.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace support {

/// How a desk begins.
struct Start {
    rehearsal::MemoryHost* host = nullptr;   ///< one that outlives the desk; nullptr: its own
    core::Aufruf call = {};                  ///< without a folder of records they go to the desk's
    std::int64_t seed = 1;                   ///< of every run
    core::SprachListe* languages = nullptr;  ///< in place of the words that tell their number
};

/// An exercise: branch, and 1 for naming or 4 for writing.
struct Way {
    bool theory = false;
    int type = 1;
};

/// The whole drill before a pupil, in a rehearsal room. No form is loaded yet.
struct Desk : rehearsal::Room {
    static constexpr int noIndex = form::Place::noIndex;

    explicit Desk(const Start& start);
    Desk() : Desk(Start{}) {}

    // Any form. @throws std::out_of_range for a form that is not loaded, or has no such control.
    form::Form& form(const std::string& name) const;
    bool loaded(const std::string& name) const { return programm.forms.loaded(name) != nullptr; }
    template <class C = form::Control>
    C& control(const std::string& formName, const std::string& name, int index = noIndex) const {
        return static_cast<C&>(find(formName, name, index));
    }

    /// From the start form, which is loaded when it is not there, to the set-up form.
    void toSetUp(const Way& way = {});
    /// Has `what` happen as an event of the loop after some milliseconds, also inside a wait.
    void later(int milliseconds, std::function<void()> what);
    void wait(std::int64_t milliseconds) { loop.advance(milliseconds); }
    /// Calls `look` as soon as the result form can be seen, then closes it.
    void whenResult(const std::function<void()>& look);

    // The set-up form.
    form::Form& setUp() const { return form(setup_); }
    template <class C = form::Control>
    C& get(const std::string& name, int index = noIndex) const {
        return control<C>(setup_, name, index);
    }
    form::Option& option(const std::string& name, int index) const {
        return get<form::Option>(name, index);
    }
    form::Combo& combo(const std::string& name) const { return get<form::Combo>(name); }
    form::Button& button(const std::string& name) const { return get<form::Button>(name); }
    form::ListBox& list(int index) const { return get<form::ListBox>("lst_ska", index); }
    form::Group& group(int index) const { return get<form::Group>("grdeinst", index); }
    bool usable(const std::string& name, int index = noIndex) const {
        return get(name, index).usable();
    }
    /// Marks a group for a settings file, or no more.
    void mark(int index) const;
    /// Opens the lists and moves the items of these scale codes from those on offer.
    void pick(std::initializer_list<int> codes) const;
    /// What the third mode says: whether a saved training is offered.
    std::string offered() const { return combo("training_Combo").item(2).text; }
    void mode(int index) const { combo("training_Combo").setListIndex(index); }
    void begin();

    /// Begins a run of the state as the test has left it, whether or not the form offers that.
    void run();
    void category(int skal_typ);
    void choose(const std::vector<int>& codes);

    // The worksheet.
    template <class C = form::Control>
    C& on(const std::string& name, int index = noIndex) const {
        return control<C>(sheet_, name, index);
    }
    std::string caption(const std::string& name, int index = noIndex) const {
        return on(name, index).caption();
    }
    void click(const std::string& name) const;
    bool running() const { return loaded(sheet_); }
    worksheets::Worksheet& sheet() const {
        return dynamic_cast<worksheets::Worksheet&>(form(sheet_));
    }
    const engine::Run& exerciseRun() const { return sheet().run(); }
    const engine::Task& task() const { return exerciseRun().task(); }
    engine::TaskState taskState() const { return exerciseRun().aufgZustand(); }
    /// Milliseconds that one task sounds.
    int taskLength() const { return on<form::Timer>("spieltimer").interval(); }
    /// The answer by that scale can be clicked.
    bool open(int scale) const { return on(z.an_zeig == 0 ? "ton_art" : "tonart", scale).usable(); }
    /// A click on an answer. @return whether it could be reached.
    bool answer(int scale) const;
    void answerRight() const { answer(task().skala_nr); }
    /// A wrong answer that is still open. @return false when none is.
    bool answerWrong() const;
    bool ready() const;
    /// Goes to the next task, unless it comes by itself, and waits until it can be answered.
    void next();
    /// A scale to be named, once wrong before or not.
    void task(bool right);
    /// Answers wrongly until the task in hand is lost.
    void lose() const;
    void leave(bool keep = false);
    std::map<int, int> weights() const;

  private:
    form::Control& find(const std::string& formName, const std::string& name, int index) const;

    rehearsal::MemoryHost own_;
    const rehearsal::TempFolder folder_;

  public:
    rehearsal::MemoryHost& host;
    rehearsal::MidiRecorder midi{loop};
    drill::Drill drill;
    core::Programm& programm = drill.programm;
    core::Zustand& z = programm.zustand;

  protected:
    std::string setup_ = "einstellung1", sheet_ = "arbeitsblatt1";

  private:
    form::Connection made_, shown_;
    std::vector<form::Connection> later_;
};

/// A desk with the set-up form of an exercise open.
struct Practice : Desk {
    explicit Practice(const Start& start, const Way& way = {}) : Desk(start) { toSetUp(way); }
    explicit Practice(rehearsal::MemoryHost& shared, const Way& way = {})
        : Practice(Start{.host = &shared}, way) {}
    Practice() : Practice(Start{}) {}
};

}  // namespace support
