#pragma once
#include "synth/engine.h"
#include "synth/mailbox.h"

#include <array>
#include <memory>
#include <vector>

namespace synth::test {

/// A synthesiser that is pulled by hand; the left channel of what it rendered is kept.
class Rendering {
  public:
    explicit Rendering(bool font = true);

    void put(Command command) { mailbox.put(std::move(command)); }
    void send(int status, int data1, int data2);
    void play(std::vector<sound::MidiEvent> events, std::uint32_t run = 1);
    void render(int milliseconds);
    /// Largest size of a sample from `begin` milliseconds to the end of what was rendered.
    float peak(double beginMs = 0, double lengthMs = 1e9) const;

    Mailbox mailbox;
    std::vector<std::uint32_t> ended;
    Engine engine;
    std::vector<float> sound;
};

/// Note-on and note-off, as the drill queues them.
std::vector<sound::MidiEvent> note(int channel, int key, int start, int length, int velocity = 100);
void append(std::vector<sound::MidiEvent>& to, const std::vector<sound::MidiEvent>& more);

/// The font that is among the packages: the instruments of others begin and fade otherwise.
inline constexpr const char* measuredFont = "/usr/share/sounds/sf2/TimGM6mb.sf2";

/// Clavinet: begins at once and ends within milliseconds. Organ: one steady pitch without vibrato.
inline constexpr int brief = 7;
inline constexpr int steady = 16;

/// How far each degree of the scale of C major is bent, in steps of 3.125 cents, and on which
/// channel it plays: its own one when tones are bent each for itself, else the first.
struct Tuning {
    const char* name;
    bool ownChannels;
    std::array<int, 8> steps;
};
extern const std::array<Tuning, 5> tunings;

/// An instrument of that font, measured once.
std::shared_ptr<const soundfont::Instrument> instrumentOf(int program);

struct Deviation {
    double ms;     ///< when the note is heard, less when it is planned
    double cents;  ///< pitch less that of the key, bent as it is asked for
};

/// Plays an octave up from `firstKey` with `noteMs` from note to note and measures each note.
std::vector<Deviation> measure(const Tuning& tuning, int program, int firstKey, int noteMs);

/// Frequency in Hz of a steady tone, near `nominal`, from the drift of its phase.
double frequency(const std::vector<float>& sound, std::size_t begin, std::size_t length,
                 double nominal);
/// First sample from `begin` on whose size passes `threshold`; the end when there is none.
std::size_t onset(const std::vector<float>& sound, std::size_t begin, float threshold);

}  // namespace synth::test
