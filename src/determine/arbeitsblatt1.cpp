#include "determine/arbeitsblatt1.h"

namespace determine {

Arbeitsblatt1::Arbeitsblatt1(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung)
    : BestimmenBlatt(programm, midi, wertung, "arbeitsblatt1",
                     [](core::Zustand& zustand, base::Rnd& rnd, engine::Aufgabe& aufgabe) {
                         return std::make_unique<engine::KlingendeTonart>(zustand, rnd, aufgabe);
                     }),
      klang_(*this, programm, midi, a, PicArb1) {
    setCaption("Skalen bestimmen");
    AntwortenVerbinden();
}

}  // namespace determine
