#include "staff/tastenschrift.h"

namespace staff {

Tastenschrift::Tastenschrift(Notenzeile& zeile, Noteneingabe& eingabe, Palette& palette)
    : zeile_(zeile), eingabe_(eingabe), palette_(palette) {
    zeile_.PicBNot.onTaste = [this](Schreibtaste t) { taste(t); };
    zeile_.PicBNot.nimmtEnter = [this] { return inHand_ >= 0 && palette_.pbNoten.enabled(); };
}

void Tastenschrift::AufgabeBeginnt() {
    spalte_ = 1;
    nehmen(-1);
    markieren();
}

void Tastenschrift::taste(Schreibtaste taste) {
    const int hier = quelle::mit(zeile_.NotSelb(spalte_).vorzeichen);
    switch (taste) {
        case Schreibtaste::Links:
            return gehen(-1);
        case Schreibtaste::Rechts:
            return gehen(1);
        case Schreibtaste::Hoch:
            return ablegen(hier + 1);
        case Schreibtaste::Tief:
            return ablegen(hier - 1);
        case Schreibtaste::Ablegen:
            ablegen(inHand_);
            return nehmen(-1);
        case Schreibtaste::Eins:
        case Schreibtaste::Zwei:
        case Schreibtaste::Drei:
        case Schreibtaste::Vier:
        case Schreibtaste::Fuenf:
            return nehmen(static_cast<int>(taste) - static_cast<int>(Schreibtaste::Eins));
    }
}

bool Tastenschrift::beschreibbar(int c) const {
    return c >= 0 && c < Spaltenlage::spalten && eingabe_.spalteFrei(c) &&
           zeile_.NotSelb(c).hatNote();
}

void Tastenschrift::gehen(int schritt) {
    if (!beschreibbar(spalte_ + schritt)) return;
    spalte_ += schritt;
    markieren();
}

void Tastenschrift::nehmen(int index) {
    inHand_ = index;
    palette_.markieren(index);
}

void Tastenschrift::ablegen(int index) {
    if (index < 0 || index >= quelle::anzahl || !palette_.pbNoten.enabled()) return;
    const i16 s = zeile_.SchlZ();
    const int y = zeile_.grenze(s).dazwischen(zeile_.NotSelb(spalte_).y());
    eingabe_.DragDrop(s, static_cast<i16>(index), static_cast<float>(zeile_.lage().x(spalte_)),
                      static_cast<float>(y));
}

void Tastenschrift::markieren() {
    constexpr int breite = Spaltenlage::abstand;
    zeile_.PicBNot.marke =
        Rechteck{zeile_.lage().x(spalte_) - breite / 2, 0, breite, zeile_.PicBNot.lage().hoehe};
}

}  // namespace staff
