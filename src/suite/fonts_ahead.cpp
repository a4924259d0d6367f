#include "suite/fonts_ahead.h"

#include <fontconfig/fontconfig.h>

namespace suite {

std::jthread readFontsAhead() {
    // Whoever comes first, this thread or Qt, reads it; the other one finds it read.
    return std::jthread([] { FcInit(); });
}

}  // namespace suite
