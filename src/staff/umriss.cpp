#include "staff/umriss.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace staff {

namespace {

struct Gitterpunkt {
    int x, y;
    friend bool operator==(Gitterpunkt, Gitterpunkt) = default;
};

/// Right, down, left, up: the outline keeps the figure on its right hand.
constexpr std::array<Gitterpunkt, 4> richtungen{{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};

/// The pixels of a figure, and which edges around them have been walked.
class Gitter {
  public:
    explicit Gitter(Figur figur) {
        const auto jeder = [&](auto f) {
            for (const Strich& s : figur) jederPunkt(s, f);
        };
        int rechts = -1000, unten = -1000;
        jeder([&](int x, int y) {
            links_ = std::min(links_, x - 1);
            oben_ = std::min(oben_, y - 1);
            rechts = std::max(rechts, x + 2);
            unten = std::max(unten, y + 2);
        });
        breite_ = rechts - links_;
        hoehe_ = unten - oben_;
        zellen_.resize(static_cast<std::size_t>(breite_) * static_cast<std::size_t>(hoehe_));
        jeder([&](int x, int y) { an(x, y).voll = true; });
    }

    /// Whether an edge of the outline leaves the corner (upper left of pixel x, y) that way.
    bool kante(Gitterpunkt p, int richtung) const {
        // Pixels on the right and left hand of the edge.
        constexpr std::array<Gitterpunkt, 4> rechte{{{0, 0}, {-1, 0}, {-1, -1}, {0, -1}}};
        constexpr std::array<Gitterpunkt, 4> linke{{{0, -1}, {0, 0}, {-1, 0}, {-1, -1}}};
        const auto r = rechte.at(static_cast<std::size_t>(richtung));
        const auto l = linke.at(static_cast<std::size_t>(richtung));
        return voll(p.x + r.x, p.y + r.y) && !voll(p.x + l.x, p.y + l.y);
    }

    /// The closed line through an edge that begins at p, without the points on its straight parts.
    std::vector<Gitterpunkt> linie(Gitterpunkt p) {
        std::vector<Gitterpunkt> ecken;
        const Gitterpunkt anfang = p;
        int richtung = 0;
        do {
            if (richtung == 0) an(p.x, p.y).begangen = true;
            const Gitterpunkt schritt = richtungen.at(static_cast<std::size_t>(richtung));
            p = {p.x + schritt.x, p.y + schritt.y};
            // Where two pixels meet at a corner only, the left turn keeps them together.
            int neue = (richtung + 3) % 4;
            while (!kante(p, neue)) neue = (neue + 1) % 4;
            if (neue != richtung) ecken.push_back(p);
            richtung = neue;
        } while (!(p == anfang && richtung == 0));
        return ecken;
    }

    /// Calls `f` with the beginning of each closed line.
    template <class F>
    void jedeLinie(F f) {
        for (int y = oben_; y < oben_ + hoehe_; ++y)
            for (int x = links_; x < links_ + breite_; ++x)
                if (!an(x, y).begangen && kante({x, y}, 0)) f(Gitterpunkt{x, y});
    }

  private:
    struct Zelle {
        bool voll = false;
        bool begangen = false;  ///< the edge above it
    };
    Zelle& an(int x, int y) {
        return zellen_[static_cast<std::size_t>((y - oben_) * breite_ + x - links_)];
    }
    bool voll(int x, int y) const {
        if (x < links_ || y < oben_ || x >= links_ + breite_ || y >= oben_ + hoehe_) return false;
        return zellen_[static_cast<std::size_t>((y - oben_) * breite_ + x - links_)].voll;
    }

    int links_ = 1000, oben_ = 1000, breite_ = 0, hoehe_ = 0;
    std::vector<Zelle> zellen_;
};

/// How much of an edge each of its corners gives away. An edge that goes on as a step gives all,
/// so that the slope runs through its middle; an end or a notch stays square but for half a pixel.
double schnitt(int laenge, bool stufe) {
    constexpr int laengsteStufe = 3;
    return stufe && laenge <= laengsteStufe ? laenge / 2.0 : 0.5;
}

/// Cuts every corner once more, so that facets become curves; long edges stay straight.
Linienzug gerundet(const Linienzug& ecken) {
    constexpr double hoechstens = 0.6;
    Linienzug rund;
    for (std::size_t i = 0; i < ecken.size(); ++i) {
        const auto &a = ecken[i], &b = ecken[(i + 1) % ecken.size()];
        const double dx = b.first - a.first, dy = b.second - a.second;
        const double laenge = std::hypot(dx, dy);
        if (laenge < 1e-9) continue;
        const double weg = std::min(0.25, hoechstens / laenge);
        rund.emplace_back(a.first + dx * weg, a.second + dy * weg);
        rund.emplace_back(b.first - dx * weg, b.second - dy * weg);
    }
    return rund;
}

}  // namespace

Umriss umriss(Figur figur) {
    Umriss ergebnis;
    Gitter gitter(figur);
    gitter.jedeLinie([&](Gitterpunkt anfang) {
        const auto ecken = gitter.linie(anfang);
        const std::size_t n = ecken.size();
        const auto kante = [&](std::size_t i) {
            const auto a = ecken[i % n], b = ecken[(i + 1) % n];
            return Gitterpunkt{b.x - a.x, b.y - a.y};
        };
        const auto rechtsherum = [&](std::size_t i) {  // the turn at corner i
            const auto vor = kante(i + n - 1), nach = kante(i);
            return vor.x * nach.y - vor.y * nach.x > 0;
        };
        Linienzug punkte;
        for (std::size_t i = 0; i < n; ++i) {  // the edge from corner i to the next
            const auto k = kante(i);
            const int laenge = std::abs(k.x) + std::abs(k.y);
            const double weg = schnitt(laenge, rechtsherum(i) != rechtsherum(i + 1)) / laenge;
            const double x = ecken[i].x - 0.5, y = ecken[i].y - 0.5;
            punkte.emplace_back(x + k.x * weg, y + k.y * weg);
            punkte.emplace_back(x + k.x * (1 - weg), y + k.y * (1 - weg));
        }
        ergebnis.push_back(gerundet(gerundet(punkte)));
    });
    return ergebnis;
}

}  // namespace staff
