#include "staff/arbeitsblatt4b.h"

namespace staff {

Arbeitsblatt4b::Arbeitsblatt4b(core::Programm& programm, sound::Midi& midi,
                               results::Wertung& wertung)
    : SchreibBlatt(programm, midi, wertung, "arbeitsblatt4b") {
    setCaption("Skalen bestimmen");
}

void Arbeitsblatt4b::AntwortenVorbereiten() {
    SchreibBlatt::AntwortenVorbereiten();
    beschriften({{Label2, 802}, {tasten, 888}});
    aufg.caption = "";
}

void Arbeitsblatt4b::AufgabeZeigen() {
    SchreibBlatt::AufgabeZeigen();
    aufg.caption = p.katalog.skal_name[z.skal_typ][z.skala_nr];
}

}  // namespace staff
