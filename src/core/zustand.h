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

/// The shared exercise state. Set-up forms fill it, worksheets read it and keep their run in it,
/// result form and record read it at the end. It lives as long as the process.
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
    base::FixedArray<i16, 10> tempo_dauer;  ///< milliseconds per quarter note

    // Host.
    bool angemeldet = false;               ///< a user is logged in
    Value gelesen_a;                       ///< record read with an "A" key
    Value gelesen_e;                       ///< record read with an "E" key, or to be written so
    std::vector<std::string> einst_liste;  ///< recap: [0] highest index, then key, value, ...

    // Run.
    i16 skala_nr;                     ///< scale of the task
    i16 akt_richtung = 1;             ///< +1 ascending, -1 descending
    base::Table<i16> matbox;          ///< task pool, rows 1..matboxanz: signed code, key
    i16 matboxanz;                    ///< rows in matbox
    i16 potSkala;                     ///< number of different scale codes of the run
    base::Table<i16> mathaeufgk_box;  ///< rows 1..potSkala: signed code, weight
    i16 wiederholung = 4;             ///< start weight of each scale code
    i16 matbox_zahl;                  ///< sum of the positive weights
    i16 ton_anz_akt;                  ///< wrong answers that a task allows
    float bewertung_basis = 0;        ///< half of ton_anz_akt: weight of a task's points
    float AntwDauStart = 0;           ///< clock reading when the answer time began, s
    float antw_ende = 0;              ///< clock reading at the answer, s
    float AntwDau = 0;                ///< answer time: s while it adds up, then tenths of a second
    i16 zeit_faktor = 20;             ///< free answer time, tenths of a second
    float punkte = 0;                 ///< error points; -4 marks a right first answer
    float zeit_malus = 0;             ///< score correction for time
    i16 whlgAnz;                      ///< repetitions of the task
    i16 whlg_anz;                     ///< repetitions since the last answer
    i16 antwort_nr;                   ///< running number of the answer in the record
    Value abbruch_stand;              ///< record written when a training is interrupted
    base::FixedArray<i16, 10> FalschSkala;  ///< signed codes of the wrong answers, from 1
    i16 bestAnz;                            ///< best scores kept per scale on write worksheets
    i16 schalter_frei;                      ///< above 0 once a task has been closed
};

/// Ear training: what is asked sounds.
inline bool gehoerbildung(const Zustand& z) { return z.theoriewahl == 0; }
/// A training, new or continued: weights decide what is asked, and it may be kept.
inline bool imTraining(const Zustand& z) {
    return z.uebungsmodus == modus::training || z.uebungsmodus == modus::fortsetzung;
}
/// A test or an exam: tasks and time are limited.
inline bool imTest(const Zustand& z) { return z.uebungsmodus > modus::fortsetzung; }
/// Answers count: in every mode but try-out.
inline bool gewertet(const Zustand& z) { return z.uebungsmodus > modus::ausprobieren; }

/// Slot under which a signed scale code is scored: |code|, for a descending one `skal_anz` + 1
/// more.
constexpr i16 skalaSlot(i16 code, i16 skal_anz) {
    const int size = code < 0 ? -int(code) : int(code);
    return size + (1 - base::sgn(code)) * (int(skal_anz) + 1) / 2;
}

}  // namespace core
