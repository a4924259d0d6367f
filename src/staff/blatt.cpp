#include "staff/blatt.h"

#include "form/form.h"
#include "staff/umriss.h"

#include <algorithm>

namespace staff {

namespace {

template <class... F>
struct Fall : F... {
    using F::operator()...;
};
template <class... F>
Fall(F...) -> Fall<F...>;

constexpr Rechteck ueberall{-10000, -10000, 20000, 20000};

Rechteck linienRahmen(int x1, int y1, int x2, int y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::max(std::abs(x2 - x1), 1),
            std::max(std::abs(y2 - y1), 1)};
}

Rechteck figurenRahmen(Figur figur, int x, int y) {
    int links = 1000, oben = 1000, rechts = -1000, unten = -1000;
    for (const Strich& s : figur)
        jederPunkt(s, [&](int px, int py) {
            links = std::min(links, px), rechts = std::max(rechts, px + 1);
            oben = std::min(oben, py), unten = std::max(unten, py + 1);
        });
    return linienRahmen(x + links, y + oben, x + rechts, y + unten);
}

}  // namespace

void Blatt::ablegen(const Zug& zug) {
    if (onAblegen && usable()) form().guard(name() + "_DragDrop.", [&] { onAblegen(zug); });
}

void Blatt::ueber(const Zug& zug, ZugZustand zustand) {
    if (onUeber) form().guard(name() + "_DragOver.", [&] { onUeber(zug, zustand); });
}

bool Blatt::wuerdeAblehnen(const Zug& zug) const { return !usable() || !lehntAb || lehntAb(zug); }

void Blatt::taste(Schreibtaste taste) {
    if (onTaste && usable()) form().guard(name() + "_KeyDown.", [&] { onTaste(taste); });
}

void Blatt::leeren() {
    gemaltes_.clear();
    aufgeraeumt_ = 0;
    tell(form::Aspect::Picture);
}

void Blatt::fuellen(const Rechteck& r, Colour farbe) { dazu(Fuellung{r, farbe}, r); }

void Blatt::linie(int x1, int y1, int x2, int y2, Colour farbe, Linienart art) {
    dazu(Linie{x1, y1, x2, y2, farbe, art}, linienRahmen(x1, y1, x2, y2));
}

void Blatt::figur(Figur figur, int x, int y, Colour farbe) {
    dazu(Form{figur, x, y, farbe}, figurenRahmen(figur, x, y));
}

void Blatt::kurve(Kurve kurve, int x, int y, Colour farbe) {
    dazu(Bogen{kurve, x, y, farbe}, ueberall);
}

void Blatt::scheibe(double x, double y, double radius, Colour farbe) {
    dazu(Scheibe{x, y, radius, farbe}, ueberall);
}

void Blatt::text(int x, int y, std::string_view text, Colour farbe) {
    dazu(Text{x, y, std::string(text), farbe}, ueberall);
}

/// Tidied when it has doubled, so that a stroke costs the same however many there are.
void Blatt::dazu(Strichzug zug, const Rechteck& rahmen) {
    constexpr std::size_t spielraum = 256;
    gemaltes_.push_back({std::move(zug), rahmen});
    if (gemaltes_.size() > 2 * aufgeraeumt_ + spielraum) aufraeumen();
    tell(form::Aspect::Picture);
}

bool Blatt::gleich(const Gemaltes& a, const Gemaltes& b) {
    if (!(a.rahmen == b.rahmen) || a.zug.index() != b.zug.index()) return false;
    if (const auto* l = std::get_if<Linie>(&a.zug)) return l->art == std::get<Linie>(b.zug).art;
    const auto* f = std::get_if<Form>(&a.zug);
    return f && f->figur.data() == std::get<Form>(b.zug).figur.data() &&
           f->figur.size() == std::get<Form>(b.zug).figur.size();
}

void Blatt::aufraeumen() const {
    if (gemaltes_.size() == aufgeraeumt_) return;
    std::vector<Rechteck> wischer;
    auto bleibt = gemaltes_.end();
    for (auto g = gemaltes_.end(); g != gemaltes_.begin();) {
        --g;
        const auto verdeckt = [&](const Rechteck& r) { return r.enthaelt(g->rahmen); };
        const auto ersetzt = [&](const Gemaltes& spaeter) { return gleich(*g, spaeter); };
        if (std::ranges::any_of(wischer, verdeckt) || std::any_of(bleibt, gemaltes_.end(), ersetzt))
            continue;
        if (std::holds_alternative<Fuellung>(g->zug)) wischer.push_back(g->rahmen);
        --bleibt;
        if (bleibt != g) *bleibt = std::move(*g);
    }
    gemaltes_.erase(gemaltes_.begin(), bleibt);
    aufgeraeumt_ = gemaltes_.size();
}

void Blatt::zeigen(Flaeche& ziel) const {
    aufraeumen();
    for (const Gemaltes& g : gemaltes_)
        std::visit(Fall{[&](const Fuellung& f) { ziel.fuellen(f.r, f.farbe); },
                        [&](const Linie& l) { ziel.linie(l.x1, l.y1, l.x2, l.y2, l.farbe, l.art); },
                        [&](const Form& f) { ziel.figur(f.figur, f.x, f.y, f.farbe); },
                        [&](const Bogen& b) { ziel.kurve(b.kurve, b.x, b.y, b.farbe); },
                        [&](const Scheibe& s) { ziel.scheibe(s.x, s.y, s.radius, s.farbe); },
                        [&](const Text& t) { ziel.text(t.x, t.y, t.text, t.farbe); }},
                   g.zug);
}

}  // namespace staff
