#include "staff/bild.h"

#include "core/katalog.h"
#include "staff/farbe.h"
#include "staff/noten.h"

#include <array>
#include <string_view>

namespace staff {

namespace katalog = core::katalog;

namespace {

constexpr int c4 = 60;
/// The part of the staff surface that a picture shows begins here.
constexpr int bildOben = 36;

/// Spelling of the scales that have more or fewer than seven tones, from C: letter and accidental.
struct Schreibung {
    int skal_typ;
    int skala_nr;
    std::string_view toene;
};
constexpr std::array schreibungen{
    Schreibung{3, 0, "C Db Eb E F G Ab Bb C"}, Schreibung{3, 1, "C Db Eb E F# G# A B C"},
    Schreibung{3, 2, "C D Eb F Gb Ab A B C"},  Schreibung{3, 3, "C Db Eb E F# G A Bb C"},
    Schreibung{3, 4, "C D E F G A Bb B C"},    Schreibung{3, 5, "C D E F G G# A B C"},
    Schreibung{3, 6, "C Db D F F# G Ab B C"},  Schreibung{3, 7, "C D E F F# G# A# B C"},
    Schreibung{5, 0, "C Eb F F# G Bb C"},      Schreibung{5, 1, "C D E F# G# A# C"},
    Schreibung{5, 2, "C Db F F# G B C"},       Schreibung{5, 3, "C Db Eb F Ab Bb C"},
    Schreibung{5, 4, "C Eb F G Ab Bb C"},      Schreibung{5, 5, "C D Eb F G Bb C"},
    Schreibung{5, 6, "C D F G A Bb C"},        Schreibung{5, 7, "C D E F A A C"},
    Schreibung{5, 8, "C D E G A B C"},
};

constexpr int stammtonVon(char buchstabe) { return (buchstabe - 'A' + 5) % 7; }

/// Calls `f` with the fifths number of each spelled tone.
template <class F>
constexpr void jederTon(std::string_view toene, F f) {
    for (std::size_t i = 0; i < toene.size(); ++i) {
        const char buchstabe = toene[i];
        if (buchstabe == ' ') continue;
        const char zeichen = i + 1 < toene.size() ? toene[i + 1] : ' ';
        const int vz = zeichen == '#' ? 1 : zeichen == 'b' ? -1 : 0;
        f(qzVon(stammtonVon(buchstabe), vz));
        if (vz != 0) ++i;
    }
}

/// What is spelled is what sounds.
static_assert([] {
    for (const Schreibung& s : schreibungen) {
        const katalog::Skala* skala = katalog::eigenesMuster(s.skal_typ, s.skala_nr);
        std::size_t i = 0;
        bool gleich = true;
        jederTon(s.toene,
                 [&](int qz) { gleich = gleich && tonklasse(qz) == skala->stufe[i++] % 12; });
        if (!gleich || i != static_cast<std::size_t>(katalog::kategorie(s.skal_typ).tonAnz))
            return false;
    }
    return true;
}());

/// The spelling of a sound on a given letter.
int aufStammton(int stammton, int hoehe) { return qzVon(stammton, hoehe - halbtoene(stammton)); }

/// Modes: the base scale from C, read from a degree; moved so that all begin on C where one final
/// is kept.
std::vector<Ton> rotierteToene(const Bild& bild) {
    const auto muster = katalog::grundmuster(bild.skal_typ);
    const bool fuenfton = muster.size() == 6;
    const int grade = fuenfton ? 5 : 7;
    constexpr std::array fuenftonStaemme{0, 1, 2, 4, 5};
    const auto qzAn = [&](int grad) {
        const int stamm = fuenfton ? base::at(fuenftonStaemme, grad) : grad;
        return aufStammton(stamm, base::at(muster, grad));
    };
    const katalog::Leiter leiter = katalog::leiter(bild.skal_typ, bild.skala_nr);
    const int erster = c4 + (bild.gleicheFinalis ? 0 : base::at(muster, bild.skala_nr));
    const int verschoben = bild.gleicheFinalis ? qzAn(bild.skala_nr) - QzMitte : 0;
    std::vector<Ton> toene;
    for (int i = 0; i <= grade; ++i)
        toene.push_back(
            {erster + base::at(leiter, i), qzAn((bild.skala_nr + i) % grade) - verschoben});
    return toene;
}

}  // namespace

bool bildVon(int nummer, Bild& bild) {
    for (int typ = 0; typ < katalog::kategorienAnz; ++typ) {
        const auto& kategorie = katalog::kategorie(typ);
        for (std::size_t spalte = 0; spalte < 2; ++spalte) {
            const int nr = nummer - kategorie.bild_basis[spalte];
            if (nr < 0 || nr > kategorie.skal_max) continue;
            bild = {typ, nr, spalte == 0};
            return true;
        }
    }
    return false;
}

std::vector<Ton> bildToene(const Bild& bild) {
    if (katalog::rotiert(bild.skal_typ)) return rotierteToene(bild);
    const katalog::Skala& skala = *katalog::eigenesMuster(bild.skal_typ, bild.skala_nr);
    std::vector<Ton> toene;
    for (const Schreibung& s : schreibungen)
        if (s.skal_typ == bild.skal_typ && s.skala_nr == bild.skala_nr)
            jederTon(s.toene, [&](int qz) {
                toene.push_back({c4 + skala.stufe[toene.size()], qz});
            });
    if (!toene.empty()) return toene;
    // Seven tones or four: one letter after the other.
    const int anzahl = katalog::kategorie(bild.skal_typ).tonAnz;
    for (int i = 0; i < anzahl; ++i) {
        const int stufe = base::at(skala.stufe, i);
        toene.push_back({c4 + stufe, aufStammton(i % 7, stufe - 12 * (i / 7))});
    }
    return toene;
}

namespace {

/// Moves everything up by what the picture leaves out of the staff surface.
class Ausschnitt final : public Flaeche {
  public:
    explicit Ausschnitt(Flaeche& flaeche) : flaeche_(flaeche) {}
    void leeren() override { flaeche_.leeren(); }
    void fuellen(const Rechteck& r, Colour farbe) override {
        flaeche_.fuellen({r.x, r.y - bildOben, r.breite, r.hoehe}, farbe);
    }
    void linie(int x1, int y1, int x2, int y2, Colour farbe, Linienart art) override {
        flaeche_.linie(x1, y1 - bildOben, x2, y2 - bildOben, farbe, art);
    }
    void figur(Figur figur, int x, int y, Colour farbe) override {
        flaeche_.figur(figur, x, y - bildOben, farbe);
    }
    void kurve(Kurve kurve, int x, int y, Colour farbe) override {
        flaeche_.kurve(kurve, x, y - bildOben, farbe);
    }
    void scheibe(double x, double y, double radius, Colour farbe) override {
        flaeche_.scheibe(x, y - bildOben, radius, farbe);
    }
    void text(int x, int y, std::string_view text, Colour farbe) override {
        flaeche_.text(x, y - bildOben, text, farbe);
    }

  private:
    Flaeche& flaeche_;
};

void ViertelnoteMalen(Flaeche& ziel) {
    constexpr int x = 5, y = 21, kuerzer = -6;
    NotenkopfMalen(ziel, x, y, farbe::schwarz);
    HalsMalen(ziel, x, y, kuerzer, 0);
}

}  // namespace

void BildMalen(Flaeche& ziel, int nummer) {
    if (nummer == viertelnote) return ViertelnoteMalen(ziel);
    Bild bild{};
    if (!bildVon(nummer, bild)) return;
    Ausschnitt flaeche(ziel);
    LinienMalen(flaeche, bildBreite, obersteLinie(schluessel::violin));
    ViolinschluesselMalen(flaeche);
    const auto toene = bildToene(bild);
    constexpr int links = 54, rechts = bildBreite - 14, weitester = 48;
    const int schritt =
        std::min(weitester, (rechts - links) / (static_cast<int>(toene.size()) - 1));
    int x = links;
    for (const Ton& ton : toene) {
        const i16 y = YAusTon(ton, schluessel::violin).y;
        i16 zaehler = 0;
        HilfslinienMalen(flaeche, x, y, hilfslinieOben(schluessel::violin),
                         hilfslinieUnten(schluessel::violin), zaehler);
        NotenkopfMalen(flaeche, x, y, farbe::schwarz);
        VorzeichenMalen(flaeche, x, y, vorzeichen(ton.qz));
        x += schritt;
    }
}

}  // namespace staff
