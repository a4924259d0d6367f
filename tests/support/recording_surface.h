#pragma once
#include "notation/flaeche.h"

#include <vector>

namespace support {

/// Keeps every stroke that was drawn.
struct RecordingSurface final : notation::Flaeche {
    struct Line {
        double x1, y1, x2, y2;
        base::Colour colour;
        double width;
        friend bool operator==(const Line&, const Line&) = default;
    };
    struct Disc {
        double x, y, radius;
        base::Colour colour;
    };
    std::vector<Line> lines;
    std::vector<Disc> discs;

    void linie(double x1, double y1, double x2, double y2, base::Colour farbe,
               double breite) override {
        lines.push_back({x1, y1, x2, y2, farbe, breite});
    }
    void scheibe(double x, double y, double radius, base::Colour farbe) override {
        discs.push_back({x, y, radius, farbe});
    }
};

}  // namespace support
