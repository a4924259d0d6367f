#pragma once
#include "support/whole_drill.h"

#include <gtest/gtest.h>

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
};

/// A form with two groups and nothing else, for a part alone.
struct BareForm final : core::Formular {
    explicit BareForm(core::Programm& programm) : Formular(programm, "bare") {}
    void closeBox() override {}
    template <class C>
    C& get(const char* name, int index = form::Place::noIndex) const {
        return dynamic_cast<C&>(*find(name, index));
    }
    form::ControlArray<form::Group> groups{*this, "group", 2};
};

struct OnHost : ::testing::Test, support::WithHost {};
struct SetUp : OnHost, Practice {
    SetUp() : Practice(host) {}
};

}  // namespace setup::test
