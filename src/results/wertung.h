#pragma once
#include "core/zustand.h"
#include "results/auswertung.h"

#include <string>

namespace results {

/// What a run is scored with. One instance lives as long as the process.
struct Wertung {
    explicit Wertung(core::Zustand& zustand) : z(zustand) {}

    /// Sizes the tables for every category and both directions.
    void vorbereiten();
    /// Books an evaluated task. @param i slot. @param wert its points: lower is better.
    void ErgebnisBuchen(i16 i, float wert);

    /// Marks a signed scale code as one that the run asks for.
    void AnwesenheitMerken(i16 code);

    core::Zustand& z;
    /// Wrong answers of the run.
    int wrongAnswers = 0;
    Auswertung auswertung;
    ergebnis ergebnis_best;
};

/// One row of the result form.
struct ErgebnisZeile {
    bool zaehlt = false;
    /// 1 for nothing but right first answers, 0 for the worst.
    float anteil = 0;
};

/// The share that a slot reached in the run in hand.
ErgebnisZeile ergebnisZeile(const Auswertung& auswertung, const core::Zustand& z, i16 slot);

/// "87.5%": one digit behind a point in every language, never a minus zero.
std::string prozentText(float anteil);
/// What stands where nothing was counted.
inline constexpr const char* nichtGezaehlt = "0.0 %";

}  // namespace results
