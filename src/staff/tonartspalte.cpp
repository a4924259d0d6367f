#include "staff/tonartspalte.h"

#include <cstdlib>

namespace staff {

namespace {

constexpr int freieVersuche = 10;
constexpr int letzterVersuch = 1000;
constexpr int mittel = 3;

}  // namespace

i16 Tonartspalte::ziehen(bool ausgleichen) const {
    const int richtung = rnd_.sign();
    if (!ausgleichen) return rnd_.upTo(6) * richtung;
    const bool schwer = schwereSumme_ >= mittel * (reihe_ - 1);
    return schwer ? rnd_.upTo(3) * richtung : (rnd_.upTo(2) + 4) * richtung;
}

void Tonartspalte::fuellen(int zeile, int haelfte) {
    ++reihe_;
    const int skala = std::abs(int(z.matbox(zeile, 0))) - 1;
    auto& gehabt = gehabt_.at(static_cast<std::size_t>(skala));
    i16 tonart;
    for (int versuch = 1; versuch <= letzterVersuch; ++versuch) {
        tonart = ziehen(reihe_ > haelfte && versuch < freieVersuche);
        if (!gehabt.contains(tonart)) break;
    }
    gehabt.insert(tonart);
    schwereSumme_ += std::abs(int(tonart));
    z.matbox(zeile, 1) = tonart;
}

}  // namespace staff
