#include "staff/note_name.h"

#include "core/wort.h"
#include "staff/position.h"

namespace staff {

std::string noteName(core::Worte& worte, int qz) {
    const int place = 5 * letter(qz) + accidental(qz) + 2;
    return worte.Wort(core::wort::noteNames[place]);
}

}  // namespace staff
