#pragma once
#include "base/rnd.h"
#include "core/zustand.h"
#include "results/auswertung.h"

#include <functional>

namespace engine {

using base::i16;

/// The task pool of a run. In training it holds each scale as many times as its weight, heaviest
/// first; in tests and exams it is a bag from which drawn entries are removed.
class Matbox {
  public:
    Matbox(core::Zustand& zustand, results::Auswertung& auswertung, base::Rnd& rnd)
        : z(zustand), auswertung_(auswertung), rnd_(rnd) {}

    /// Counts the scale codes of the run, and fixes a single direction.
    void PotSkalaBestimmen();
    /// Start weight of each scale code: the fewer scales, the more often each stands in the pool.
    static i16 startgewicht(i16 n) { return n * 4 < 30 ? 30 / n : i16(4); }

    /// A new training: equal weights, a full pool.
    void TrainingBeginnen();
    /// A training taken up again: the pool as the weights in `mathaeufgk_box` want it.
    void TrainingFortsetzen();
    /// The bag of a test or exam: every code once, the rest at random. @param zeilen its size.
    void PruefungBeginnen(int zeilen);
    /// Fills the bag anew. @param richtungsArt `richtung`. Leaves the task in hand as it is.
    void MatFuellen(i16 richtungsArt);
    /// Sorts the weights, sums the positive ones and rebuilds the pool from them.
    void MatNeu();
    /// Writes the pool from the weights, each raised by `versatz`.
    void MatAusBox(i16 versatz);
    /// Adds to the weight of a code; a code that is not in the run is passed over.
    void gewichten(i16 code, i16 mehr);

    /// Draws scale and direction of a task into skala_nr and akt_richtung.
    /// @param nutzeBox from the pool; otherwise plainly over all that the run may draw.
    /// @param floodPercent where the training stands, 0..100.
    /// @return row of the pool, 0 after a plain draw.
    i16 Ziehen(bool nutzeBox, int floodPercent);
    /// Takes the first entry with that code out of the bag.
    void verbrauchen(i16 code);

    /// Weight sum at which a training has failed.
    i16 obergrenze() const { return z.wiederholung * z.potSkala * 2; }
    /// Marks the slots of all codes of the run as present.
    void anwesenheitMerken();

    /// Called for each row of the bag as it is filled; written tasks add a key to it.
    std::function<void(int zeile)> zeileGefuellt;
    /// Column of the score table that marks the presence of a slot.
    i16 anwesendSpalte = 3;

  private:
    i16 fuellCode(int zeile, i16 richtungsArt);
    i16 freierCode(i16 richtungsArt);
    i16 trainingsZeile(int floodPercent);

    core::Zustand& z;
    results::Auswertung& auswertung_;
    base::Rnd& rnd_;
};

}  // namespace engine
