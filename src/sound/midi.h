#pragma once
#include "base/array.h"
#include "base/i16.h"
#include "core/host.h"
#include "form/message_loop.h"
#include "sound/midi_output.h"
#include "sound/null_output.h"

#include <vector>

namespace sound {

using base::i16;

/// All sound of the program goes through here: notes for the timed queue, messages sent at once,
/// and fades so that a start or stop does not click.
class Midi {
  public:
    /// Pitch bend without effect, as the upper seven bits of the bend value.
    static constexpr int bendCentre = 64;

    Midi(form::MessageLoop& loop, const core::Host& host) : loop_(loop), host_(host) {}

    /// The devices from `MidiOutput::mapper` up. Also chooses `midi_geraet`: the host's device, or
    /// the last of the list when the host gave none.
    std::vector<MidiDevice> MidiGeraete(MidiOutput& control);
    /// Takes the control over and opens it.
    void MidiInit(MidiOutput& control);
    /// Queues a note; `start` and `dauer` in milliseconds from the queue's start.
    /// @param anschlag velocity, by default `midi_lautstaerke`.
    void MidiNote(i16 note, int start, int dauer, i16 kanal, std::int32_t tag, int anschlag = -1);
    /// Bends a channel at once. @param wert 0..127, `bendCentre` for none.
    void MidiPitchBend(i16 kanal, i16 wert);
    /// Sets the instrument of a channel at once. @param KFarbe General MIDI program 0..127.
    void SetzeKlangfarbe(i16 KFarbe, i16 KChannel);
    /// The same for the channels 0 up. @param patch a program for each.
    void setInstruments(const base::FixedArray<i16, 9>& patch);
    /// Silences all and empties the queue; instruments are lost.
    void MidiReset();
    /// Stops the queue and fades the volume out, letting events happen.
    void MidiAusblenden();
    /// Starts the queue and fades the volume back in, letting events happen.
    void MidiEinblenden();
    /// Lets events happen for `zeit` milliseconds, or until `abbruch`.
    void Delay(float zeit, const bool& abbruch) { loop_.wait(static_cast<double>(zeit), abbruch); }
    void Delay(float zeit) { Delay(zeit, never_); }

    /// Velocity of every note, also of the volume slider, 0..127.
    void setVelocity(i16 wert);
    i16 velocity() const { return midi_lautstaerke_; }
    i16 device() const { return midi_geraet_; }
    /// The control in use; one that does nothing before `MidiInit`.
    MidiOutput& output() const { return *midi_ausgabe_; }

  private:
    static constexpr int volumeStep = 500;
    void restoreVolume();
    /// One step of a fade, letting events happen. @return false when one of them ended the fade.
    bool fadeStep(int v);
    void setDeviceVolume(int left, int right);

    form::MessageLoop& loop_;
    const core::Host& host_;
    NullOutput silent_;
    MidiOutput* midi_ausgabe_ = &silent_;
    i16 midi_kanal_ = 0;
    i16 midi_lautstaerke_ = 100;
    i16 midi_geraet_ = MidiOutput::mapper;
    std::int32_t vol_links_ = -1;
    std::int32_t vol_rechts_ = -1;
    bool fading_ = false;  ///< a fade is under way
    base::FixedArray<i16, 17> kanal_lautstaerke_;
    bool never_ = false;
};

}  // namespace sound
