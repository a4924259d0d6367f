#include "core/fortsetzung.h"

#include "core/wort.h"
#include "form/controls.h"

namespace core {

std::string satz(const Zustand& z) {
    return std::to_string(z.ueb_typ) + (isEarTraining(z) ? "" : "b");
}

void offerContinuation(Programm& p, const std::string& formular, bool vorhanden, int gewaehlt) {
    const form::Form* einstellung = p.forms.loaded(formular);
    auto* combo =
        einstellung ? static_cast<form::Combo*>(einstellung->find("training_Combo")) : nullptr;
    if (!combo || combo->count() <= modus::fortsetzung) return;
    combo->setText(modus::fortsetzung,
                   vorhanden ? p.Wort(wort::continueTraining) : keineFortsetzung);
    combo->setListIndex(gewaehlt);
}

}  // namespace core
