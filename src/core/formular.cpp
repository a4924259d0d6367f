#include "core/formular.h"

#include "base/runtime_error.h"
#include "core/wort.h"

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

void Formular::benennen(std::initializer_list<Beschriftung> namen) {
    for (const auto& [control, wort] : namen) control.accessibleName = Wort(wort);
}

void Formular::failed(const std::string& prozedur, const std::exception& fehler) {
    setPointer(form::Pointer::Arrow);
    p.host.HostFehler(logText(prozedur), fehler);
    std::string text = Wort(wort::errorOccurred) + "\n" + Wort(wort::detailsInLog) + "\n" +
                       Wort(wort::exerciseIsLeft) + "\n" + Wort(wort::startAgain);
    // Which path cannot be used, and what to do, is worth more than a look into the log.
    const auto* laufzeit = dynamic_cast<const base::RuntimeError*>(&fehler);
    if (laufzeit && laufzeit->number() == static_cast<int>(base::ErrorNumber::PathAccess))
        text += std::string("\n\n") + fehler.what();
    p.ports.dialogs.message(form::Icon::Exclamation, "Melvora 2000", text);
    nachFehler(prozedur);
}

}  // namespace core
