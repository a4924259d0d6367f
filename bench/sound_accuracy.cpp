#include "synth/sound_meter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

/// Prints how far the notes of a scale lie from their planned beginning and pitch, per tuning.
int main() {
    using namespace synth::test;
    std::printf("%-22s %8s %8s %20s %20s\n", "tuning", "program", "ms/note", "onset, worst [ms]",
                "pitch, worst [cent]");
    for (const auto& tuning : tunings) {
        for (const auto& [program, noteMs] :
             {std::pair{brief, 300}, {brief, 1000}, {steady, 1000}}) {
            Deviation worst{};
            for (const int firstKey : {48, 60, 66, 72}) {
                for (const auto& [ms, cents] : measure(tuning, program, firstKey, noteMs)) {
                    if (std::fabs(ms) > std::fabs(worst.ms)) worst.ms = ms;
                    if (std::fabs(cents) > std::fabs(worst.cents)) worst.cents = cents;
                }
            }
            std::printf("%-22s %8d %8d %20.2f %20.3f\n", tuning.name, program, noteMs, worst.ms,
                        worst.cents);
        }
    }
}
