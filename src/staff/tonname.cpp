#include "staff/tonname.h"

#include "staff/tonhoehe.h"

#include <array>

namespace staff {

namespace {

constexpr std::array namen{// words
                           // From double flat to double sharp, from C to B.
                           844, 845, 846, 847, 848, 849, 850, 851, 852, 853, 854, 855,
                           856, 857, 858, 859, 860, 861, 862, 863, 864, 865, 866, 867,
                           868, 869, 870, 871, 872, 873, 874, 875, 876, 877, 878};

}  // namespace

std::string tonname(core::Worte& worte, int qz) {
    const int stelle = 5 * stammton(qz) + vorzeichen(qz) + 2;
    return worte.Wort(namen.at(static_cast<std::size_t>(stelle)));
}

}  // namespace staff
