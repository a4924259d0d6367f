#include "sound/tonlinie.h"

#include "base/rounding.h"

namespace sound {

void TonlinieLegen(Midi& midi, std::span<const Linienton> toene, const Linienart& art) {
    const int klingt = base::rounded(art.tondauer * 0.9);
    const bool gestimmt = art.stimmung != 0;
    const i16 mitte = Midi::bendMitte + art.verstimmung.value_or(0);
    if (!gestimmt && art.verstimmung) midi.MidiPitchBend(0, mitte);
    int stelle = 0;
    for (const Linienton& ton : toene) {
        const int kanal = gestimmt ? ton.stufe + 1 : 0;
        if (gestimmt) midi.MidiPitchBend(kanal, mitte + ton.korrektur);
        midi.MidiNote(ton.note, art.tondauer * stelle, klingt, kanal, stelle);
        ++stelle;
    }
}

}  // namespace sound
