#pragma once
#include "base/colour.h"
#include "form/control.h"

#include <array>

namespace setup {

/// Colours of a group tell its state.
namespace farben {
inline constexpr base::Colour offen = base::rgb(255, 255, 192);
inline constexpr base::Colour gesperrt = base::rgb(255, 192, 192);
inline constexpr base::Colour pruefung = base::rgb(128, 255, 128);
inline constexpr base::Colour modus = base::rgb(192, 255, 192);
inline constexpr base::Colour klang = base::rgb(192, 255, 255);
inline constexpr base::Colour tempoOffen = base::rgb(0, 0, 255);
}  // namespace farben

/// Locks a control and shows it.
void sperren(form::Control& control);

/// The branches of the program: what the set-up form is built for.
enum class Zweig { Gehoerbildung, Musiklehre };

/// What a category of scales allows on the set-up form.
struct Regel {
    bool namen;            ///< the answers may be labelled with names
    bool vorzeichen;       ///< the key signature may stay the same
    bool melodieStimmung;  ///< melodies, and tunings other than equal
};
const Regel& regel(int skal_typ);

/// Range of a MIDI note choice.
struct Bereich {
    int tief, hoch;
};
/// Lowest and highest note of a range: from two octaves up in ear training, from one in theory.
constexpr Bereich tonbereich(Zweig zweig, int oktAnz, int listIndex) {
    const int tief = 36 + 12 * listIndex;
    return {tief, tief + 12 * (oktAnz + (zweig == Zweig::Gehoerbildung ? 2 : 1))};
}
/// How many ranges a size offers.
constexpr int bereicheAnz(int oktAnz) { return 4 - oktAnz; }
/// The one that a size begins with.
constexpr int ersterBereich(Zweig zweig, int oktAnz) {
    if (zweig == Zweig::Gehoerbildung) return oktAnz < 3 ? 1 : 0;
    return oktAnz < 2 ? 2 - oktAnz : 3 - oktAnz;
}

/// A preset exam.
struct Pruefungsvorgabe {
    int prfNr;
    int tempoIdx;
    int richtung;
    int final;
    int ska_ausw;
};
inline constexpr std::array pruefungsvorgaben{
    Pruefungsvorgabe{1, 3, 0, 2, 0}, Pruefungsvorgabe{2, 3, 1, 2, 0},
    Pruefungsvorgabe{3, 3, 2, 2, 0}, Pruefungsvorgabe{4, 5, 2, 2, 0},
    Pruefungsvorgabe{5, 7, 2, 2, 0},
};

/// Groups that a mode opens, and that a continued training locks; the last two stay disabled while
/// scales are being picked.
inline constexpr std::array modusGruppen{5, 9, 10, 7, 0, 2, 3, 11, 4, 1};
/// Groups that an exam locks.
inline constexpr std::array pruefungsGruppen{5, 4, 9, 7};

}  // namespace setup
