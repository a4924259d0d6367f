#include "engine/tonartspalte.h"

#include <cstdlib>

namespace engine {

namespace {

constexpr int freieVersuche = 10;
constexpr int letzterVersuch = 1000;
constexpr int mittel = 3;

}  // namespace

i16 Tonartspalte::kandidat(bool ausgleichen, base::Rnd& rnd) const {
    const int richtung = rnd.sign();
    if (!ausgleichen) return rnd.upTo(6) * richtung;
    const bool schwer = schwereSumme_ >= mittel * (reihe_ - 1);
    return schwer ? rnd.upTo(3) * richtung : (rnd.upTo(2) + 4) * richtung;
}

i16 Tonartspalte::Ziehen(int skala, int haelfte, base::Rnd& rnd) {
    ++reihe_;
    auto& gehabt = base::at(gehabt_, skala);
    i16 tonart;
    for (int versuch = 1; versuch <= letzterVersuch; ++versuch) {
        tonart = kandidat(reihe_ > haelfte && versuch < freieVersuche, rnd);
        if (!gehabt.contains(tonart)) break;
    }
    gehabt.insert(tonart);
    schwereSumme_ += std::abs(int(tonart));
    return tonart;
}

}  // namespace engine
