#pragma once
#include "engine/toene.h"
#include "staff/tonhoehe.h"

namespace staff {

/// Accidentals that a task asks for, at least 1: those of its key, one less when the first note
/// of the scale carries one of its own.
/// @param quintLage key in fifths from C. @param ersterTon fifths of the scale's first note from
/// the key's.
constexpr i16 vorzeichenAnzahl(i16 quintLage, i16 ersterTon) {
    const int quinten = ersterTon + quintLage;
    const bool rein = quinten > -2 && quinten < 6;
    const i16 betrag = quintLage < 0 ? -quintLage : quintLage;
    const i16 n = betrag - (rein ? 0 : 1);
    return n == 0 ? i16(1) : n;
}

/// The key of a scale that is spelled: one of the circle of fifths, drawn anew for each task.
class KreisTonart final : public engine::Tonart {
  public:
    enum class Art {
        Schreiben,  ///< one to six signs; in tests and exams the key of the bag's row
        Bestimmen   ///< none to seven signs
    };
    KreisTonart(core::Zustand& zustand, base::Rnd& rnd, engine::Aufgabe& aufgabe, Art art)
        : z(zustand), rnd_(rnd), a(aufgabe), art_(art) {}

    void LaufBeginn() override;
    void Ziehen() override;
    void Toene() override;
    /// In a written test or exam the keys are those of the bag: a plain draw keeps the last.
    bool fest() const override {
        return art_ == Art::Schreiben && z.uebungsmodus > core::modus::fortsetzung;
    }

    /// Fifths of a degree from the first one of the category's base scale; 0 where a category has
    /// no place on the circle.
    static i16 stufenQz(int skal_typ, int stufe);

  private:
    void rotierteToene();
    void eigeneToene();

    core::Zustand& z;
    base::Rnd& rnd_;
    engine::Aufgabe& a;
    Art art_;
};

}  // namespace staff
