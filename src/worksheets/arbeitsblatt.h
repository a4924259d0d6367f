#pragma once
#include "core/formular.h"
#include "engine/lauf.h"
#include "engine/xml_protokoll.h"
#include "staff/notenzeile.h"
#include "worksheets/antwortfeld.h"
#include "worksheets/klang_vorfuehrung.h"

#include <memory>
#include <optional>
#include <string>

namespace worksheets {

/// The worksheet of an exercise: it shows a run, hands it what the learner does and what the clock
/// says, and leads out. What the four worksheets differ in are the row of their exercise, the field
/// that takes the answers, and whether something sounds.
class Arbeitsblatt final : public core::Formular {
  public:
    Arbeitsblatt(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung,
                 results::Skalaxml& xml, const engine::Uebung& uebung);
    ~Arbeitsblatt() override;

    void activate() override;
    void closeBox() override { zurueck_click(); }
    /// A worksheet that is taken away in the middle of a task falls silent.
    void unloading() override;
    bool key(form::Key key) override;
    bool claimsEnter() const override { return true; }

    const engine::Lauf& lauf() const { return lauf_; }
    /// True once the form is being left: every wait and timer stops on it.
    const bool& abbruch() const { return abbruch_; }
    /// nullptr where there is none.
    staff::Notenzeile* notenzeile() const { return zeile_; }

    /// The turns of a run, for those who look on.
    enum class Ereignis {
        LaufBereit,
        AufgabeGezogen,
        AntwortOffen,
        Geantwortet,
        Geschlossen,
        Uhr,
        LaufEnde
    };
    form::Signal<Ereignis> ereignis;

    // For the parts.
    /// The presentation has ended: the learner may answer, and the answer time begins.
    void AntwortZulassen();
    /// No answer is taken while the task is presented again.
    void AntwortenSchliessen() { feld_->schliessen(); }
    /// The open task is presented again.
    void wiederholt();
    /// Scores an answer and goes on.
    void AntwortWerten(const engine::Antwort& antwort);
    void NaechsteAnbieten();
    void NaechsteZurueckziehen();

  private:
    void start_timer();
    void Beschriften();
    void ModusZeigen();
    void TrainingAufnehmen();
    void StandZeigen();
    void TeststandZeigen(bool sichtbar);
    void MatWahl();
    void RichtigZeigen();
    void FalschZeigen();
    std::string Loesung() const;
    void NachAntwort();
    /// Offers the control that leads to the next task: a button by hand, a label with a timer
    /// automatically.
    void Weiterschalter();
    void WeiterAnbieten();
    void Uhrzeit_timer();

    void zurueck_click();
    void Stilllegen();
    void SichernAnbieten();
    bool TrainingSichern();
    void TrainingsstandLoeschen();
    void ErgebnisZeigen();
    void SatzSichern();
    void Heimkehren();
    std::string einstellungsform() const;
    void FortsetzungAnbieten(bool vorhanden, int gewaehlt);
    void nachFehler(const std::string& prozedur) override;
    std::string logText(const std::string& prozedur) const override { return prozedur + name(); }

    /// Milliseconds from a closed task to the next one that comes by itself.
    static constexpr int wechselzeit = 1800;

    sound::Midi& midi_;
    results::Skalaxml& xml_;
    engine::XmlProtokoll protokoll_;
    engine::Lauf lauf_;
    bool begonnen_ = false;
    bool abbruch_ = true;
    bool verlassen_ = false;
    bool gescheitert_ = false;  ///< something failed: the run cannot be kept
    bool rot_ = false;          ///< the last answer was wrong and is shown on red

    form::Group PicArb1{*this, {"PicArb1"}};
    form::Group PicArb2{*this, {"PicArb2"}};
    form::Group PicUebTyp{*this, {"PicUebTyp"}};
    form::ControlArray<form::Group> PicUetyp{*this, "PicUetyp", 3};
    form::Label ergebnis{*this, {"ergebnis", &PicArb1}};
    form::ControlArray<form::Label> true_false{*this, "true_false", 2, &PicArb1};
    form::ControlArray<form::Label> zaehler{*this, "zaehler", 2, &PicArb1};
    form::Button CmdNextAufg{*this, {"CmdNextAufg", &PicArb1}};
    form::Label LbNextAufg{*this, {"LbNextAufg", &PicArb1}};
    form::Panel zurueck{*this, {"zurueck", &PicArb1}};
    form::Panel matboxanz{*this, {"matboxanz", &PicUetyp(0)}};
    form::ControlArray<form::Label> ergebnis_anz{*this, "ergebnis_anz", 3, &PicUetyp(0)};
    /// Labels of a state that no exercise of this program shows.
    form::ControlArray<form::Label> AuP_lab{*this, "AuP_lab", 4, &PicUetyp(2)};
    form::ControlArray<form::Label> AuP_Inh{*this, "AuP_Inh", 4, &PicUetyp(2)};
    form::Label lbAutP_Typ{*this, {"lbAutP_Typ", &PicUetyp(2)}};
    form::Label stop_uhr{*this, {"stop_uhr", &PicUetyp(1)}};
    form::Label lab_aufgaben{*this, {"lab_aufgaben", &PicUetyp(1)}};
    form::Button cmd_test_ein{*this, {"cmd_test_ein", &PicUetyp(1)}};
    form::Button cmd_test_aus{*this, {"cmd_test_aus", &PicUetyp(1)}};
    form::Label Uhr{*this, {"Uhr"}};
    form::Group WaitMeldung{*this, {"WaitMeldung"}};
    form::Label WaitMeld{*this, {"WaitMeld", &WaitMeldung}};
    form::Label copyright{*this, {"copyright"}};
    form::Label tasten{*this, {"tasten"}};
    form::Button cmdHilfe{*this, {"cmdHilfe"}};
    form::Timer start{*this, {"start"}, 1};
    form::Timer WahlAutomat{*this, {"WahlAutomat"}, wechselzeit};
    form::Timer Uhrzeit{*this, {"Uhrzeit"}, 10000};
    form::Timer testtimer{*this, {"testtimer"}, 5000};

    std::unique_ptr<Antwortfeld> feld_;
    staff::Notenzeile* zeile_ = nullptr;
    std::optional<KlangVorfuehrung> klang_;
};

}  // namespace worksheets
