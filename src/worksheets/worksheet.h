#pragma once
#include "core/formular.h"
#include "engine/run.h"
#include "engine/xml_recorder.h"
#include "staff/staff.h"
#include "worksheets/answer_field.h"
#include "worksheets/kept_training.h"
#include "worksheets/sound_presentation.h"

#include <memory>
#include <optional>
#include <string>

namespace worksheets {

/// The worksheet of an exercise: it shows a run, hands it what the learner does and what the clock
/// says, and leads out. What the four worksheets differ in are the row of their exercise, the field
/// that takes the answers, and whether something sounds.
class Worksheet final : public core::Formular {
  public:
    Worksheet(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung,
              results::Skalaxml& xml, const engine::Exercise& exercise);
    ~Worksheet() override;

    void activate() override;
    void closeBox() override { breakOff(); }
    /// A worksheet that is taken away in the middle of a task falls silent.
    void unloading() override;
    bool key(form::Key key) override;
    bool claimsEnter() const override { return true; }

    const engine::Run& run() const { return run_; }
    /// True once the form is being left: every wait and timer stops on it.
    const bool& abbruch() const { return abbruch_; }
    /// nullptr where there is none.
    staff::Staff* staff() const { return staff_; }

    /// The turns of a run, for those who look on.
    enum class Turn { RunReady, TaskDrawn, AnswerOpen, Answered, Closed, Clock, RunEnded };
    form::Signal<Turn> turn;

    // For the parts.
    /// The presentation has ended: the learner may answer, and the answer time begins.
    void allowAnswer();
    /// No answer is taken while the task is presented again.
    void closeAnswers() { field_->close(); }
    /// The open task is presented again.
    void repeated();
    /// Scores an answer and goes on.
    void scoreAnswer(const engine::Answer& answer);
    void offerNext();
    void withdrawNext();
    /// The task is being played.
    void listen();

  private:
    void start_timer();
    void setCaptions();
    void showMode();
    void showStanding();
    void showTestStanding(bool shown);
    void MatWahl();
    void showResult(const std::string& text, base::Colour letters, base::Colour ground);
    void showRight();
    void showWrong();
    std::string solution() const;
    void afterAnswer();
    /// Offers the control that leads to the next task: a button by hand, a label with a timer
    /// automatically.
    void Weiterschalter();
    void offerWayOn();
    void Uhrzeit_timer();
    void endByTime();

    void zurueck_click();
    void breakOff();
    void stopAll();
    void offerSaving();
    void showResultForm();
    void saveRecord();
    void returnToSetUp();
    void nachFehler(const std::string& prozedur) override;
    std::string logText(const std::string& prozedur) const override { return prozedur + name(); }

    sound::Midi& midi_;
    results::Skalaxml& xml_;
    engine::XmlRecorder recorder_;
    engine::Run run_;
    KeptTraining kept_;
    bool begun_ = false;
    bool abbruch_ = true;
    bool leaving_ = false;
    bool asking_ = false;  ///< whether the run is to be broken off: its end waits for the answer
    bool timeUp_ = false;
    bool failed_ = false;  ///< something failed: the run cannot be kept
    bool red_ = false;     ///< the last answer was wrong and is shown on red

    form::Group PicArb1{*this, {"PicArb1"}};
    form::Group PicArb2{*this, {"PicArb2"}};
    form::Group PicUebTyp{*this, {"PicUebTyp"}};
    form::ControlArray<form::Group> PicUetyp{*this, "PicUetyp", 3};
    form::Label ergebnis{*this, {"ergebnis", &PicArb1}};
    /// What `ergebnis` says of the task, and what is to be done while it says nothing.
    form::Label verdict{*this, {"verdict", &PicArb1}};
    form::Label todo{*this, {"todo", &PicArb1}};
    form::ControlArray<form::Label> true_false{*this, "true_false", 2, &PicArb1};
    form::ControlArray<form::Label> zaehler{*this, "zaehler", 2, &PicArb1};
    form::Button CmdNextAufg{*this, {"CmdNextAufg", &PicArb1}};
    form::Label LbNextAufg{*this, {"LbNextAufg", &PicArb1}};
    form::Panel zurueck{*this, {"zurueck", &PicArb1}};
    form::Panel matboxanz{*this, {"matboxanz", &PicUetyp(0)}};
    /// The ends of the bar, and where it stands, in words.
    form::Label barGoal{*this, {"barGoal", &PicUetyp(0)}};
    form::Label barFailed{*this, {"barFailed", &PicUetyp(0)}};
    form::Label barStanding{*this, {"barStanding", &PicUetyp(0)}};
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
    form::Timer WahlAutomat{*this, {"WahlAutomat"}, engine::taskGap};
    form::Timer Uhrzeit{*this, {"Uhrzeit"}, 10000};
    form::Timer testtimer{*this, {"testtimer"}, 5000};

    std::unique_ptr<AnswerField> field_;
    staff::Staff* staff_ = nullptr;
    std::optional<SoundPresentation> presentation_;
};

}  // namespace worksheets
