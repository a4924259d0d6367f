#include "notation/tonartspalte.h"

#include <cstdlib>

namespace notation {

namespace {

constexpr int freieVersuche = 10;
constexpr int letzterVersuch = 1000;
constexpr int mittel = 3;

}  // namespace

void Tonartspalte::beginnen(i16 aufgaben) {
    haelfte_ = aufgaben / 2;
    reihe_ = schwereSumme_ = 0;
    for (auto& tonarten : gehabt_) tonarten.clear();
}

i16 Tonartspalte::ziehen(int versuch) const {
    const int richtung = rnd_.sign();
    if (reihe_ <= haelfte_ || versuch >= freieVersuche) return rnd_.upTo(6) * richtung;
    const bool schwer = schwereSumme_ >= mittel * (reihe_ - 1);
    return (schwer ? int(rnd_.upTo(3)) : rnd_.upTo(2) + 4) * richtung;
}

void Tonartspalte::fuellen(int zeile) {
    ++reihe_;
    const int skala = std::abs(int(z.matbox(zeile, 0))) - 1;
    auto& gehabt = gehabt_.at(static_cast<std::size_t>(skala));
    i16 tonart;
    for (int versuch = 1; versuch <= letzterVersuch; ++versuch) {
        tonart = ziehen(versuch);
        if (!gehabt.contains(tonart)) break;
    }
    gehabt.insert(tonart);
    schwereSumme_ += std::abs(int(tonart));
    z.matbox(zeile, 1) = tonart;
}

}  // namespace notation
