#pragma once
#include "base/rnd.h"
#include "core/zustand.h"
#include "engine/aufgabe.h"

namespace engine {

/// Fills tonAnz and stufenStimm of a category, and stufe where its scales share one pattern.
void SkalaTabellen(Aufgabe& a, int skal_typ);
/// Fills stufe for a scale with a pattern of its own; does nothing for the rotating categories.
void SkalaStufen(Aufgabe& a, int skal_typ, int skala_nr);

/// How the key of a task is drawn and its tones are made. The worksheets differ in it: sounding
/// scales take any transposition, written ones a key of the circle of fifths.
class Tonart {
  public:
    virtual ~Tonart() = default;
    /// Once per run.
    virtual void LaufBeginn() = 0;
    /// At the head of each draw, before scale and direction are known.
    virtual void Ziehen() = 0;
    /// The tones of the scale drawn.
    virtual void Toene() = 0;
    /// Whether drawing again may give the same key for ever.
    virtual bool fest() const = 0;
};

/// The key of a scale that is only heard: a transposition by 1 to 11 semitones, for the run or for
/// each task, or one final for the modes of a rotating category.
class KlingendeTonart final : public Tonart {
  public:
    KlingendeTonart(core::Zustand& zustand, base::Rnd& rnd, Aufgabe& aufgabe)
        : z(zustand), rnd_(rnd), a(aufgabe) {}
    void LaufBeginn() override;
    void Ziehen() override;
    void Toene() override;
    bool fest() const override { return z.final != 2; }

  private:
    core::Zustand& z;
    base::Rnd& rnd_;
    Aufgabe& a;
};

/// Tuning correction of the note at `position` of the task, in bend steps: by degree for
/// Pythagorean tuning (1), by pitch class for meantone (2).
i16 stimmWert(const Aufgabe& a, int stimmung, int skala_nr, int position);

}  // namespace engine
