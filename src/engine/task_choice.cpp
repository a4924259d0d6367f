#include "engine/task_choice.h"

#include "base/runtime_error.h"
#include "engine/melody.h"

#include <cstdlib>

namespace engine {

int differentScales(const core::Zustand& z) {
    if (z.ska_ausw == 0) return z.skal_anz + 1;
    int count = 0;
    for (int i = 0; i <= z.einzelAnz; ++i) {
        bool isNew = true;
        for (int j = 0; j < i; ++j)
            isNew = isNew && std::abs(z.einzel_wahl[i]) != std::abs(z.einzel_wahl[j]);
        count += isNew ? 1 : 0;
    }
    return count;
}

void TaskChoice::beginRun() {
    tonalities_.beginRun(a);
    a.melodic = z.abfolge == 1;
    pool_.countCodes();
    if (differentScales(z) < 2 && tonalities_.settled() && tonalities_.oktSpanne() == 0)
        throw base::RuntimeError(base::ErrorNumber::InvalidCall,
                                 "one scale in one key and octave: every task would be the same");
}

const Task& TaskChoice::draw() {
    const i16 letzteSkala = a.skala_nr, letzterTon = a.noten[0];
    const bool fromBag = tonality_ == Tonality::Written && core::isTest(z);
    bool nutzeBox = core::isScored(z);
    int attempt = 0;
    do {
        tonalities_.draw(a);
        if (++attempt >= pool_.matboxanz()) nutzeBox = false;
        // After a plain draw the row drawn last stays in force.
        if (const i16 row = pool_.draw(nutzeBox, a); row > 0) matIndex_ = row;
        if (fromBag) a.quintLage = pool_.tonality(matIndex_);
        tonalities_.makeTones(a);
    } while (letzteSkala == a.skala_nr && letzterTon == a.noten[0]);

    if (core::isTest(z)) pool_.takeOut(a.code());
    if (a.melodic) MelodikFolge(a, rnd_);
    a.attempt = {};
    return a;
}

}  // namespace engine
