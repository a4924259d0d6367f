#include "notation/noten.h"

#include <array>
#include <span>

namespace notation {

namespace {

constexpr Colour schwarz = base::colours::black;

/// A stroke relative to an anchor.
struct Strich {
    int x1, y1, x2, y2;
};

void malen(Flaeche& flaeche, int x, int y, std::span<const Strich> striche,
           Colour farbe = schwarz) {
    for (const Strich& s : striche) flaeche.linie(x + s.x1, y + s.y1, x + s.x2, y + s.y2, farbe, 1);
}

constexpr std::array kopf{Strich{0, -4, 4, -4},  Strich{-2, -3, 5, -3}, Strich{-3, -2, 5, -2},
                          Strich{-4, -1, 5, -1}, Strich{-4, 0, 5, 0},   Strich{-4, 1, 4, 1},
                          Strich{-4, 2, 3, 2},   Strich{-3, 3, 1, 3}};

constexpr std::array be{Strich{0, 1, 0, 22},  Strich{2, 12, 5, 12}, Strich{1, 13, 6, 13},
                        Strich{4, 14, 7, 14}, Strich{4, 15, 7, 15}, Strich{4, 16, 6, 16},
                        Strich{4, 17, 6, 17}, Strich{3, 18, 5, 18}, Strich{2, 19, 3, 20},
                        Strich{1, 20, 2, 21}};

constexpr std::array kreuzStaemme{Strich{0, 1, 0, 23}, Strich{3, 0, 3, 22}};
constexpr std::array kreuzBalken{Strich{-1, 8, -1, 11}, Strich{1, 7, 1, 10}, Strich{2, 7, 2, 10},
                                 Strich{4, 6, 4, 9}};

constexpr std::array doppelkreuzBlock{Strich{0, 0, 3, 0}, Strich{0, 1, 3, 1}, Strich{0, 2, 3, 2}};
constexpr std::array doppelkreuzMitte{Strich{3, 3, 5, 3}, Strich{3, 4, 5, 4}};

constexpr std::array aufloesungStaemme{Strich{0, 1, 0, 18}, Strich{4, 6, 4, 23}};
constexpr std::array aufloesungBlock{Strich{1, 10, 2, 10}, Strich{1, 9, 3, 9}, Strich{1, 8, 4, 8},
                                     Strich{2, 7, 4, 7}, Strich{3, 6, 4, 6}};

}  // namespace

void NotenkopfMalen(Flaeche& flaeche, int x, int y, Colour farbe, bool imZwischenraum) {
    malen(flaeche, x, y, std::span(kopf).subspan(imZwischenraum ? 1 : 0), farbe);
}

int HilfslinienMalen(Flaeche& flaeche, int x, int y, int oben, int unten) {
    const int k = y / 4;
    int zaehler = 0;
    const auto hilfslinie = [&](int j) {
        flaeche.linie(x - 6, 4 * j, x + 7, 4 * j, schwarz, 1);
        zaehler += 4;
    };
    for (int j = oben; j >= k; j -= 2) hilfslinie(j);
    for (int j = unten; j <= k; j += 2) hilfslinie(j);
    return zaehler;
}

void BeMalen(Flaeche& flaeche, int x, int y) { malen(flaeche, x, y, be); }

void DoppelBeMalen(Flaeche& flaeche, int x, int y) {
    BeMalen(flaeche, x, y);
    BeMalen(flaeche, x + 8, y);
}

void KreuzMalen(Flaeche& flaeche, int x, int y) {
    malen(flaeche, x, y, kreuzStaemme);
    malen(flaeche, x, y, kreuzBalken);
    malen(flaeche, x, y + 8, kreuzBalken);
}

void DoppelKreuzMalen(Flaeche& flaeche, int x, int y) {
    for (const int dx : {0, 5})
        for (const int dy : {0, 5}) malen(flaeche, x + dx, y + dy, doppelkreuzBlock);
    malen(flaeche, x, y, doppelkreuzMitte);
}

void AufloesungMalen(Flaeche& flaeche, int x, int y) {
    malen(flaeche, x, y, aufloesungStaemme);
    malen(flaeche, x, y, aufloesungBlock);
    malen(flaeche, x, y + 7, aufloesungBlock);
}

void VorzeichenMalen(Flaeche& flaeche, int x, int y, int vorzeichen) {
    switch (vorzeichen) {
        case -2:
            return DoppelBeMalen(flaeche, x - 22, y - 17);
        case -1:
            return BeMalen(flaeche, x - 15, y - 17);
        case 1:
            return KreuzMalen(flaeche, x - 14, y - 12);
        case 2:
            return DoppelKreuzMalen(flaeche, x - 14, y - 4);
        default:
            return;
    }
}

void NotenlinienMalen(Flaeche& flaeche, int breite, int oben) {
    for (int k = oben; k <= oben + 8; k += 2) flaeche.linie(0, 4 * k, breite, 4 * k, schwarz, 1);
}

}  // namespace notation
