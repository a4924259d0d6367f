#pragma once
#include "form/control.h"
#include "staff/flaeche.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace staff {

/// Something dragged over a surface. x and y in its pixels.
struct Zug {
    const form::Control& quelle;
    float x, y;
};
enum class ZugZustand { Betreten, Verlassen, Ueber };

/// Keys that write.
enum class Schreibtaste { Links, Rechts, Hoch, Tief, Ablegen, Eins, Zwei, Drei, Vier, Fuenf };

/// A surface of a form, which keeps what was drawn on it, also while it is hidden. Its views draw
/// it anew from here (`zeigen`) whenever it tells them that the picture has changed. What a wipe or
/// an equal shape covers wholly is forgotten, so that it does not grow with use.
class Blatt final : public form::Control, public Flaeche {
  public:
    Blatt(form::Form& form, form::Place place)
        : Control(form, form::Kind::Surface, std::move(place)) {}

    /// Place in the surface that holds it, and size.
    form::Property<Rechteck> lage{*this, form::Aspect::Picture, {}};
    /// A quiet mark that a view shows while the keyboard writes here; empty for none.
    form::Property<Rechteck> marke{*this, form::Aspect::Picture, {}};
    /// What the user drags away from here, shown under the pointer; nullptr: nothing.
    const Blatt* zugbild = nullptr;

    // The user's doing, told by views. What the surface does about it:
    std::function<void(const Zug&)> onAblegen;
    std::function<void(const Zug&, ZugZustand)> onUeber;
    std::function<bool(const Zug&)> lehntAb;
    std::function<void(Schreibtaste)> onTaste;
    /// Enter means something here now; otherwise it is the form's.
    std::function<bool()> nimmtEnter;
    /// What stands here, in words.
    std::function<std::string()> beschreibung;

    void ablegen(const Zug& zug);
    void ueber(const Zug& zug, ZugZustand zustand);
    /// Whether a drop would change nothing.
    bool wuerdeAblehnen(const Zug& zug) const;
    void taste(Schreibtaste taste);

    void leeren() override;
    void fuellen(const Rechteck& r, Colour farbe) override;
    void linie(int x1, int y1, int x2, int y2, Colour farbe,
               Linienart art = Linienart::Voll) override;
    void figur(Figur figur, int x, int y, Colour farbe) override;
    void kurve(Kurve kurve, int x, int y, Colour farbe) override;
    void scheibe(double x, double y, double radius, Colour farbe) override;
    void text(int x, int y, std::string_view text, Colour farbe) override;

    /// Draws what was drawn here, in the same order.
    void zeigen(Flaeche& ziel) const;
    /// Strokes, shapes and wipes that are kept.
    int gemaltes() const {
        aufraeumen();
        return static_cast<int>(gemaltes_.size());
    }

  private:
    struct Fuellung {
        Rechteck r;
        Colour farbe;
    };
    struct Linie {
        int x1, y1, x2, y2;
        Colour farbe;
        Linienart art;
    };
    struct Form {
        Figur figur;
        int x, y;
        Colour farbe;
    };
    struct Bogen {
        Kurve kurve;
        int x, y;
        Colour farbe;
    };
    struct Scheibe {
        double x, y, radius;
        Colour farbe;
    };
    struct Text {
        int x, y;
        std::string text;
        Colour farbe;
    };
    using Strichzug = std::variant<Fuellung, Linie, Form, Bogen, Scheibe, Text>;
    /// What was drawn, and the pixels that it may touch; for curves and texts more than any wipe
    /// takes.
    struct Gemaltes {
        Strichzug zug;
        Rechteck rahmen;
    };
    /// Drawn at the same place and in the same way, in whatever colour.
    static bool gleich(const Gemaltes& a, const Gemaltes& b);
    void dazu(Strichzug zug, const Rechteck& rahmen);
    /// Takes out what can no longer be seen.
    void aufraeumen() const;

    mutable std::vector<Gemaltes> gemaltes_;
    mutable std::size_t aufgeraeumt_ = 0;  ///< how many were left by the last tidying
};

}  // namespace staff
