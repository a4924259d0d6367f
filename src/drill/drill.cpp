#include "drill/drill.h"

#include "determine/arbeitsblatt1.h"
#include "results/testergebnis.h"
#include "setup/datei_formulare.h"
#include "setup/einstellung.h"

namespace drill {

Drill::Drill(core::Ports ports, core::Aufruf aufruf, sound::MidiOutput& midiAusgabe,
             std::int64_t seed)
    : programm(std::move(ports), std::move(aufruf), seed),
      midi(programm.ports.loop, programm.host),
      wertung(programm),
      ausgabe(midiAusgabe) {
    form::Forms& forms = programm.forms;
    forms.add("einstellung1", [this] {
        return std::make_unique<setup::Einstellung>(programm, wertung, midi, ausgabe,
                                                    setup::Zweig::Gehoerbildung);
    });
    forms.add("arbeitsblatt1", [this] {
        return std::make_unique<determine::Arbeitsblatt1>(programm, midi, wertung);
    });
    forms.add("frmSave", [this] { return std::make_unique<setup::FrmSave>(programm); });
    forms.add("frmLoad", [this] { return std::make_unique<setup::FrmLoad>(programm); });
    forms.add("testergebnis",
              [this] { return std::make_unique<results::Testergebnis>(programm, wertung); });
}

}  // namespace drill
