#pragma once
#include "core/formular.h"

namespace core {

/// The program's own small message form, for longer texts.
class FrmMessage final : public Formular {
  public:
    explicit FrmMessage(Programm& programm);
    void Message(const std::string& msgCaption, const std::string& msgPrompt);
    void closeBox() override { cmdOK_click(); }
    bool key(form::Key key) override;

  private:
    void cmdOK_click() { forms().unload(name()); }

    form::Picture picTitel{*this, {"picTitel"}};
    form::Label lblTitel{*this, {"lblTitel"}};
    form::TextBox txtPrompt{*this, {"txtPrompt"}};
    form::Button cmdOK{*this, {"cmdOK"}};
};

}  // namespace core
