#include "sound/midi.h"

#include <algorithm>

namespace sound {

namespace {

constexpr int noteOff = 0x80;
constexpr int noteOn = 0x90;
constexpr int programChange = 0xC0;
constexpr int pitchBend = 0xE0;
constexpr std::int32_t offTag = 1000000;

}  // namespace

std::vector<MidiDevice> Midi::MidiGeraete(MidiOutput& control) {
    std::vector<MidiDevice> devices;
    const int count = control.deviceCount();
    for (int id = MidiOutput::mapper; id < count; ++id) devices.push_back(control.device(id));
    midi_geraet_ = host_.midiGeraet() == core::Host::keinGeraet ? count - 1 : host_.midiGeraet();
    return devices;
}

void Midi::MidiInit(MidiOutput& control) {
    restoreVolume();
    midi_ausgabe_ = &control;
    midi_kanal_ = 0;
    midi_lautstaerke_ = 100;
    if (control.isOpen()) control.close();
    control.open(midi_geraet_);
    vol_links_ = vol_rechts_ = -1;
}

void Midi::MidiNote(i16 note, int start, int dauer, i16 kanal, std::int32_t tag, int anschlag) {
    MidiEvent event{.status = noteOn + kanal,
                    .data1 = note,
                    .data2 = anschlag < 0 ? int(midi_lautstaerke_) : anschlag,
                    .time = start,
                    .tag = tag};
    output().queue(event);
    event.status = noteOff + kanal;
    event.time = start + dauer;
    event.tag = tag + offTag;
    output().queue(event);
}

void Midi::MidiPitchBend(i16 kanal, i16 wert) {
    output().send({.status = pitchBend + kanal, .data1 = 0, .data2 = wert});
}

void Midi::SetzeKlangfarbe(i16 KFarbe, i16 KChannel) {
    output().send({.status = programChange + KChannel, .data1 = KFarbe, .data2 = 0});
}

void Midi::setInstruments(const base::FixedArray<i16, 9>& patch) {
    for (int kanal = 0; const i16 klangfarbe : patch) SetzeKlangfarbe(klangfarbe, kanal++);
}

void Midi::MidiReset() {
    output().stop();
    output().close();
    output().open(midi_geraet_);
    restoreVolume();
}

/// A run that was left in a fade, or between fade-out and fade-in, must not leave the device mute.
void Midi::restoreVolume() {
    if (vol_links_ > 0 && (fading_ || output().volumeLeft() == 0))
        setDeviceVolume(vol_links_, vol_rechts_);
    fading_ = false;
}

bool Midi::fadeStep(int v) {
    fading_ = true;
    setDeviceVolume(v, v);
    loop_.doEvents();
    return fading_;
}

void Midi::setDeviceVolume(int left, int right) {
    output().setVolume(std::max(0, left), std::max(0, right));
}

void Midi::MidiAusblenden() {
    output().stop();
    if (output().volumeLeft() <= 0) return;
    vol_links_ = output().volumeLeft();
    vol_rechts_ = output().volumeRight();
    for (int v = vol_links_; v > 0; v -= volumeStep)
        if (!fadeStep(v)) return;
    fading_ = false;
    setDeviceVolume(0, 0);
}

void Midi::MidiEinblenden() {
    output().start();
    if (vol_links_ <= 0) return;
    for (int v = 0; v < vol_links_; v += volumeStep)
        if (!fadeStep(v)) return;
    fading_ = false;
    setDeviceVolume(vol_links_, vol_rechts_);
}

void Midi::setVelocity(i16 wert) {
    midi_lautstaerke_ = wert;
    kanal_lautstaerke_[midi_kanal_] = wert;
}

}  // namespace sound
