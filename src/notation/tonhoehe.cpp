#include "notation/tonhoehe.h"

namespace notation {

int QzOffset(int qz) {
    const int hoehe = stammton(qz) * 4;
    if (qz == 1 || qz == 8) return hoehe + 28;
    if (qz == 27 || qz == 34) return hoehe - 28;
    return hoehe;
}

int yImViolinschluessel(const Ton& ton) {
    return 144 - ((ton.midi / 12 - 5) * 28 + 40 + QzOffset(ton.qz));
}

}  // namespace notation
