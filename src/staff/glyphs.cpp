#include "staff/glyphs.h"

#include "staff/ink.h"
#include "staff/shapes.h"

namespace staff {

namespace {

constexpr Colour black = lineColour(ink::black);
constexpr int surfaceHeight = 144;
constexpr int stemLength = 24;

}  // namespace

void NotenkopfMalen(Surface& surface, i16 x, i16 y, int farbe, int staff) {
    const int k = y / 4;
    const bool inSpace = staff != noStaff && k > topLine(staff) && k % 2 == 1;
    surface.shape(inSpace ? Shape(shapes::head).subspan(1) : Shape(shapes::head), x, y,
                  headColour(farbe));
}

void HilfslinienMalen(Surface& surface, i16 x, i16 y, i16 oben, i16 unten, i16& zaehler) {
    const int k = y / 4;
    const auto ledgerLine = [&](int j) {
        surface.line(x - 6, 4 * j, x + 7, 4 * j, black);
        zaehler += 4;
    };
    for (int j = oben; j >= k; j -= 2) ledgerLine(j);
    for (int j = unten; j <= k; j += 2) ledgerLine(j);
}

void HalsMalen(Surface& surface, i16 x, i16 y, i16 zaehler, i16 wende) {
    const i16 length = zaehler + stemLength;
    if (y / 4 < wende)
        surface.line(x - 4, y, x - 4, y + length, black);
    else
        surface.line(x + 4, y, x + 4, y - length, black);
}

void SpalteLoeschen(Surface& surface, i16 oben, i16 x) {
    constexpr int width = 2 * columnHalf + 1;
    const int left = x - columnHalf;
    surface.fill({left, 0, width, surfaceHeight + 1}, lineColour(ink::white));
    for (int j = oben; j <= oben + 8; j += 2) surface.line(left, 4 * j, left + width, 4 * j, black);
}

void BeMalen(Surface& surface, i16 ax, i16 ay) { surface.shape(shapes::flat, ax, ay, black); }

void DoppelBeMalen(Surface& surface, i16 ax, i16 ay) {
    BeMalen(surface, ax, ay);
    BeMalen(surface, ax + 8, ay);
}

void KreuzMalen(Surface& surface, i16 ax, i16 ay) { surface.shape(shapes::sharp, ax, ay, black); }

void DoppelKreuzMalen(Surface& surface, i16 ax, i16 ay) {
    surface.shape(shapes::doubleSharp, ax, ay, black);
}

void AufloesungMalen(Surface& surface, i16 ax, i16 ay) {
    surface.shape(shapes::natural, ax, ay, black);
}

void paintAccidental(Surface& surface, i16 x, i16 y, int accidental) {
    switch (accidental) {
        case -2:
            return DoppelBeMalen(surface, x - 22, y - 17);
        case -1:
            return BeMalen(surface, x - 15, y - 17);
        case 1:
            return KreuzMalen(surface, x - 14, y - 12);
        case 2:
            return DoppelKreuzMalen(surface, x - 14, y - 4);
        default:
            return;
    }
}

void paintTick(Surface& surface, i16 x, i16 y) {
    surface.shape(shapes::tick, x - 4, y, lineColour(ink::green));
}

void paintCross(Surface& surface, i16 x, i16 y) {
    surface.shape(shapes::cross, x - 4, y, lineColour(ink::red));
}

void OktavMarkeMalen(Surface& surface, i16 x, i16 y, int farbe) {
    surface.shape(shapes::octaveMark, x, y, lineColour(farbe));
}

void paintLines(Surface& surface, int width, i16 oben) {
    for (int k = oben; k <= oben + 8; k += 2) surface.line(0, 4 * k, width, 4 * k, black);
}

}  // namespace staff
