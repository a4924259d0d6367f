#include "notation/noten.h"

#include "notation/kurve.h"

namespace notation {

namespace {

constexpr Colour schwarz = base::colours::black;

/// A stroke relative to the note head.
struct Strich {
    double x1, y1, x2, y2, breite;
};

template <std::size_t n>
void malen(Flaeche& flaeche, double x, double y, const std::array<Strich, n>& striche) {
    for (const Strich& s : striche)
        flaeche.linie(x + s.x1, y + s.y1, x + s.x2, y + s.y2, schwarz, s.breite);
}

constexpr double beAbstand = 8;
constexpr Strich beHals{-12.5, -15, -12.5, 5, 1.2};
constexpr std::array beBauch{Punkt{-12.5, 5, 1}, Punkt{-8.8, 1.6, 1.5}, Punkt{-7.2, -1.8, 1.9},
                             Punkt{-9.2, -3.7, 1.8}, Punkt{-12.3, -1.4, 1}};

void be(Flaeche& flaeche, double x, double y) {
    malen(flaeche, x, y, std::array{beHals});
    kurveMalen(flaeche, x, y, beBauch);
}

constexpr std::array kreuz{Strich{-12, -9.5, -12, 11, 1.1}, Strich{-8.6, -11, -8.6, 9.5, 1.1},
                           Strich{-13.8, -2.8, -6.8, -4.9, 2.3},
                           Strich{-13.8, 4.9, -6.8, 2.8, 2.3}};

constexpr std::array doppelkreuz{Strich{-13, -3, -7.4, 3, 1.6}, Strich{-13, 3, -7.4, -3, 1.6}};

void doppelkreuzMalen(Flaeche& flaeche, double x, double y) {
    malen(flaeche, x, y, doppelkreuz);
    for (const Strich& s : doppelkreuz) {
        flaeche.scheibe(x + s.x1, y + s.y1, 1.5, schwarz);
        flaeche.scheibe(x + s.x2, y + s.y2, 1.5, schwarz);
    }
}

}  // namespace

void NotenkopfMalen(Flaeche& flaeche, int x, int y, Colour farbe) {
    flaeche.linie(x - 1.6, y + 0.7, x + 2.2, y - 0.7, farbe, 6.6);
}

int HilfslinienMalen(Flaeche& flaeche, int x, int y, int oben, int unten) {
    const int k = y / 4;
    int zaehler = 0;
    const auto hilfslinie = [&](int j) {
        flaeche.linie(x - 7, 4 * j, x + 8, 4 * j, schwarz, 1);
        zaehler += 4;
    };
    for (int j = oben; j >= k; j -= 2) hilfslinie(j);
    for (int j = unten; j <= k; j += 2) hilfslinie(j);
    return zaehler;
}

void VorzeichenMalen(Flaeche& flaeche, int x, int y, int vorzeichen) {
    switch (vorzeichen) {
        case -2:
            be(flaeche, x - beAbstand, y);
            [[fallthrough]];
        case -1:
            be(flaeche, x, y);
            break;
        case 1:
            malen(flaeche, x, y, kreuz);
            break;
        case 2:
            doppelkreuzMalen(flaeche, x, y);
            break;
        default:
            break;
    }
}

void NotenlinienMalen(Flaeche& flaeche, int breite, int oben) {
    for (int k = oben; k <= oben + 8; k += 2) flaeche.linie(0, 4 * k, breite, 4 * k, schwarz, 1);
}

}  // namespace notation
