#pragma once
#include "soundfont/measured_font.h"
#include "synth/audio_device.h"

#include <optional>
#include <string>

namespace synth {

/// What can be chosen about the built-in synthesiser from outside.
struct SynthOptions {
    /// FluidSynth's name of the audio driver; "file" writes what sounds to `audioFile`, "none"
    /// plays to nothing, empty takes what the machine has.
    std::string driver;
    /// WAV file for the driver "file". It holds the sound of all queues one after another, without
    /// the silence between them.
    std::string audioFile = "melvora.wav";
    /// The only soundfont to try, or empty for the usual places.
    std::string soundfont;
    /// Where it is kept what the instruments of a font were measured to be; none measures nothing.
    std::optional<soundfont::TablePlaces> tables;
    /// Whether "file" and "none" run at the clock's pace, or as fast as they can.
    bool paced = true;
    /// Opens the audio device in place of the driver, when set.
    OpenDevice openDevice;

    /// Reads MELVORA_AUDIO_DRIVER, MELVORA_AUDIO_FILE and MELVORA_SOUNDFONT.
    static SynthOptions fromEnvironment();
};

/// The soundfont to load: `wanted` if it is not empty, else the library's default, else the first
/// one in the usual folders. Empty when there is none.
std::string findSoundfont(const std::string& wanted);

}  // namespace synth
