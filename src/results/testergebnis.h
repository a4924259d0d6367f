#pragma once
#include "core/formular.h"
#include "results/wertung.h"

namespace results {

/// The result of a run: the share of the score per scale, the total, the settings, and who it was.
class Testergebnis final : public core::Formular {
  public:
    Testergebnis(core::Programm& programm, Wertung& wertung);

    void load() override { start.start(); }
    void closeBox() override { cmdOK_click(); }
    bool key(form::Key key) override;
    /// Rows of one direction; a run of both has as many again.
    int zeilenJeRichtung() const { return z.skal_anz + 1; }

    struct Zeile {
        std::string name, prozent;
    };
    /// The rows as they stand on the form.
    std::vector<Zeile> zeilen() const;
    const std::string& gesamtText() const { return gesamt.caption(); }

  protected:
    /// A result that cannot be shown must not keep the learner.
    void nachFehler(const std::string& prozedur) override {
        if (prozedur == "start_timer.") forms().unload(name());
    }

  private:
    static constexpr int maxZeilen = 21;
    static constexpr int maxEinst = 33;

    void start_timer();
    void Beschriften();
    void ZeilenZeigen();
    void ErgebnisZeile(int i, int slot, const std::string& name);
    void GewichteZeigen();
    void EinstellungenZeigen();
    void LbGrdEinst();
    void cmdOK_click();
    void cmdPrint_click();

    Wertung& wertung_;
    float summe_ = 0;
    int gezaehlt_ = 0;

    form::Label erg_head{*this, {"erg_head"}};
    form::Group erg_cont{*this, {"erg_cont"}};
    form::ControlArray<form::Label> Lab_richtung{*this, "Lab_richtung", 2, &erg_cont};
    form::ControlArray<form::Label> Lab_ergeb{*this, "Lab_ergeb", maxZeilen, &erg_cont};
    form::ControlArray<form::Panel> balken{*this, "balken", maxZeilen, &erg_cont};
    form::ControlArray<form::Label> ergebnis{*this, "ergebnis", maxZeilen, &erg_cont};
    form::Label Lab_gesamt{*this, {"Lab_gesamt", &erg_cont}};
    form::Label gesamt{*this, {"gesamt", &erg_cont}};
    /// Why it is not all, where every answer was right.
    form::Label lost{*this, {"lost", &erg_cont}};
    /// After a training: its scales by weight, weakest first.
    form::Group schwach_cont{*this, {"schwach_cont"}};
    form::Label schwach_head{*this, {"schwach_head", &schwach_cont}};
    form::ControlArray<form::Label> Lab_schwach{*this, "Lab_schwach", maxZeilen - 1, &schwach_cont};
    form::ControlArray<form::Label> gewicht{*this, "gewicht", maxZeilen - 1, &schwach_cont};
    form::Label einst_head{*this, {"einst_head"}};
    form::Group einst_cont{*this, {"einst_cont"}};
    form::ControlArray<form::Label> einst_lab{*this, "einst_lab", maxEinst, &einst_cont};
    form::ControlArray<form::Label> einst_Inh{*this, "einst_Inh", maxEinst, &einst_cont};
    form::Label grd_einst_head{*this, {"grd_einst_head"}};
    form::Group gr_einst{*this, {"gr_einst"}};
    form::ControlArray<form::Label> g_einst_lab{*this, "g_einst_lab", 6, &gr_einst};
    form::ControlArray<form::Label> g_einst_inh{*this, "g_einst_inh", 6, &gr_einst};
    /// The buttons; not on paper.
    form::Group PicSchalt{*this, {"PicSchalt"}};
    form::Button cmdHilfe{*this, {"cmdHilfe", &PicSchalt}};
    form::Button cmdPrint{*this, {"cmdPrint", &PicSchalt}};
    form::Button cmdOK{*this, {"cmdOK", &PicSchalt}};
    form::Timer start{*this, {"start"}, 1};
    form::Timer testtimer{*this, {"testtimer"}, 5000};
};

}  // namespace results
