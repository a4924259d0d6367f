#pragma once
#include "form/control.h"
#include "staff/surface.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace staff {

/// Something dragged over a surface. x and y in its pixels.
struct Drag {
    const form::Control& source;
    float x, y;
};
enum class DragPhase { Enter, Leave, Over };

/// Keys that write.
enum class WritingKey { Left, Right, Up, Down, Drop, One, Two, Three, Four, Five };

/// A surface of a form, which keeps what was drawn on it, also while it is hidden. Its views draw
/// it anew from here (`replay`) whenever it tells them that the picture has changed. What a wipe or
/// an equal shape covers wholly is forgotten, so that it does not grow with use.
class Canvas final : public form::Control, public Surface {
  public:
    Canvas(form::Form& form, form::Place place)
        : Control(form, form::Kind::Canvas, std::move(place)) {}

    /// Place in the surface that holds it, and size.
    form::Property<Rect> bounds{*this, form::Aspect::Picture, {}};
    /// A quiet mark that a view shows while the keyboard writes here; empty for none.
    form::Property<Rect> mark{*this, form::Aspect::Picture, {}};
    /// What the user drags away from here, shown under the pointer; nullptr: nothing.
    const Canvas* dragPicture = nullptr;

    // The user's doing, told by views. What the surface does about it:
    std::function<void(const Drag&)> onDrop;
    std::function<void(const Drag&, DragPhase)> onDragOver;
    std::function<bool(const Drag&)> refuses;
    std::function<void(WritingKey)> onKey;
    /// Enter means something here now; otherwise it is the form's.
    std::function<bool()> takesEnter;
    /// What stands here, in words.
    std::function<std::string()> inWords;

    void drop(const Drag& drag);
    void dragOver(const Drag& drag, DragPhase phase);
    /// Whether a drop would change nothing.
    bool wouldRefuse(const Drag& drag) const;
    void key(WritingKey key);

    void clear() override;
    void fill(const Rect& r, Colour farbe) override;
    void line(int x1, int y1, int x2, int y2, Colour farbe,
              LineStyle style = LineStyle::Solid) override;
    void shape(Shape shape, int x, int y, Colour farbe) override;
    void curve(Curve curve, int x, int y, Colour farbe) override;
    void disc(double x, double y, double radius, Colour farbe) override;
    void text(int x, int y, std::string_view text, Colour farbe) override;

    /// Draws what was drawn here, in the same order.
    void replay(Surface& target) const;
    /// Strokes, shapes and wipes that are kept.
    int paintedCount() const {
        tidy();
        return static_cast<int>(items_.size());
    }

  private:
    struct Fill {
        Rect r;
        Colour farbe;
    };
    struct Line {
        int x1, y1, x2, y2;
        Colour farbe;
        LineStyle style;
    };
    struct PlacedShape {
        Shape shape;
        int x, y;
        Colour farbe;
    };
    struct PlacedCurve {
        Curve curve;
        int x, y;
        Colour farbe;
    };
    struct Disc {
        double x, y, radius;
        Colour farbe;
    };
    struct Text {
        int x, y;
        std::string text;
        Colour farbe;
    };
    using Item = std::variant<Fill, Line, PlacedShape, PlacedCurve, Disc, Text>;
    /// What was drawn, and the pixels that it may touch; for curves and texts more than any wipe
    /// takes.
    struct Painted {
        Item item;
        Rect extent;
    };
    /// Drawn at the same place and in the same way, in whatever colour.
    static bool same(const Painted& a, const Painted& b);
    void add(Item item, const Rect& extent);
    /// Takes out what can no longer be seen.
    void tidy() const;

    mutable std::vector<Painted> items_;
    mutable std::size_t tidied_ = 0;  ///< how many were left by the last tidying
};

}  // namespace staff
