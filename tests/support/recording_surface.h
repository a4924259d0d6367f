#pragma once
#include "staff/flaeche.h"

#include <vector>

namespace support {

/// Keeps the strokes and curves that were drawn.
struct RecordingSurface final : staff::Flaeche {
    struct Line {
        int x1, y1, x2, y2;
        base::Colour colour;
        friend bool operator==(const Line&, const Line&) = default;
    };
    /// In the order of drawing; the strokes of a shape one by one.
    std::vector<Line> lines;
    std::vector<std::vector<staff::Kurvenpunkt>> curves;

    void leeren() override { *this = {}; }
    void fuellen(const staff::Rechteck&, base::Colour) override {}
    void linie(int x1, int y1, int x2, int y2, base::Colour farbe, staff::Linienart) override {
        lines.push_back({x1, y1, x2, y2, farbe});
    }
    void figur(staff::Figur figur, int x, int y, base::Colour farbe) override {
        for (const staff::Strich& s : figur)
            lines.push_back({x + s.x1, y + s.y1, x + s.x2, y + s.y2, farbe});
    }
    void kurve(staff::Kurve kurve, int, int, base::Colour) override {
        curves.emplace_back(kurve.begin(), kurve.end());
    }
    void scheibe(double, double, double, base::Colour) override {}
    void text(int, int, std::string_view, base::Colour) override {}
};

}  // namespace support
