#pragma once
#include "core/zustand.h"

namespace engine {

using base::i16;

/// Milliseconds from a closed task to the next one where that comes by itself.
inline constexpr int taskGap = 1800;

/// Milliseconds that one task sounds as it is set up.
int soundingTime(const core::Zustand& z);

/// What one task of a test or exam takes.
struct TaskDuration {
    int presentation = 0;  ///< of the sound, milliseconds; 0 where nothing sounds
    int gap = taskGap;     ///< to the next task, milliseconds
    int zeit_faktor = 20;  ///< free answer time, tenths of a second
};

/// Seconds for an exam of that many tasks, rounded up to a multiple of ten.
i16 ExamenDauer(const TaskDuration& dauer, int tasks);

/// Length of a test or exam: four tasks for each scale code, fewer where that would take more than
/// ten minutes, more where it would take less than three.
struct ExamPlan {
    i16 pruefAufgaben;       ///< tasks
    i16 restZeit;            ///< seconds
    bool shortened = false;  ///< to three quarters
};
ExamPlan planExam(const TaskDuration& dauer, int potSkala);

}  // namespace engine
