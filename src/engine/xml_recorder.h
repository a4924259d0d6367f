#pragma once
#include "core/katalog.h"
#include "core/zustand.h"
#include "engine/exercise.h"
#include "engine/run_recorder.h"
#include "results/skalaxml.h"

namespace engine {

/// The record of a run, task by task, in the XML document that the suite collects.
class XmlRecorder final : public RunRecorder {
  public:
    XmlRecorder(results::Skalaxml& xml, const core::Katalog& katalog, const core::Zustand& zustand,
                const Exercise& exercise)
        : xml_(xml), katalog_(katalog), z(zustand), exercise_(exercise) {}

    void task(const Task& a) override;
    void answer(const Task& a, const Answer& answer) override;
    void anotherTry(i16 nr) override;

  private:
    results::Skalaxml& xml_;
    const core::Katalog& katalog_;
    const core::Zustand& z;
    const Exercise& exercise_;
};

}  // namespace engine
