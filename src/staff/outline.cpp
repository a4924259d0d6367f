#include "staff/outline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace staff {

namespace {

struct GridPoint {
    int x, y;
    friend bool operator==(GridPoint, GridPoint) = default;
};

/// Right, down, left, up: the outline keeps the shape on its right hand.
constexpr std::array<GridPoint, 4> directions{{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};

/// The pixels of a shape, and which edges around them have been walked.
class Grid {
  public:
    explicit Grid(Shape shape) {
        const auto forEach = [&](auto f) {
            for (const Stroke& s : shape) forEachPixel(s, f);
        };
        int right = -1000, unten = -1000;
        forEach([&](int x, int y) {
            left_ = std::min(left_, x - 1);
            top_ = std::min(top_, y - 1);
            right = std::max(right, x + 2);
            unten = std::max(unten, y + 2);
        });
        width_ = right - left_;
        height_ = unten - top_;
        cells_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
        forEach([&](int x, int y) { at(x, y).full = true; });
    }

    /// Whether an edge of the outline leaves the corner (upper left of pixel x, y) that way.
    bool edge(GridPoint p, int richtung) const {
        // Pixels on the right and left hand of the edge.
        constexpr std::array<GridPoint, 4> onRight{{{0, 0}, {-1, 0}, {-1, -1}, {0, -1}}};
        constexpr std::array<GridPoint, 4> onLeft{{{0, -1}, {0, 0}, {-1, 0}, {-1, -1}}};
        const auto r = onRight.at(static_cast<std::size_t>(richtung));
        const auto l = onLeft.at(static_cast<std::size_t>(richtung));
        return full(p.x + r.x, p.y + r.y) && !full(p.x + l.x, p.y + l.y);
    }

    /// The closed line through an edge that begins at p, without the points on its straight parts.
    std::vector<GridPoint> line(GridPoint p) {
        std::vector<GridPoint> corners;
        const GridPoint start = p;
        int richtung = 0;
        do {
            if (richtung == 0) at(p.x, p.y).walked = true;
            const GridPoint step = directions.at(static_cast<std::size_t>(richtung));
            p = {p.x + step.x, p.y + step.y};
            // Where two pixels meet at a corner only, the left turn keeps them together.
            int next = (richtung + 3) % 4;
            while (!edge(p, next)) next = (next + 1) % 4;
            if (next != richtung) corners.push_back(p);
            richtung = next;
        } while (!(p == start && richtung == 0));
        return corners;
    }

    /// Calls `f` with the beginning of each closed line.
    template <class F>
    void forEachLine(F f) {
        for (int y = top_; y < top_ + height_; ++y)
            for (int x = left_; x < left_ + width_; ++x)
                if (!at(x, y).walked && edge({x, y}, 0)) f(GridPoint{x, y});
    }

  private:
    struct Cell {
        bool full = false;
        bool walked = false;  ///< the edge above it
    };
    Cell& at(int x, int y) {
        return cells_[static_cast<std::size_t>((y - top_) * width_ + x - left_)];
    }
    bool full(int x, int y) const {
        if (x < left_ || y < top_ || x >= left_ + width_ || y >= top_ + height_) return false;
        return cells_[static_cast<std::size_t>((y - top_) * width_ + x - left_)].full;
    }

    int left_ = 1000, top_ = 1000, width_ = 0, height_ = 0;
    std::vector<Cell> cells_;
};

/// How much of an edge each of its corners gives away. An edge that goes on as a step gives all,
/// so that the slope runs through its middle; an end or a notch stays square but for half a pixel.
double cut(int length, bool stufe) {
    constexpr int longestStep = 3;
    return stufe && length <= longestStep ? length / 2.0 : 0.5;
}

/// Cuts every corner once more, so that facets become curves; long edges stay straight.
Polyline rounded(const Polyline& corners) {
    constexpr double most = 0.6;
    Polyline rund;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const auto &a = corners[i], &b = corners[(i + 1) % corners.size()];
        const double dx = b.first - a.first, dy = b.second - a.second;
        const double length = std::hypot(dx, dy);
        if (length < 1e-9) continue;
        const double share = std::min(0.25, most / length);
        rund.emplace_back(a.first + dx * share, a.second + dy * share);
        rund.emplace_back(b.first - dx * share, b.second - dy * share);
    }
    return rund;
}

}  // namespace

Outline outline(Shape shape) {
    Outline ergebnis;
    Grid grid(shape);
    grid.forEachLine([&](GridPoint start) {
        const auto corners = grid.line(start);
        const std::size_t n = corners.size();
        const auto edge = [&](std::size_t i) {
            const auto a = corners[i % n], b = corners[(i + 1) % n];
            return GridPoint{b.x - a.x, b.y - a.y};
        };
        const auto turnsRight = [&](std::size_t i) {  // the turn at corner i
            const auto before = edge(i + n - 1), after = edge(i);
            return before.x * after.y - before.y * after.x > 0;
        };
        Polyline punkte;
        for (std::size_t i = 0; i < n; ++i) {  // the edge from corner i to the next
            const auto k = edge(i);
            const int length = std::abs(k.x) + std::abs(k.y);
            const double share = cut(length, turnsRight(i) != turnsRight(i + 1)) / length;
            const double x = corners[i].x - 0.5, y = corners[i].y - 0.5;
            punkte.emplace_back(x + k.x * share, y + k.y * share);
            punkte.emplace_back(x + k.x * (1 - share), y + k.y * (1 - share));
        }
        ergebnis.push_back(rounded(rounded(punkte)));
    });
    return ergebnis;
}

}  // namespace staff
