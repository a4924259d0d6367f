#include "results/auswertung.h"

#include <algorithm>
#include <utility>

namespace results {

void Auswertung::SaveBest(i16 i, float value) {
    if (value < tabelle_(i, 0)) tabelle_(i, 0) = value;
    if (tabelle_(i, 0) < tabelle_(i, 1)) std::swap(tabelle_(i, 0), tabelle_(i, 1));
}

void Auswertung::PlatzSchaffen(i16 i, i16 bestAnz) {
    const auto behalten = [&] { return std::min(int(tabelle_(i, 0)), int(bestAnz)); };
    const int bisher = behalten();
    Increment(i, 0);
    if (behalten() == bisher) return;
    for (int j = bisher + 2; j > 2; --j) tabelle_(i, j) = tabelle_(i, j - 1);
    tabelle_(i, 2) = 0;
}

void Auswertung::SortASaveBest(i16 i, float value, i16 bestAnz) {
    const float grenze = std::min(tabelle_(i, 0), static_cast<float>(int(bestAnz)));
    const int oben = base::rounded(static_cast<double>(grenze + 2.0F - 1.0F));
    int pos = 0;
    for (int j = 2; j <= oben && value < tabelle_(i, j); ++j) pos = j;
    if (pos == 0) return;
    for (int j = 2; j < pos; ++j) tabelle_(i, j) = tabelle_(i, j + 1);
    tabelle_(i, pos) = value;
}

}  // namespace results
