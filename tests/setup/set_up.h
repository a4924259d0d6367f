#pragma once
#include "drill/drill.h"
#include "form/controls.h"
#include "support/fake_host.h"
#include "support/fake_ports.h"
#include "support/fake_words.h"
#include "support/recording_midi.h"

#include <gtest/gtest.h>

namespace setup::test {

/// The drill with its set-up form open, on a host that may outlive it.
struct Practice {
    form::VirtualTime loop;
    support::FakeWords words;
    support::ScriptedDialogs dialogs;
    support::FakePrinter printer;
    support::FakeHelp help;
    support::RecordingMidi midi{loop};
    drill::Drill drill;
    core::Zustand& z = drill.programm.zustand;

    /// Branch and type of the exercise.
    struct Way {
        bool theory = false;
        int type = 1;
        std::string setup() const { return theory ? "einstellung1b" : "einstellung1"; }
        std::string sheet() const {
            return "arbeitsblatt" + std::to_string(type) + (theory ? "b" : "");
        }
    };
    const Way way;

    explicit Practice(support::FakeHost& host, core::Aufruf aufruf = somewhere())
        : Practice(host, Way{}, std::move(aufruf)) {}
    Practice(support::FakeHost& host, const Way& to, core::Aufruf aufruf = somewhere())
        : drill{{loop, dialogs, printer, help, [] { return 1; }, [&host] { return host.connect(); },
                 &words},
                std::move(aufruf),
                midi},
          way(to) {
        drill.programm.forms.load("grd_einst");
        loop.advance(5);
        get<form::Option>("Theoriewahl", way.theory ? 1 : 0, "grd_einst").click();
        get<form::Option>("ueb_typ", way.type, "grd_einst").click();
        get<form::Button>("cmdOK", form::Place::noIndex, "grd_einst").click();
        loop.advance(250);
    }
    static core::Aufruf somewhere() {
        return {.tempOrdner = ::testing::TempDir(), .rechnername = "desk"};
    }
    form::Form& form(const std::string& name) { return *drill.programm.forms.loaded(name); }
    template <class C>
    C& get(const std::string& name, int index = form::Place::noIndex,
           const std::string& formName = "") {
        return static_cast<C&>(*form(formName.empty() ? way.setup() : formName).find(name, index));
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
    /// Moves the item of a scale code from the list of those on offer.
    void pick(int code) {
        for (int i = 0; i < list(0).count(); ++i)
            if (list(0).item(i).data == code) return list(0).click(i);
        ADD_FAILURE() << "not on offer: " << code;
    }
    std::string recap(const std::string& label) {
        for (std::size_t i = 1; i + 1 < z.einst_liste.size(); i += 2)
            if (z.einst_liste[i] == label) return z.einst_liste[i + 1];
        return "-";
    }
};

struct WithHost {
    support::FakeHost host;
};
struct SetUp : ::testing::Test, WithHost, Practice {
    SetUp() : Practice(host) {}
};

}  // namespace setup::test
