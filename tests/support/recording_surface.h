#pragma once
#include "notation/flaeche.h"

#include <string>
#include <vector>

namespace support {

/// Keeps everything that was drawn.
struct RecordingSurface final : notation::Flaeche {
    struct Line {
        int x1, y1, x2, y2;
        base::Colour colour;
        bool dotted = false;
        friend bool operator==(const Line&, const Line&) = default;
    };
    struct Disc {
        double x, y, radius;
    };
    struct Text {
        int x, y;
        std::string text;
        friend bool operator==(const Text&, const Text&) = default;
    };
    /// In the order of drawing; the strokes of a shape one by one.
    std::vector<Line> lines;
    std::vector<notation::Rechteck> wipes;
    std::vector<std::vector<notation::Kurvenpunkt>> curves;
    std::vector<Disc> discs;
    std::vector<Text> texts;

    void leeren() override { *this = {}; }
    void fuellen(const notation::Rechteck& r, base::Colour) override { wipes.push_back(r); }
    void linie(int x1, int y1, int x2, int y2, base::Colour farbe,
               notation::Linienart art) override {
        lines.push_back({x1, y1, x2, y2, farbe, art == notation::Linienart::Gepunktet});
    }
    void figur(notation::Figur figur, int x, int y, base::Colour farbe) override {
        for (const notation::Strich& s : figur)
            lines.push_back({x + s.x1, y + s.y1, x + s.x2, y + s.y2, farbe});
    }
    void kurve(notation::Kurve kurve, int x, int y, base::Colour) override {
        curves.emplace_back(kurve.begin(), kurve.end());
        for (auto& point : curves.back()) point.x += x, point.y += y;
    }
    void scheibe(double x, double y, double radius, base::Colour) override {
        discs.push_back({x, y, radius});
    }
    void text(int x, int y, std::string_view text, base::Colour) override {
        texts.push_back({x, y, std::string(text)});
    }
};

}  // namespace support
