#include "soundfont/meter.h"

#include <sched.h>
#include <sys/prctl.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>

/// `melvora-measure FONT PROGRAM...` prints what the instruments of a font are, a line each, when
/// no other program wants to run, and ends with the one that started it.
int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: melvora-measure FONT PROGRAM...\n", stderr);
        return 2;
    }
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const sched_param none{};
    sched_setscheduler(0, SCHED_IDLE, &none);
    try {
        soundfont::Meter meter(argv[1]);
        for (int i = 2; i < argc; ++i) {
            const int program = std::atoi(argv[i]);
            std::puts(lineOf(program, meter.measureWhole(program)).c_str());
            if (std::fflush(stdout) != 0) return 1;
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "melvora-measure: %s\n", error.what());
        return 1;
    }
}
