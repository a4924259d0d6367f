#pragma once
#include "drill/drill.h"
#include "form/controls.h"
#include "form/virtual_time.h"
#include "support/fake_host.h"
#include "support/fake_ports.h"
#include "support/fake_words.h"
#include "support/recording_midi.h"
#include "worksheets/arbeitsblatt.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace support {

/// A host that is there before the drill and after it.
struct WithHost {
    FakeHost host;
};

/// The whole drill with its ports faked, under virtual time, on a host that may outlive it.
struct WholeDrill {
    /// @param languages in place of the fake words.
    WholeDrill(FakeHost& host, core::Aufruf aufruf, std::int64_t seed = 1,
               core::SprachListe* languages = nullptr)
        : drill({loop, dialogs, printer, help, [seed] { return seed; },
                 [&host] { return host.connect(); }, languages ? languages : &words},
                std::move(aufruf), midi) {}

    /// @throws std::out_of_range for one that is not loaded.
    form::Form& form(const std::string& name) const {
        form::Form* found = drill.programm.forms.loaded(name);
        if (!found) throw std::out_of_range(name + " is not loaded");
        return *found;
    }
    bool loaded(const std::string& name) const {
        return drill.programm.forms.loaded(name) != nullptr;
    }
    /// @throws std::out_of_range for one that the form has not.
    template <class C>
    C& control(const std::string& formName, const std::string& name,
               int index = form::Place::noIndex) const {
        form::Control* found = form(formName).find(name, index);
        if (!found) throw std::out_of_range(formName + " has no " + name);
        return static_cast<C&>(*found);
    }

    /// From the start form to the set-up form, which is ready in 0.2 seconds.
    /// @param theory the second branch. @param type 1 naming, 4 writing.
    void toSetUp(bool theory, int type) {
        setup_ = theory ? "einstellung1b" : "einstellung1";
        sheet_ = "arbeitsblatt" + std::to_string(type) + (theory ? "b" : "");
        control<form::Option>("grd_einst", "Theoriewahl", theory ? 1 : 0).click();
        control<form::Option>("grd_einst", "ueb_typ", type).click();
        control<form::Button>("grd_einst", "cmdOK").click();
    }
    /// Calls `look` as soon as the result form can be seen, then closes it.
    void whenResult(const std::function<void()>& look) {
        made_ = drill.programm.forms.made.connect([this, look](form::Form& result) {
            if (result.name() != "testergebnis") return;
            shown_ = result.changed.connect([this, look, &result] {
                if (!result.visible()) return;
                shown_ = {};
                loop.post([this, look] {
                    look();
                    control<form::Button>("testergebnis", "cmdOK").click();
                });
            });
        });
    }

    // The set-up form.
    form::Form& setUp() const { return form(setup_); }
    template <class C>
    C& get(const std::string& name, int index = form::Place::noIndex,
           const std::string& formName = "") const {
        return control<C>(formName.empty() ? setup_ : formName, name, index);
    }
    form::Option& option(const std::string& name, int index) {
        return get<form::Option>(name, index);
    }
    form::Combo& combo(const std::string& name) { return get<form::Combo>(name); }
    form::Button& button(const std::string& name) { return get<form::Button>(name); }
    form::ListBox& list(int index) { return get<form::ListBox>("lst_ska", index); }
    form::Group& group(int index) { return get<form::Group>("grdeinst", index); }
    bool usable(const std::string& name, int index = form::Place::noIndex) {
        return get<form::Control>(name, index).usable();
    }
    /// Marks a group for a settings file, or no more.
    void mark(int index) {
        group(index).context();
        get<form::MenuEntry>("popExamToggle").click();
    }
    /// Opens the lists and moves the items of these scale codes from those on offer.
    void pick(std::initializer_list<int> codes) {
        option("ska_ausw", 1).click();
        for (const int code : codes) {
            int i = 0;
            while (i < list(0).count() && list(0).item(i).data != code) ++i;
            list(0).click(i);
        }
    }
    /// What the third mode says: whether a saved training is offered.
    std::string offered() { return combo("training_Combo").item(2).text; }
    void mode(int index) { combo("training_Combo").setListIndex(index); }
    void begin() {
        button("cmdOK").click();
        loop.advance(50);
    }

    // The worksheet.
    template <class C>
    C& on(const std::string& name, int index = form::Place::noIndex) const {
        return control<C>(sheet_, name, index);
    }
    /// The answer by that scale can be clicked.
    bool open(int scale) const {
        return on<form::Control>(z.an_zeig == 0 ? "ton_art" : "tonart", scale).usable();
    }
    /// A click on an answer. @return whether it could be reached.
    bool answer(int scale) {
        if (!open(scale)) return false;
        if (z.an_zeig == 0)
            on<form::Picture>("ton_art", scale).click();
        else
            on<form::Panel>("tonart", scale).click();
        return true;
    }
    void answerRight() { answer(task().skala_nr); }
    /// A wrong answer that is still open. @return false when none is.
    bool answerWrong() {
        for (int i = 0; i <= z.skal_anz; ++i)
            if (i != task().skala_nr && answer(i)) return true;
        return false;
    }
    bool running() const { return loaded(sheet_); }
    worksheets::Arbeitsblatt& sheet() const {
        return dynamic_cast<worksheets::Arbeitsblatt&>(form(sheet_));
    }
    const engine::Lauf& lauf() const { return sheet().lauf(); }
    const engine::Aufgabe& task() const { return lauf().aufgabe(); }
    engine::AufgZustand turn() const { return lauf().aufgZustand(); }
    std::string shown(const std::string& label, int index = form::Place::noIndex) {
        return on<form::Label>(label, index).caption();
    }
    bool ready() {
        return sheet_.starts_with("arbeitsblatt4") ? on<form::Button>("cmdOK").usable()
                                                   : open(task().skala_nr);
    }
    /// Goes to the next task, unless it comes by itself, and waits until it is ready.
    void next() {
        if (z.abfrage == 0) on<form::Button>("CmdNextAufg").click();
        for (int i = 0; i < 300 && (i == 0 || !ready()); ++i) loop.advance(100);
    }
    /// A scale to be named, once wrong before or not.
    void task(bool right) {
        next();
        if (!right) answerWrong();
        answerRight();
        loop.advance(100);
    }
    void leave(bool keep = false) {
        dialogs.answers = {keep};
        on<form::Panel>("zurueck").click();
        loop.advance(500);
    }
    std::map<int, int> weights() const {
        std::map<int, int> all;
        for (int i = 1; i < z.mathaeufgk_box.rows(); ++i)
            all[z.mathaeufgk_box(i, 0)] = z.mathaeufgk_box(i, 1);
        return all;
    }

    form::VirtualTime loop;
    FakeWords words;
    ScriptedDialogs dialogs;
    FakePrinter printer;
    FakeHelp help;
    RecordingMidi midi{loop};
    drill::Drill drill;
    core::Zustand& z = drill.programm.zustand;

  protected:
    std::string setup_ = "einstellung1", sheet_ = "arbeitsblatt1";

  private:
    form::Connection made_, shown_;
};

}  // namespace support
