#include "staff/scale_picture.h"

#include "core/katalog.h"
#include "staff/glyphs.h"
#include "staff/ink.h"

#include <array>
#include <string_view>

namespace staff {

namespace katalog = core::katalog;

namespace {

constexpr int c4 = 60;
/// The part of the staff surface that a picture shows begins here.
constexpr int pictureTop = 36;

/// Spelling of the scales that have more or fewer than seven tones, from C: letter and accidental.
struct Spelling {
    int skal_typ;
    int skala_nr;
    std::string_view pitches;
};
constexpr std::array spellings{
    Spelling{3, 0, "C Db Eb E F G Ab Bb C"}, Spelling{3, 1, "C Db Eb E F# G# A B C"},
    Spelling{3, 2, "C D Eb F Gb Ab A B C"},  Spelling{3, 3, "C Db Eb E F# G A Bb C"},
    Spelling{3, 4, "C D E F G A Bb B C"},    Spelling{3, 5, "C D E F G G# A B C"},
    Spelling{3, 6, "C Db D F F# G Ab B C"},  Spelling{3, 7, "C D E F F# G# A# B C"},
    Spelling{5, 0, "C Eb F F# G Bb C"},      Spelling{5, 1, "C D E F# G# A# C"},
    Spelling{5, 2, "C Db F F# G B C"},       Spelling{5, 3, "C Db Eb F Ab Bb C"},
    Spelling{5, 4, "C Eb F G Ab Bb C"},      Spelling{5, 5, "C D Eb F G Bb C"},
    Spelling{5, 6, "C D F G A Bb C"},        Spelling{5, 7, "C D E F A A C"},
    Spelling{5, 8, "C D E G A B C"},
};

constexpr int letterNamed(char name) { return (name - 'A' + 5) % 7; }

/// Calls `f` with the fifths number of each spelled tone.
template <class F>
constexpr void forEachTone(std::string_view pitches, F f) {
    for (std::size_t i = 0; i < pitches.size(); ++i) {
        const char name = pitches[i];
        if (name == ' ') continue;
        const char zeichen = i + 1 < pitches.size() ? pitches[i + 1] : ' ';
        const int vz = zeichen == '#' ? 1 : zeichen == 'b' ? -1 : 0;
        f(qzOf(letterNamed(name), vz));
        if (vz != 0) ++i;
    }
}

/// What is spelled is what sounds.
static_assert([] {
    for (const Spelling& s : spellings) {
        const katalog::Skala* skala = katalog::eigenesMuster(s.skal_typ, s.skala_nr);
        std::size_t i = 0;
        bool same = true;
        forEachTone(s.pitches,
                    [&](int qz) { same = same && pitchClass(qz) == skala->stufe[i++] % 12; });
        if (!same || i != static_cast<std::size_t>(katalog::kategorie(s.skal_typ).tonAnz))
            return false;
    }
    return true;
}());

/// The spelling of a sound on a given letter.
int onLetter(int letter, int height) { return qzOf(letter, height - semitones(letter)); }

/// Modes: the base scale from C, read from a degree; moved so that all begin on C where one final
/// is kept.
std::vector<Pitch> rotatedPitches(const ScalePicture& picture) {
    const auto pattern = katalog::grundmuster(picture.skal_typ);
    const bool fiveTones = pattern.size() == 6;
    const int degrees = fiveTones ? 5 : 7;
    constexpr std::array fiveToneLetters{0, 1, 2, 4, 5};
    const auto qzAt = [&](int degree) {
        const int letter = fiveTones ? base::at(fiveToneLetters, degree) : degree;
        return onLetter(letter, base::at(pattern, degree));
    };
    const katalog::Leiter scaleTones = katalog::scaleTones(picture.skal_typ, picture.skala_nr);
    const int first = c4 + (picture.sameFinal ? 0 : base::at(pattern, picture.skala_nr));
    const int shift = picture.sameFinal ? qzAt(picture.skala_nr) - QzMitte : 0;
    std::vector<Pitch> pitches;
    for (int i = 0; i <= degrees; ++i)
        pitches.push_back(
            {first + base::at(scaleTones, i), qzAt((picture.skala_nr + i) % degrees) - shift});
    return pitches;
}

}  // namespace

bool findPicture(int number, ScalePicture& picture) {
    for (int typ = 0; typ < katalog::kategorienAnz; ++typ) {
        const auto& kategorie = katalog::kategorie(typ);
        for (std::size_t column = 0; column < 2; ++column) {
            const int nr = number - kategorie.bild_basis[column];
            if (nr < 0 || nr > kategorie.skal_max) continue;
            picture = {typ, nr, column == 0};
            return true;
        }
    }
    return false;
}

std::vector<Pitch> picturePitches(const ScalePicture& picture) {
    if (katalog::rotiert(picture.skal_typ)) return rotatedPitches(picture);
    const katalog::Skala& skala = *katalog::eigenesMuster(picture.skal_typ, picture.skala_nr);
    std::vector<Pitch> pitches;
    for (const Spelling& s : spellings)
        if (s.skal_typ == picture.skal_typ && s.skala_nr == picture.skala_nr)
            forEachTone(s.pitches, [&](int qz) {
                pitches.push_back({c4 + skala.stufe[pitches.size()], qz});
            });
    if (!pitches.empty()) return pitches;
    // Seven tones or four: one letter after the other.
    const int count = katalog::kategorie(picture.skal_typ).tonAnz;
    for (int i = 0; i < count; ++i) {
        const int stufe = base::at(skala.stufe, i);
        pitches.push_back({c4 + stufe, onLetter(i % 7, stufe - 12 * (i / 7))});
    }
    return pitches;
}

namespace {

/// Moves everything up by what the picture leaves out of the staff surface.
class Crop final : public Surface {
  public:
    explicit Crop(Surface& surface) : surface_(surface) {}
    void clear() override { surface_.clear(); }
    void fill(const Rect& r, Colour farbe) override {
        surface_.fill({r.x, r.y - pictureTop, r.width, r.height}, farbe);
    }
    void line(int x1, int y1, int x2, int y2, Colour farbe, LineStyle style) override {
        surface_.line(x1, y1 - pictureTop, x2, y2 - pictureTop, farbe, style);
    }
    void shape(Shape shape, int x, int y, Colour farbe) override {
        surface_.shape(shape, x, y - pictureTop, farbe);
    }
    void curve(Curve curve, int x, int y, Colour farbe) override {
        surface_.curve(curve, x, y - pictureTop, farbe);
    }
    void disc(double x, double y, double radius, Colour farbe) override {
        surface_.disc(x, y - pictureTop, radius, farbe);
    }
    void text(int x, int y, std::string_view text, Colour farbe) override {
        surface_.text(x, y - pictureTop, text, farbe);
    }

  private:
    Surface& surface_;
};

void paintQuarterNote(Surface& target) {
    constexpr int x = 5, y = 21, shorter = -6;
    NotenkopfMalen(target, x, y, ink::black);
    HalsMalen(target, x, y, shorter, 0);
}

}  // namespace

void paintPicture(Surface& target, int number) {
    if (number == quarterNote) return paintQuarterNote(target);
    ScalePicture picture{};
    if (!findPicture(number, picture)) return;
    Crop surface(target);
    paintLines(surface, pictureWidth, topLine(clef::treble));
    ViolinschluesselMalen(surface);
    const auto pitches = picturePitches(picture);
    constexpr int left = 54, right = pictureWidth - 14, widest = 48;
    const int step = std::min(widest, (right - left) / (static_cast<int>(pitches.size()) - 1));
    int x = left;
    for (const Pitch& pitch : pitches) {
        const i16 y = YAusTon(pitch, clef::treble).y;
        i16 zaehler = 0;
        HilfslinienMalen(surface, x, y, ledgerAbove(clef::treble), ledgerBelow(clef::treble),
                         zaehler);
        NotenkopfMalen(surface, x, y, ink::black);
        paintAccidental(surface, x, y, accidental(pitch.qz));
        x += step;
    }
}

}  // namespace staff
