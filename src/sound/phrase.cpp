#include "sound/phrase.h"

#include "base/rounding.h"

namespace sound {

void queuePhrase(Midi& midi, std::span<const PhraseNote> notes, const PhraseStyle& style) {
    const int sounding = base::rounded(style.noteDuration * 0.9);
    const bool tuned = style.stimmung != 0;
    const i16 centre = Midi::bendCentre + style.detune.value_or(0);
    if (!tuned && style.detune) midi.MidiPitchBend(0, centre);
    int place = 0;
    for (const PhraseNote& note : notes) {
        const int kanal = tuned ? note.degree + 1 : 0;
        if (tuned) midi.MidiPitchBend(kanal, centre + note.correction);
        midi.MidiNote(note.note, style.noteDuration * place, sounding, kanal, place);
        ++place;
    }
}

}  // namespace sound
