#include "sound/midi.h"

#include <algorithm>

namespace sound {

namespace {

constexpr int noteAus = 0x80;
constexpr int noteAn = 0x90;
constexpr int programmWechsel = 0xC0;
constexpr int pitchBend = 0xE0;
constexpr std::int32_t ausTag = 1000000;

}  // namespace

std::vector<MidiDevice> Midi::MidiGeraete(MidiOutput& control) {
    std::vector<MidiDevice> geraete;
    const int anzahl = control.deviceCount();
    for (int id = MidiOutput::mapper; id < anzahl; ++id) geraete.push_back(control.device(id));
    midi_geraet_ = host_.midiGeraet() == core::Host::keinGeraet ? anzahl - 1 : host_.midiGeraet();
    return geraete;
}

void Midi::MidiInit(MidiOutput& control) {
    LautstaerkeHerstellen();
    midi_ausgabe_ = &control;
    midi_kanal_ = 0;
    midi_lautstaerke_ = 100;
    if (control.isOpen()) control.close();
    control.open(midi_geraet_);
    vol_links_ = vol_rechts_ = -1;
}

void Midi::MidiNote(i16 note, int start, int dauer, i16 kanal, std::int32_t tag, int anschlag) {
    MidiEvent event{.status = noteAn + kanal,
                    .data1 = note,
                    .data2 = anschlag < 0 ? int(midi_lautstaerke_) : anschlag,
                    .time = start,
                    .tag = tag};
    ausgabe().queue(event);
    event.status = noteAus + kanal;
    event.time = start + dauer;
    event.tag = tag + ausTag;
    ausgabe().queue(event);
}

void Midi::MidiPitchBend(i16 kanal, i16 wert) {
    ausgabe().send({.status = pitchBend + kanal, .data1 = 0, .data2 = wert});
}

void Midi::SetzeKlangfarbe(i16 KFarbe, i16 KChannel) {
    ausgabe().send({.status = programmWechsel + KChannel, .data1 = KFarbe, .data2 = 0});
}

void Midi::SetzeKlangfarben(const base::FixedArray<i16, 9>& patch) {
    for (int kanal = 0; const i16 klangfarbe : patch) SetzeKlangfarbe(klangfarbe, kanal++);
}

void Midi::MidiReset() {
    ausgabe().stop();
    ausgabe().close();
    ausgabe().open(midi_geraet_);
    LautstaerkeHerstellen();
}

/// A run that was left in a fade, or between fade-out and fade-in, must not leave the device mute.
void Midi::LautstaerkeHerstellen() {
    if (vol_links_ > 0 && (blendet_ || ausgabe().volumeLeft() == 0))
        Volumen(vol_links_, vol_rechts_);
    blendet_ = false;
}

bool Midi::Blendschritt(int v) {
    blendet_ = true;
    Volumen(v, v);
    loop_.doEvents();
    return blendet_;
}

void Midi::Volumen(int links, int rechts) {
    ausgabe().setVolume(std::max(0, links), std::max(0, rechts));
}

void Midi::MidiAusblenden() {
    ausgabe().stop();
    if (ausgabe().volumeLeft() <= 0) return;
    vol_links_ = ausgabe().volumeLeft();
    vol_rechts_ = ausgabe().volumeRight();
    for (int v = vol_links_; v > 0; v -= stufe)
        if (!Blendschritt(v)) return;
    blendet_ = false;
    Volumen(0, 0);
}

void Midi::MidiEinblenden() {
    ausgabe().start();
    if (vol_links_ <= 0) return;
    for (int v = 0; v < vol_links_; v += stufe)
        if (!Blendschritt(v)) return;
    blendet_ = false;
    Volumen(vol_links_, vol_rechts_);
}

void Midi::setLautstaerke(i16 wert) {
    midi_lautstaerke_ = wert;
    kanal_lautstaerke_[midi_kanal_] = wert;
}

}  // namespace sound
