#pragma once
#include "core/formular.h"
#include "engine/aufgabe.h"
#include "engine/aufgabenwahl.h"
#include "engine/fortschritt.h"
#include "engine/matbox.h"
#include "engine/pruefung.h"
#include "engine/schalter.h"
#include "engine/vorfuehrung.h"
#include "results/wertung.h"
#include "sound/midi.h"

#include <functional>
#include <memory>
#include <string>

namespace engine {

/// What all four worksheets share: the run from its `start` tick to its end, the flow of a task,
/// the scoring of an answer, the exam clock and the way out. What they differ in are the virtual
/// members below, the `Tonart` and the `Vorfuehrung`.
class Arbeitsblatt : public core::Formular {
  public:
    using TonartFabrik =
        std::function<std::unique_ptr<Tonart>(core::Zustand&, base::Rnd&, Aufgabe&)>;

    Arbeitsblatt(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung,
                 std::string name, const TonartFabrik& tonart);

    void activate() override;
    void closeBox() override { zurueck_click(); }
    /// A worksheet that is taken away in the middle of a task falls silent.
    void unloading() override;
    bool key(form::Key key) override;
    bool claimsEnter() const override { return true; }

    /// True once the form is being left: every wait and timer stops on it.
    const bool& abbruch() const { return abbruch_; }
    const Aufgabe& aufgabe() const { return a; }
    AufgZustand aufgZustand() const { return aufgZustand_; }
    i16 restAufgaben() const { return restAufgaben_; }
    i16 restZeit() const { return restZeit_; }
    i16 pruefAufgaben() const { return pruefAufgaben_; }

    /// The presentation has ended: the learner may answer, and the answer time begins.
    void AntwortZulassen();
    /// No answer is taken while the task is presented again.
    virtual void AntwortenSchliessen() = 0;
    void NaechsteAnbieten();
    void NaechsteZurueckziehen();

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
    /// An answer as the learner gave it.
    struct Antwort {
        int index = 0;  ///< scale that was named; column for written answers
        bool richtig = false;
        std::string name;  ///< of the scale named, for the record
        float dauer = 0;   ///< answer time, tenths of a second
    };
    const Antwort& letzteAntwort() const { return letzteAntwort_; }
    /// Points of the task that was closed last, before booking: 0 or less for a right first answer.
    float letzteWertung() const { return letzteWertung_; }

  protected:
    // What the worksheets differ in.
    virtual Vorfuehrung& vorfuehrung() = 0;
    /// Prepares the answer controls and fills what they show.
    virtual void AntwortenVorbereiten() = 0;
    virtual void AntwortenOeffnen() = 0;
    /// All answers are closed, and locks of the task are taken off.
    virtual void AntwortenZuruecksetzen() = 0;
    /// One answer may not be given again in this task.
    virtual void AntwortSperren(const Antwort& antwort) = 0;
    /// Keeps what was answered wrongly.
    virtual void FalscheAntwortMerken(const Antwort& antwort) = 0;
    /// Enters an answer into the record, and begins a further one of the same task there.
    virtual void AntwortVermerken(pugi::xml_node node, const Antwort& antwort) = 0;
    virtual void VersuchVermerken(pugi::xml_node node) = 0;
    /// Prepares what the learner sees of a task that was drawn, before it is presented.
    virtual void AufgabeZeigen() {}
    /// The text of the solution. @param richtig after a right answer.
    virtual std::string Loesung(bool richtig) const = 0;
    /// After a task was lost.
    virtual void LoesungZeigen() {}
    /// Free answer time at the start of a run, tenths of a second.
    virtual i16 zeitFaktor() const = 0;
    /// Free answer time of the task in hand.
    virtual i16 zeitFaktorDerAufgabe() const { return zeitFaktor(); }
    /// Wrong answers that a task allows.
    virtual i16 erlaubt() const { return erlaubteFehler(z, wahl_.verschiedeneSkalen()); }

    /// Scores an answer and goes on: the one road of all answers.
    void AntwortWerten(const Antwort& antwort);

    void nachFehler(const std::string& prozedur) override;
    std::string logText(const std::string& prozedur) const override { return prozedur + name(); }

    void MatWahl();
    void zurueck_click();

    sound::Midi& midi_;
    results::Wertung& wertung_;
    Aufgabe a;
    Matbox matbox_;

  private:
    void start_timer();
    void Beschriften();
    void ModusEinrichten();
    void TrainingEinrichten();
    void TrainingFortsetzen();
    void TrainingAnzeigen();
    void PruefungEinrichten();
    void PruefungAnzeigen();
    void TeststandZeigen(bool sichtbar);

    void RichtigeAntwort();
    void FalscheAntwort(const Antwort& antwort);
    void AufgabeAbschliessen();
    void TrainingWeiter();
    void PruefungWeiter();
    void NachAntwort();
    void WeiterAnbieten();
    void TrainingsstandLoeschen();
    void SichernAnbieten();
    bool TrainingSichern();
    void Uhrzeit_timer();
    void ZeitAbzaehlen();

    void Saeen();
    void Stilllegen();
    void ErgebnisZeigen();
    void SatzSichern();
    void Heimkehren();
    std::string einstellungsform() const;
    NaechsteAufgabe naechste() { return {CmdNextAufg, LbNextAufg, WahlAutomat}; }

    std::unique_ptr<Tonart> tonart_;
    Aufgabenwahl wahl_;
    AufgZustand aufgZustand_{};
    Antwort letzteAntwort_;
    float letzteWertung_ = 0;
    i16 fehlerMax_;
    i16 pruefAufgaben_;
    i16 restAufgaben_;
    i16 restZeit_;
    bool begonnen_ = false;
    bool abbruch_ = true;
    bool verlassen_ = false;

  protected:
    form::Group PicArb1{*this, {"PicArb1"}};
    form::Group PicArb2{*this, {"PicArb2"}};
    form::Group PicUebTyp{*this, {"PicUebTyp"}};
    form::ControlArray<form::Group> PicUetyp{*this, "PicUetyp", 3};
    form::Label ergebnis{*this, {"ergebnis", form::Place::noIndex, &PicArb1}};
    form::ControlArray<form::Label> true_false{*this, "true_false", 2, &PicArb1};
    form::ControlArray<form::Label> zaehler{*this, "zaehler", 2, &PicArb1};
    form::Button CmdNextAufg{*this, {"CmdNextAufg", form::Place::noIndex, &PicArb1}};
    form::Label LbNextAufg{*this, {"LbNextAufg", form::Place::noIndex, &PicArb1}};
    form::Panel zurueck{*this, {"zurueck", form::Place::noIndex, &PicArb1}};
    form::Panel matboxanz{*this, {"matboxanz", form::Place::noIndex, &PicUetyp(0)}};
    form::ControlArray<form::Label> ergebnis_anz{*this, "ergebnis_anz", 3, &PicUetyp(0)};
    /// Labels of a state that no exercise of this program shows.
    form::ControlArray<form::Label> AuP_lab{*this, "AuP_lab", 4, &PicUetyp(2)};
    form::ControlArray<form::Label> AuP_Inh{*this, "AuP_Inh", 4, &PicUetyp(2)};
    form::Label lbAutP_Typ{*this, {"lbAutP_Typ", form::Place::noIndex, &PicUetyp(2)}};
    form::Label stop_uhr{*this, {"stop_uhr", form::Place::noIndex, &PicUetyp(1)}};
    form::Label lab_aufgaben{*this, {"lab_aufgaben", form::Place::noIndex, &PicUetyp(1)}};
    form::Button cmd_test_ein{*this, {"cmd_test_ein", form::Place::noIndex, &PicUetyp(1)}};
    form::Button cmd_test_aus{*this, {"cmd_test_aus", form::Place::noIndex, &PicUetyp(1)}};
    form::Label Uhr{*this, {"Uhr"}};
    form::Group WaitMeldung{*this, {"WaitMeldung"}};
    form::Label WaitMeld{*this, {"WaitMeld", form::Place::noIndex, &WaitMeldung}};
    form::Label copyright{*this, {"copyright"}};
    form::Label tasten{*this, {"tasten"}};
    form::Button cmdHilfe{*this, {"cmdHilfe"}};
    form::Timer start{*this, {"start"}, 1};
    form::Timer WahlAutomat{*this, {"WahlAutomat"}, 1800};
    form::Timer Uhrzeit{*this, {"Uhrzeit"}, 10000};
    form::Timer testtimer{*this, {"testtimer"}, 5000};
};

}  // namespace engine
