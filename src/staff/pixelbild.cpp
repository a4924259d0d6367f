#include "staff/pixelbild.h"

#include "staff/kurve.h"
#include "staff/linien.h"
#include "staff/umriss.h"

#include <algorithm>
#include <cmath>

namespace staff {

Pixelbild::Pixelbild(int breite, int hoehe)
    : breite_(breite),
      hoehe_(hoehe),
      punkte_(static_cast<std::size_t>(breite) * static_cast<std::size_t>(hoehe),
              base::colours::white) {}

Colour Pixelbild::an(int x, int y) const {
    if (x < 0 || y < 0 || x >= breite_ || y >= hoehe_) return base::colours::white;
    return punkte_[stelle(x, y)];
}

std::string Pixelbild::zeichnung(const Rechteck& teil) const {
    std::string text;
    for (int y = teil.y; y < teil.y + teil.hoehe; ++y) {
        for (int x = teil.x; x < teil.x + teil.breite; ++x)
            text += an(x, y) == base::colours::white   ? '.'
                    : an(x, y) == base::colours::black ? '#'
                                                       : '+';
        text += '\n';
    }
    return text;
}

void Pixelbild::punkt(int x, int y, Colour farbe) {
    if (x < 0 || y < 0 || x >= breite_ || y >= hoehe_) return;
    punkte_[stelle(x, y)] = farbe;
}

void Pixelbild::leeren() { std::ranges::fill(punkte_, base::colours::white); }

void Pixelbild::fuellen(const Rechteck& r, Colour farbe) {
    for (int y = r.y; y < r.y + r.hoehe; ++y)
        for (int x = r.x; x < r.x + r.breite; ++x) punkt(x, y, farbe);
}

void Pixelbild::linie(int x1, int y1, int x2, int y2, Colour farbe, Linienart art) {
    jedesStueck(linienRechteck(x1, y1, x2, y2), art,
                [&](const Rechteck& stueck) { fuellen(stueck, farbe); });
}

void Pixelbild::figur(Figur figur, int x, int y, Colour farbe) {
    for (const Strich& s : figur)
        jederPunkt(s, [&](int dx, int dy) { punkt(x + dx, y + dy, farbe); });
}

void Pixelbild::kurve(Kurve kurve, int x, int y, Colour farbe) {
    for (const Kurvenpunkt& p : kurvenpunkte(kurve)) scheibe(x + p.x, y + p.y, p.breite / 2, farbe);
}

void Pixelbild::scheibe(double x, double y, double radius, Colour farbe) {
    for (int py = static_cast<int>(std::floor(y - radius)); py <= y + radius; ++py)
        for (int px = static_cast<int>(std::floor(x - radius)); px <= x + radius; ++px)
            if (std::hypot(px - x, py - y) <= radius) punkt(px, py, farbe);
}

}  // namespace staff
