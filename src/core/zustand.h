#pragma once
#include "base/array.h"
#include "base/i16.h"
#include "core/value.h"

#include <string>
#include <vector>

namespace core {

using base::i16;

/// Training modes, the values of `uebungsmodus`.
namespace modus {
constexpr int ausprobieren = 0, training = 1, fortsetzung = 2, test = 3, pruefung = 4;
}
/// Exercise types, the values of `ueb_typ`.
namespace uebung {
constexpr int bestimmen = 1, schreiben = 4;
}
/// Columns of `mathaeufgk_box`.
namespace gewicht {
constexpr int spalteCode = 0, spalteGewicht = 1;
}

/// The shared exercise state. Set-up forms fill it and runs read it; what result form and record
/// want of a run is left here. It lives as long as the process.
struct Zustand {
    // Set-up.
    i16 theoriewahl;                        ///< branch: 0 ear training, 1 music theory
    i16 ueb_typ = 1;                        ///< 1 determine, 4 write
    i16 uebungsmodus;                       ///< 0 try-out, 1 and 2 training, 3 test, 4 exam
    i16 prfNr;                              ///< exam number 1..5
    i16 zufallsNr;                          ///< fixed seed of an exam's tasks, 0 for none
    i16 abfrage;                            ///< next task: 0 by hand, 1 automatically
    i16 abfolge;                            ///< order of tones: 0 scale, 1 melody
    i16 skal_typ;                           ///< category 0..6
    i16 skal_anz;                           ///< highest scale of the category
    i16 ska_ausw;                           ///< 0 all scales, 1 chosen ones
    i16 einzelAnz;                          ///< highest index in use in einzel_wahl
    base::FixedArray<i16, 15> einzel_wahl;  ///< chosen signed scale codes
    i16 richtung = 2;                       ///< 0 ascending, 1 descending, 2 both
    i16 final = 2;                          ///< 0 same key signature, 1 same final, 2 both changing
    i16 oktAnz;                             ///< index of the range's size
    i16 FrquMinAkt = 48;                    ///< lowest MIDI note of the range
    i16 FrquMaxAkt = 72;                    ///< highest MIDI note of the range
    i16 tempoIdx = 1;                       ///< index into tempo_dauer
    i16 frequenz;                           ///< reference pitch: 0 fixed, 1 varies
    i16 stimmung;                           ///< 0 equal, 1 Pythagorean, 2 meantone (Kirnberger)
    i16 an_zeig;                            ///< answers: 0 pictures, 1 names
    base::FixedArray<i16, 9> patch;         ///< General MIDI program per channel
    std::vector<int> usedInstruments;       ///< General MIDI programs heard last, latest first
    base::FixedArray<i16, 10> tempo_dauer;  ///< milliseconds per quarter note

    // Host.
    bool angemeldet = false;               ///< a user is logged in
    Value gelesen_a;                       ///< record read with an "A" key
    Value gelesen_e;                       ///< record read with an "E" key, or to be written so
    std::vector<std::string> einst_liste;  ///< recap: [0] highest index, then key, value, ...

    // Run.
    base::Table<i16> mathaeufgk_box;  ///< rows 1 up, one for each scale code: signed code, weight
    float bewertung_basis = 0;  ///< half of the wrong answers allowed: weight of a task's points
    i16 bestAnz;                ///< best scores kept per scale on write worksheets
    Value abbruch_stand;        ///< record written when a training is interrupted
};

/// Ear training: what is asked sounds.
inline bool isEarTraining(const Zustand& z) { return z.theoriewahl == 0; }
/// A training, new or continued: weights decide what is asked, and it may be kept.
inline bool isTraining(const Zustand& z) {
    return z.uebungsmodus == modus::training || z.uebungsmodus == modus::fortsetzung;
}
/// A test or an exam: tasks and time are limited.
inline bool isTest(const Zustand& z) { return z.uebungsmodus > modus::fortsetzung; }
/// Answers count: in every mode but try-out.
inline bool isScored(const Zustand& z) { return z.uebungsmodus > modus::ausprobieren; }

/// Whether a run asks for a scale of the category at all. @param scale from 0.
inline bool isOffered(const Zustand& z, int scale) {
    if (scale > z.skal_anz) return false;
    if (z.ska_ausw == 0) return true;
    for (int i = 0; i <= z.einzelAnz; ++i) {
        const i16 code = z.einzel_wahl[i];
        if (code == scale + 1 || code == -(scale + 1)) return true;
    }
    return false;
}

/// Slot under which a signed scale code is scored: |code|, for a descending one `skal_anz` + 1
/// more.
constexpr i16 skalaSlot(i16 code, i16 skal_anz) {
    const int size = code < 0 ? -int(code) : int(code);
    return size + (1 - base::sgn(code)) * (int(skal_anz) + 1) / 2;
}

}  // namespace core
