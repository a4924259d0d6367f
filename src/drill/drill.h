#pragma once
#include "core/programm.h"
#include "results/skalaxml.h"
#include "results/wertung.h"
#include "sound/midi.h"

namespace drill {

/// The whole drill as one value: the program, its sound and its scores, with every form known by
/// name. It holds no adapter; whoever builds it hands them in and outlives it.
struct Drill {
    Drill(core::Ports ports, core::Aufruf aufruf, sound::MidiOutput& output);
    Drill(const Drill&) = delete;
    Drill& operator=(const Drill&) = delete;

    core::Programm programm;
    sound::Midi midi;
    results::Wertung wertung;
    results::Skalaxml xml;
    sound::MidiOutput& output;
};

}  // namespace drill
