#include "staff/tonname.h"

#include "core/wort.h"
#include "staff/tonhoehe.h"

namespace staff {

std::string tonname(core::Worte& worte, int qz) {
    const int stelle = 5 * stammton(qz) + vorzeichen(qz) + 2;
    return worte.Wort(core::wort::noteNames[stelle]);
}

}  // namespace staff
