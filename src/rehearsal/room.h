#pragma once
#include "core/programm.h"
#include "form/virtual_time.h"
#include "rehearsal/memory_host.h"
#include "rehearsal/number_words.h"
#include "rehearsal/recording_help.h"
#include "rehearsal/recording_printer.h"
#include "rehearsal/scripted_dialogs.h"

#include <functional>

namespace rehearsal {

/// What is outside a drill, on a clock that is advanced by hand: all but its host and its sound. It
/// outlives the drill.
struct Room {
    form::VirtualTime loop;
    NumberWords words;
    ScriptedDialogs dialogs;
    RecordingPrinter printer;
    RecordingHelp help;

    /// @param seeds asked for a seed at the beginning of each run.
    /// @param languages in place of `words`.
    core::Ports ports(MemoryHost& host, std::function<std::int64_t()> seeds,
                      core::SprachListe* languages = nullptr) {
        return {loop,
                dialogs,
                printer,
                help,
                std::move(seeds),
                host.factory(),
                languages ? languages : &words};
    }
};

}  // namespace rehearsal
