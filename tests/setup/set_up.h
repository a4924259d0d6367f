#pragma once
#include "support/desk.h"

#include <gtest/gtest.h>

namespace setup::test {

using support::Practice;
using support::Start;
using support::Way;

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

/// For desks that come and go.
struct OnHost : ::testing::Test {
    rehearsal::MemoryHost host;
};
struct SetUp : ::testing::Test, Practice {};

}  // namespace setup::test
