#include "drill/drill.h"

#include "determine/arbeitsblatt1.h"
#include "determine/arbeitsblatt1b.h"
#include "results/testergebnis.h"
#include "setup/datei_formulare.h"
#include "setup/einstellung.h"
#include "staff/arbeitsblatt4.h"
#include "staff/arbeitsblatt4b.h"

namespace drill {

template <class Sheet>
void Drill::worksheet(const std::string& name) {
    programm.forms.add(name, [this] { return std::make_unique<Sheet>(programm, midi, wertung); });
}

Drill::Drill(core::Ports ports, core::Aufruf aufruf, sound::MidiOutput& midiAusgabe)
    : programm(std::move(ports), std::move(aufruf)),
      midi(programm.ports.loop, programm.host),
      wertung(programm),
      ausgabe(midiAusgabe) {
    form::Forms& forms = programm.forms;
    for (const setup::Zweig zweig : {setup::Zweig::Gehoerbildung, setup::Zweig::Musiklehre})
        forms.add(zweig == setup::Zweig::Gehoerbildung ? "einstellung1" : "einstellung1b", [this,
                                                                                            zweig] {
            return std::make_unique<setup::Einstellung>(programm, wertung, midi, ausgabe, zweig);
        });
    worksheet<determine::Arbeitsblatt1>("arbeitsblatt1");
    worksheet<determine::Arbeitsblatt1b>("arbeitsblatt1b");
    worksheet<staff::Arbeitsblatt4>("arbeitsblatt4");
    worksheet<staff::Arbeitsblatt4b>("arbeitsblatt4b");
    forms.add("frmSave", [this] { return std::make_unique<setup::FrmSave>(programm); });
    forms.add("frmLoad", [this] { return std::make_unique<setup::FrmLoad>(programm); });
    forms.add("testergebnis",
              [this] { return std::make_unique<results::Testergebnis>(programm, wertung); });
}

}  // namespace drill
