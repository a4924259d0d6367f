#include "staff/urteil.h"

#include "staff/farbe.h"

namespace staff {

i16 falscheSpalten(const Notenzeile& zeile, const Erwartung& erwartung) {
    i16 falschTon = 0;
    for (int i = 1; i <= erwartung.tonAnz - 2; ++i)
        if (zeile.NotSelb(i).ton() != erwartung.inSpalte(i)) ++falschTon;
    return falschTon;
}

void NotenZeigen(Notenzeile& zeile, const Erwartung& erwartung) {
    const int letzter = erwartung.tonAnz - 1;
    for (int c = 0; c <= letzter; ++c) {
        const int k = erwartung.index(c);
        const Ton& ton = erwartung.toene[k];
        zeile.NoteSetzen(c, k == 0 || k == letzter ? ton : ohneVorzeichen(ton), farbe::schwarz);
    }
}

void LoesungZeigen(Notenzeile& zeile, const Erwartung& erwartung) {
    for (int i = 1; i <= erwartung.tonAnz - 2; ++i) {
        const Ton& ton = erwartung.inSpalte(i);
        zeile.NoteSetzen(i, ton, zeile.NotSelb(i).ton() == ton ? farbe::schwarz : farbe::rot);
    }
}

}  // namespace staff
