#pragma once
#include "engine/arbeitsblatt.h"
#include "support/whole_drill.h"

#include <gtest/gtest.h>

#include <map>

namespace setup::test {

/// The drill with its set-up form open, on a host that may outlive it.
struct Practice : support::WholeDrill {
    /// Branch and type of the exercise.
    struct Way {
        bool theory = false;
        int type = 1;
    };
    const Way way;

    explicit Practice(support::FakeHost& host, core::Aufruf aufruf = somewhere())
        : Practice(host, Way{}, std::move(aufruf)) {}
    Practice(support::FakeHost& host, const Way& to, core::Aufruf aufruf = somewhere())
        : WholeDrill(host, std::move(aufruf)), way(to) {
        drill.programm.forms.load("grd_einst");
        loop.advance(5);
        toSetUp(way.theory, way.type);
        loop.advance(250);
    }
    static core::Aufruf somewhere() {
        return {.tempOrdner = ::testing::TempDir(), .rechnername = "desk"};
    }

    // The set-up form.
    form::Form& setUp() const { return form(setup_); }
    template <class C>
    C& get(const std::string& name, int index = form::Place::noIndex,
           const std::string& formName = "") {
        return control<C>(formName.empty() ? setup_ : formName, name, index);
    }
    form::Option& option(const std::string& name, int index) {
        return get<form::Option>(name, index);
    }
    form::Combo& combo(const std::string& name) { return get<form::Combo>(name); }
    form::Button& button(const std::string& name) { return get<form::Button>(name); }
    form::ListBox& list(int index) { return get<form::ListBox>("lst_ska", index); }
    form::Group& group(int index) { return get<form::Group>("grdeinst", index); }
    bool usable(const std::string& name, int index) {
        return get<form::Control>(name, index).usable();
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
    std::string recap(const std::string& label) {
        for (std::size_t i = 1; i + 1 < z.einst_liste.size(); i += 2)
            if (z.einst_liste[i] == label) return z.einst_liste[i + 1];
        return "-";
    }
    /// What the third mode says: whether a saved training is offered.
    std::string offered() { return combo("training_Combo").item(2).text; }

    // The worksheet.
    void mode(int index) { combo("training_Combo").setListIndex(index); }
    void begin() {
        button("cmdOK").click();
        loop.advance(50);
    }
    bool running() const { return loaded(sheet_); }
    template <class Sheet = engine::Arbeitsblatt>
    Sheet& sheet() {
        return dynamic_cast<Sheet&>(form(sheet_));
    }
    engine::AufgZustand turn() { return sheet().aufgZustand(); }
    std::string shown(const std::string& label, int index = form::Place::noIndex) {
        return on<form::Label>(label, index).caption();
    }
    bool ready() { return way.type == 4 ? on<form::Button>("cmdOK").usable() : open(z.skala_nr); }
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
        for (int i = 1; i <= z.potSkala; ++i) all[z.mathaeufgk_box(i, 0)] = z.mathaeufgk_box(i, 1);
        return all;
    }
};

struct OnHost : ::testing::Test, support::WithHost {};
struct SetUp : OnHost, Practice {
    SetUp() : Practice(host) {}
};

}  // namespace setup::test
