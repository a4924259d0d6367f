#include "core/programm.h"

#include "core/frm_message.h"
#include "core/grd_einst.h"

namespace core {

Programm::Programm(Ports p, Aufruf a, std::int64_t seed)
    : ports(std::move(p)),
      aufruf(std::move(a)),
      worte(ports.sprachen),
      host(ports.host, ports.dialogs, zustand),
      rnd(seed),
      forms(ports.loop) {
    host.verlust = [this] { Melden("Melvora 2000", Wort(814)); };
    forms.add("grd_einst", [this] { return std::make_unique<GrdEinst>(*this); });
    forms.add("frmMessage", [this] { return std::make_unique<FrmMessage>(*this); });
}

void Programm::Melden(const std::string& titel, const std::string& text) {
    static_cast<FrmMessage&>(forms.load("frmMessage")).Message(titel, text);
    forms.show("frmMessage");
}

}  // namespace core
