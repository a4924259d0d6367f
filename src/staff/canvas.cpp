#include "staff/canvas.h"

#include "form/form.h"
#include "staff/outline.h"

#include <algorithm>

namespace staff {

namespace {

template <class... F>
struct Overloaded : F... {
    using F::operator()...;
};
template <class... F>
Overloaded(F...) -> Overloaded<F...>;

constexpr Rect everywhere{-10000, -10000, 20000, 20000};

Rect lineExtent(int x1, int y1, int x2, int y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::max(std::abs(x2 - x1), 1),
            std::max(std::abs(y2 - y1), 1)};
}

Rect shapeExtent(Shape shape, int x, int y) {
    int left = 1000, oben = 1000, right = -1000, unten = -1000;
    for (const Stroke& s : shape)
        forEachPixel(s, [&](int px, int py) {
            left = std::min(left, px), right = std::max(right, px + 1);
            oben = std::min(oben, py), unten = std::max(unten, py + 1);
        });
    return lineExtent(x + left, y + oben, x + right, y + unten);
}

}  // namespace

void Canvas::drop(const Drag& drag) {
    if (onDrop && usable()) form().guard(name() + "_DragDrop.", [&] { onDrop(drag); });
}

void Canvas::dragOver(const Drag& drag, DragPhase phase) {
    if (onDragOver) form().guard(name() + "_DragOver.", [&] { onDragOver(drag, phase); });
}

bool Canvas::wouldRefuse(const Drag& drag) const { return !usable() || !refuses || refuses(drag); }

void Canvas::key(WritingKey key) {
    if (onKey && usable()) form().guard(name() + "_KeyDown.", [&] { onKey(key); });
}

void Canvas::clear() {
    items_.clear();
    tidied_ = 0;
    tell(form::Aspect::Picture);
}

void Canvas::fill(const Rect& r, Colour farbe) { add(Fill{r, farbe}, r); }

void Canvas::line(int x1, int y1, int x2, int y2, Colour farbe, LineStyle style) {
    add(Line{x1, y1, x2, y2, farbe, style}, lineExtent(x1, y1, x2, y2));
}

void Canvas::shape(Shape shape, int x, int y, Colour farbe) {
    add(PlacedShape{shape, x, y, farbe}, shapeExtent(shape, x, y));
}

void Canvas::curve(Curve curve, int x, int y, Colour farbe) {
    add(PlacedCurve{curve, x, y, farbe}, everywhere);
}

void Canvas::disc(double x, double y, double radius, Colour farbe) {
    add(Disc{x, y, radius, farbe}, everywhere);
}

void Canvas::text(int x, int y, std::string_view text, Colour farbe) {
    add(Text{x, y, std::string(text), farbe}, everywhere);
}

/// Tidied when it has doubled, so that a stroke costs the same however many there are.
void Canvas::add(Item item, const Rect& extent) {
    constexpr std::size_t slack = 256;
    items_.push_back({std::move(item), extent});
    if (items_.size() > 2 * tidied_ + slack) tidy();
    tell(form::Aspect::Picture);
}

bool Canvas::same(const Painted& a, const Painted& b) {
    if (!(a.extent == b.extent) || a.item.index() != b.item.index()) return false;
    if (const auto* l = std::get_if<Line>(&a.item)) return l->style == std::get<Line>(b.item).style;
    const auto* f = std::get_if<PlacedShape>(&a.item);
    return f && f->shape.data() == std::get<PlacedShape>(b.item).shape.data() &&
           f->shape.size() == std::get<PlacedShape>(b.item).shape.size();
}

void Canvas::tidy() const {
    if (items_.size() == tidied_) return;
    std::vector<Rect> wipes;
    auto kept = items_.end();
    for (auto g = items_.end(); g != items_.begin();) {
        --g;
        const auto covered = [&](const Rect& r) { return r.contains(g->extent); };
        const auto replaced = [&](const Painted& later) { return same(*g, later); };
        if (std::ranges::any_of(wipes, covered) || std::any_of(kept, items_.end(), replaced))
            continue;
        if (std::holds_alternative<Fill>(g->item)) wipes.push_back(g->extent);
        --kept;
        if (kept != g) *kept = std::move(*g);
    }
    items_.erase(items_.begin(), kept);
    tidied_ = items_.size();
}

void Canvas::replay(Surface& target) const {
    tidy();
    for (const Painted& g : items_)
        std::visit(
            Overloaded{
                [&](const Fill& f) { target.fill(f.r, f.farbe); },
                [&](const Line& l) { target.line(l.x1, l.y1, l.x2, l.y2, l.farbe, l.style); },
                [&](const PlacedShape& f) { target.shape(f.shape, f.x, f.y, f.farbe); },
                [&](const PlacedCurve& b) { target.curve(b.curve, b.x, b.y, b.farbe); },
                [&](const Disc& s) { target.disc(s.x, s.y, s.radius, s.farbe); },
                [&](const Text& t) { target.text(t.x, t.y, t.text, t.farbe); }},
            g.item);
}

}  // namespace staff
