#include "core/programm.h"

#include "core/frm_message.h"
#include "core/grd_einst.h"

namespace core {

Programm::Programm(Ports p, Aufruf a)
    : ports(std::move(p)),
      aufruf(std::move(a)),
      worte(ports.sprachen),
      host(ports.host, ports.dialogs, zustand),
      forms(ports.loop) {
    host.verlust = [this](const Host::Verlust& was) {
        const wort::Id wort = !was.training       ? wort::hostGone
                              : was.hostFort      ? wort::connectionLost
                              : was.grund.empty() ? wort::trainingRefused
                                                  : wort::trainingRefusedBecause;
        Melden("Melvora 2000", eingesetzt(Wort(wort), was.grund));
    };
    forms.add("grd_einst", [this] { return std::make_unique<GrdEinst>(*this); });
    forms.add("frmMessage", [this] { return std::make_unique<FrmMessage>(*this); });
}

void Programm::Melden(const std::string& titel, const std::string& text) {
    static_cast<FrmMessage&>(forms.load("frmMessage")).Message(titel, text);
    forms.show("frmMessage");
}

}  // namespace core
