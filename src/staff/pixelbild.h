#pragma once
#include "staff/flaeche.h"

#include <cstddef>
#include <string>
#include <vector>

namespace staff {

/// A grid of pixels, painted as the strokes say, without smoothing. Texts are left out. What lies
/// outside is cut off.
class Pixelbild final : public Flaeche {
  public:
    Pixelbild(int breite, int hoehe);

    /// White outside.
    Colour an(int x, int y) const;
    /// A part of the picture, one line of text per row: '#' black, '.' white, '+' anything else.
    std::string zeichnung(const Rechteck& teil) const;

    void leeren() override;
    void fuellen(const Rechteck& r, Colour farbe) override;
    void linie(int x1, int y1, int x2, int y2, Colour farbe,
               Linienart art = Linienart::Voll) override;
    void figur(Figur figur, int x, int y, Colour farbe) override;
    void kurve(Kurve kurve, int x, int y, Colour farbe) override;
    void scheibe(double x, double y, double radius, Colour farbe) override;
    void text(int, int, std::string_view, Colour) override {}

  private:
    std::size_t stelle(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(breite_) +
               static_cast<std::size_t>(x);
    }
    void punkt(int x, int y, Colour farbe);

    int breite_, hoehe_;
    std::vector<Colour> punkte_;
};

}  // namespace staff
