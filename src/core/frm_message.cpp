#include "core/frm_message.h"

#include "core/wort.h"

namespace core {

FrmMessage::FrmMessage(Programm& programm) : Formular(programm, "frmMessage") {
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
    cmdOK.caption = Wort(wort::ok);
}

void FrmMessage::Message(const std::string& msgCaption, const std::string& msgPrompt) {
    setCaption(msgCaption);
    lblTitel.caption = msgCaption;
    txtPrompt.text = msgPrompt;
}

bool FrmMessage::key(form::Key key) {
    if (key.kind != form::Key::Kind::Enter && key.kind != form::Key::Kind::Escape) return false;
    cmdOK.click();
    return true;
}

}  // namespace core
