#include "results/auswertung.h"

#include <algorithm>
#include <utility>

namespace results {

void Auswertung::SaveBest(i16 i, float value) {
    float& zweiter = tabelle_(i, spalte::zweitbester);
    float& bester = tabelle_(i, spalte::bester);
    zweiter = std::min(zweiter, value);
    if (zweiter < bester) std::swap(zweiter, bester);
}

void Auswertung::PlatzSchaffen(i16 i, i16 bestAnz) {
    const auto behalten = [&] { return std::min(int(tabelle_(i, spalte::anzahl)), int(bestAnz)); };
    const int bisher = behalten();
    Increment(i, spalte::anzahl);
    if (behalten() == bisher) return;
    for (int j = spalte::beste + bisher; j > spalte::beste; --j)
        tabelle_(i, j) = tabelle_(i, j - 1);
    tabelle_(i, spalte::beste) = 0;
}

void Auswertung::SortASaveBest(i16 i, float value, i16 bestAnz) {
    const int behalten = std::min(int(tabelle_(i, spalte::anzahl)), int(bestAnz));
    int pos = 0;
    for (int j = spalte::beste; j < spalte::beste + behalten && value < tabelle_(i, j); ++j)
        pos = j;
    if (pos == 0) return;
    for (int j = spalte::beste; j < pos; ++j) tabelle_(i, j) = tabelle_(i, j + 1);
    tabelle_(i, pos) = value;
}

}  // namespace results
