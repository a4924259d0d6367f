#pragma once
#include "core/programm.h"
#include "form/virtual_time.h"
#include "support/fake_host.h"
#include "support/fake_ports.h"
#include "support/fake_words.h"

namespace core {

/// A program with its ports faked, not yet linked to its host.
struct BenchProgramm {
    BenchProgramm()
        : p({loop, dialogs, printer, help, [] { return 1; }, [this] { return host.connect(); },
             &words},
            {.kommandozeile = "/P=a;b;;c", .tempOrdner = "/nowhere", .rechnername = "desk12"}) {}

    form::VirtualTime loop;
    support::FakeHost host;
    support::FakeWords words;
    support::ScriptedDialogs dialogs;
    support::FakePrinter printer;
    support::FakeHelp help;
    Programm p;
};

}  // namespace core
