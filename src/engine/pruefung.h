#pragma once
#include "base/i16.h"

namespace engine {

using base::i16;

/// What one task of a test or exam takes.
struct Aufgabendauer {
    int vorfuehrung = 0;   ///< of the sound, milliseconds; 0 where nothing sounds
    int wechsel = 1800;    ///< to the next task, milliseconds
    int zeit_faktor = 20;  ///< free answer time, tenths of a second
};

/// Seconds for an exam of that many tasks, rounded up to a multiple of ten.
i16 ExamenDauer(const Aufgabendauer& dauer, int aufgaben);

/// Length of a test or exam: four tasks for each scale code, fewer where that would take more than
/// ten minutes, more where it would take less than three.
struct Pruefungsplan {
    i16 pruefAufgaben;      ///< tasks
    i16 restZeit;           ///< seconds
    bool gekuerzt = false;  ///< shortened to three quarters
};
Pruefungsplan planen(const Aufgabendauer& dauer, int potSkala);

}  // namespace engine
