#include "core/formular.h"

namespace core {

bool Formular::key(form::Key key) {
    if (key.kind != form::Key::Kind::Help) return false;
    HilfeZeigen();
    return true;
}

void Formular::HilfeZeigen() { p.ports.help.open(name(), p.worte.suffix()); }

void Formular::beschriften(std::initializer_list<Beschriftung> beschriftungen) {
    for (const auto& [control, wort] : beschriftungen) control.caption = Wort(wort);
}

void Formular::failed(const std::string& prozedur, const std::exception& fehler) {
    p.host.HostFehler(logText(prozedur), fehler);
    p.ports.dialogs.message(form::Icon::Exclamation, "Melvora 2000",
                            Wort(720) + "\n" + Wort(721) + "\n" + Wort(722) + "\n" + Wort(723));
    nachFehler(prozedur);
}

}  // namespace core
