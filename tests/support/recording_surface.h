#pragma once
#include "staff/surface.h"

#include <vector>

namespace support {

/// Keeps the strokes and curves that were drawn.
struct RecordingSurface final : staff::Surface {
    struct Line {
        int x1, y1, x2, y2;
        base::Colour colour;
        friend bool operator==(const Line&, const Line&) = default;
    };
    /// In the order of drawing; the strokes of a shape one by one.
    std::vector<Line> lines;
    std::vector<std::vector<staff::CurvePoint>> curves;

    void clear() override { *this = {}; }
    void fill(const staff::Rect&, base::Colour) override {}
    void line(int x1, int y1, int x2, int y2, base::Colour farbe, staff::LineStyle) override {
        lines.push_back({x1, y1, x2, y2, farbe});
    }
    void shape(staff::Shape shape, int x, int y, base::Colour farbe) override {
        for (const staff::Stroke& s : shape)
            lines.push_back({x + s.x1, y + s.y1, x + s.x2, y + s.y2, farbe});
    }
    void curve(staff::Curve curve, int, int, base::Colour) override {
        curves.emplace_back(curve.begin(), curve.end());
    }
    void disc(double, double, double, base::Colour) override {}
    void text(int, int, std::string_view, base::Colour) override {}
};

}  // namespace support
