#pragma once
#include "drill/drill.h"
#include "form/controls.h"
#include "form/virtual_time.h"
#include "support/fake_host.h"
#include "support/fake_ports.h"
#include "support/fake_words.h"
#include "support/recording_midi.h"

#include <functional>
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
    void whenResult(std::function<void()> look) {
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

    /// A control of the worksheet at work.
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
    void answerRight() { answer(z.skala_nr); }
    /// A wrong answer that is still open. @return false when none is.
    bool answerWrong() {
        for (int i = 0; i <= z.skal_anz; ++i)
            if (i != z.skala_nr && answer(i)) return true;
        return false;
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
