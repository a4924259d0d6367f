#include "drill/drill.h"

#include "results/testergebnis.h"
#include "setup/datei_formulare.h"
#include "setup/einstellung.h"
#include "worksheets/worksheet.h"

namespace drill {

Drill::Drill(core::Ports ports, core::Aufruf aufruf, sound::MidiOutput& midiOutput)
    : programm(std::move(ports), std::move(aufruf)),
      midi(programm.ports.loop, programm.host),
      wertung(programm.zustand),
      xml(programm),
      output(midiOutput) {
    form::Forms& forms = programm.forms;
    for (const setup::Zweig zweig : {setup::Zweig::Gehoerbildung, setup::Zweig::Musiklehre})
        forms.add(zweig == setup::Zweig::Gehoerbildung ? "einstellung1" : "einstellung1b",
                  [this, zweig] {
                      return std::make_unique<setup::Einstellung>(programm, wertung, xml, midi,
                                                                  output, zweig);
                  });
    for (const engine::Exercise& exercise : engine::exercises)
        forms.add(exercise.worksheet, [this, &exercise] {
            return std::make_unique<worksheets::Worksheet>(programm, midi, wertung, xml, exercise);
        });
    forms.add("frmSave", [this] { return std::make_unique<setup::FrmSave>(programm); });
    forms.add("frmLoad", [this] { return std::make_unique<setup::FrmLoad>(programm); });
    forms.add("testergebnis",
              [this] { return std::make_unique<results::Testergebnis>(programm, wertung); });
}

}  // namespace drill
