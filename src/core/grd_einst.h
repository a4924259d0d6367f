#pragma once
#include "core/formular.h"

namespace core {

/// The start form: branch and type of the exercise. Its load opens the host link; its `start` tick
/// prepares everything that lives for the whole run.
class GrdEinst final : public Formular {
  public:
    explicit GrdEinst(Programm& programm);

    /// @throws ProgrammEnde without a host.
    void load() override;
    void closeBox() override { cmdEnde_click(); }
    bool key(form::Key key) override;

  protected:
    void nachFehler(const std::string&) override { forms().show(name()); }

  private:
    void start_timer();
    void cmdOK_click();
    void cmdEnde_click();
    void KommandozeileLesen() const;
    void StartdateiOeffnen();

    form::ControlArray<form::Group> grdeinst{*this, "grdeinst", 2};
    form::ControlArray<form::Option> Theoriewahl{*this, "Theoriewahl", 2, &grdeinst(0)};
    /// Headings: 0 of the types, 1 of the branches.
    form::ControlArray<form::Label> grdeinst_lb{*this, "grdeinst_lb", 2, &grdeinst(1)};
    form::ControlArray<form::Option> ueb_typ{*this, "ueb_typ", {1, 2, 3, 4}, &grdeinst(1)};
    form::Button cmdHilfe{*this, {"cmdHilfe"}};
    form::Button cmdEnde{*this, {"cmdEnde"}};
    form::Button cmdOK{*this, {"cmdOK"}};
    form::Picture PicAktion{*this, {"PicAktion"}};
    form::Picture MThPic{*this, {"MThPic"}};
    form::Label copyright{*this, {"copyright"}};
    form::Label Kontrolle{*this, {"Kontrolle"}};
    form::Timer start{*this, {"start"}, 1};
    form::Timer testtimer{*this, {"testtimer"}, 5000};
};

}  // namespace core
