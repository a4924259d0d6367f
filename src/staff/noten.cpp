#include "staff/noten.h"

#include "staff/farbe.h"
#include "staff/figuren.h"

namespace staff {

namespace {

constexpr Colour schwarz = linienFarbe(farbe::schwarz);
constexpr int flaecheHoehe = 144;
constexpr int halsLaenge = 24;

}  // namespace

void NotenkopfMalen(Flaeche& flaeche, i16 x, i16 y, int farbe, int zeile) {
    const int k = y / 4;
    const bool imZwischenraum = zeile != keineZeile && k > obersteLinie(zeile) && k % 2 == 1;
    flaeche.figur(imZwischenraum ? Figur(figuren::kopf).subspan(1) : Figur(figuren::kopf), x, y,
                  kopfFarbe(farbe));
}

void HilfslinienMalen(Flaeche& flaeche, i16 x, i16 y, i16 oben, i16 unten, i16& zaehler) {
    const int k = y / 4;
    const auto hilfslinie = [&](int j) {
        flaeche.linie(x - 6, 4 * j, x + 7, 4 * j, schwarz);
        zaehler += 4;
    };
    for (int j = oben; j >= k; j -= 2) hilfslinie(j);
    for (int j = unten; j <= k; j += 2) hilfslinie(j);
}

void HalsMalen(Flaeche& flaeche, i16 x, i16 y, i16 zaehler, i16 wende) {
    const i16 laenge = zaehler + halsLaenge;
    if (y / 4 < wende)
        flaeche.linie(x - 4, y, x - 4, y + laenge, schwarz);
    else
        flaeche.linie(x + 4, y, x + 4, y - laenge, schwarz);
}

void SpalteLoeschen(Flaeche& flaeche, i16 oben, i16 x) {
    constexpr int breite = 2 * spalteHalb + 1;
    const int links = x - spalteHalb;
    flaeche.fuellen({links, 0, breite, flaecheHoehe + 1}, linienFarbe(farbe::weiss));
    for (int j = oben; j <= oben + 8; j += 2)
        flaeche.linie(links, 4 * j, links + breite, 4 * j, schwarz);
}

void BeMalen(Flaeche& flaeche, i16 ax, i16 ay) { flaeche.figur(figuren::be, ax, ay, schwarz); }

void DoppelBeMalen(Flaeche& flaeche, i16 ax, i16 ay) {
    BeMalen(flaeche, ax, ay);
    BeMalen(flaeche, ax + 8, ay);
}

void KreuzMalen(Flaeche& flaeche, i16 ax, i16 ay) {
    flaeche.figur(figuren::kreuz, ax, ay, schwarz);
}

void DoppelKreuzMalen(Flaeche& flaeche, i16 ax, i16 ay) {
    flaeche.figur(figuren::doppelkreuz, ax, ay, schwarz);
}

void AufloesungMalen(Flaeche& flaeche, i16 ax, i16 ay) {
    flaeche.figur(figuren::aufloesung, ax, ay, schwarz);
}

void VorzeichenMalen(Flaeche& flaeche, i16 x, i16 y, int vorzeichen) {
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

void OktavMarkeMalen(Flaeche& flaeche, i16 x, i16 y, int farbe) {
    flaeche.figur(figuren::oktavMarke, x, y, linienFarbe(farbe));
}

void LinienMalen(Flaeche& flaeche, int breite, i16 oben) {
    for (int k = oben; k <= oben + 8; k += 2) flaeche.linie(0, 4 * k, breite, 4 * k, schwarz);
}

}  // namespace staff
