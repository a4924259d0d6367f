#pragma once
#include "engine/arbeitsblatt.h"

#include <array>

namespace determine {

using base::i16;

/// A worksheet on which a scale is named: up to ten answers, as pictures or as names.
class BestimmenBlatt : public engine::Arbeitsblatt {
  public:
    using Arbeitsblatt::Arbeitsblatt;

    bool key(form::Key key) override;
    void AntwortenSchliessen() override;
    /// The learner names a scale.
    void skal_antw(int Index);
    /// Whether the run offers that answer.
    bool gewaehlt(int Index) const;

  protected:
    /// Gives the answers their handlers; called by the constructors.
    void AntwortenVerbinden();
    void AntwortenVorbereiten() override;
    void AntwortenOeffnen() override { Schalterfreigabe(); }
    void AntwortenZuruecksetzen() override;
    void AntwortSperren(const Antwort& antwort) override;
    void FalscheAntwortMerken(const Antwort& antwort) override;
    void AntwortVermerken(pugi::xml_node node, const Antwort& antwort) override;
    void VersuchVermerken(pugi::xml_node node) override;
    std::string Loesung(bool richtig) const override;

  private:
    static constexpr int maxAntworten = 10;

    /// Opens the answers that were not tried on this task.
    void Schalterfreigabe();
    void oeffnen(int i, bool offen);
    bool bilder() const { return z.an_zeig == 0; }

    std::array<bool, maxAntworten> gesperrt_{};

  protected:
    form::Label tonarten{*this, {"tonarten", form::Place::noIndex, &PicArb2}};
    form::ControlArray<form::Panel> tonart{*this, "tonart", maxAntworten, &PicArb2};
    form::ControlArray<form::Panel> skal_pan{*this, "skal_pan", maxAntworten, &PicArb2};
    form::ControlArray<form::Picture> ton_art{*this, "ton_art", maxAntworten, &PicArb2};
    form::ControlArray<form::Label> skal_bez{*this, "skal_bez", maxAntworten, &PicArb2};
    /// The digit key of each answer.
    form::ControlArray<form::Label> ziffer{*this, "ziffer", maxAntworten, &PicArb2};
};

}  // namespace determine
