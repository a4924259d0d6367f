#include "staff/arbeitsblatt4.h"

namespace staff {

Arbeitsblatt4::Arbeitsblatt4(core::Programm& programm, sound::Midi& midi, results::Wertung& wertung)
    : SchreibBlatt(programm, midi, wertung, "arbeitsblatt4"),
      klang_(*this, programm, midi, a, PicArb1) {
    setCaption("Skalen schreiben");
    klang_.EigeneFassungAnbieten([this] { return eigeneFassung(); });
}

}  // namespace staff
