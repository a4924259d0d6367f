#include "engine/melodik.h"

#include "base/runtime_error.h"

#include <cstdlib>
#include <optional>

namespace engine {

namespace {

/// The six orders of three things.
constexpr std::array<std::array<int, 3>, 6> kombi{
    {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}}};

/// More fresh starts than any singable set of notes needs.
constexpr int maxVersuche = 10000;

/// One attempt at a melody.
class Versuch {
  public:
    Versuch(const Aufgabe& a, base::Rnd& rnd) : a_(a), nr_(a.skala_nr), rnd_(rnd) {}

    std::optional<std::array<int, 8>> folge() {
        erster();
        for (int position = 1; position <= 3; ++position)
            if (!naechster(position)) return {};
        if (!rest()) return {};
        letzter();
        return folge_;
    }

  private:
    bool schlecht(int von, int nach) const { return unsanglich(a_.noten[von], a_.noten[nach]); }
    int& an(int position) { return base::at(folge_, position); }
    bool& belegt(int stufe) { return base::at(belegt_, stufe); }

    /// First or last note, or, never for scale 6, with chance 1 in 5 the fifth degree.
    void erster() {
        const int r = rnd_.below(nr_ == 6 ? 4 : 5);
        zwang_ = r == 4;
        an(0) = r < 3 ? 0 : r == 3 ? 7 : 4;
        belegen(an(0));
    }

    /// The octave counts as the same degree.
    void belegen(int stufe) {
        belegt(stufe) = true;
        if (stufe == 0 || stufe == 7) belegt(0) = belegt(7) = true;
    }

    /// After a start on the fifth the final comes next.
    bool naechster(int position) {
        const int vorher = an(position - 1);
        bool moeglich = false;
        for (int stufe = 0; stufe < 8; ++stufe)
            moeglich = moeglich || (!belegt(stufe) && !schlecht(vorher, stufe));
        if (!moeglich) return false;
        for (;;) {
            const int kandidat = zwang_ ? rnd_.below(2) * 7 : rnd_.below(8);
            zwang_ = false;
            if (belegt(kandidat) || schlecht(vorher, kandidat)) continue;
            an(position) = kandidat;
            belegen(kandidat);
            return true;
        }
    }

    /// The three degrees left, in the first order that can be sung on to the final.
    bool rest() {
        std::array<int, 3> restton{};
        int frei = 0;
        for (int stufe = 0; stufe < 7; ++stufe)
            if (!belegt(stufe) && frei < 3) base::at(restton, frei++) = stufe;
        std::array<bool, 6> versucht{};
        for (int n = 0; n < 6; ++n) {
            int t = 0;
            do t = rnd_.below(6);
            while (base::at(versucht, t));
            base::at(versucht, t) = true;
            for (int k = 0; k < 3; ++k)
                an(4 + k) = base::at(restton, base::at(base::at(kombi, t), k));
            if (!schlecht(an(3), an(4)) && !schlecht(an(4), an(5)) && !schlecht(an(5), an(6)) &&
                std::abs(a_.noten[0] - a_.noten[an(6)]) != 6)
                return true;
        }
        return false;
    }

    void letzter() {
        const int e1 = a_.noten[0] - a_.noten[an(6)];
        const int e2 = a_.noten[7] - a_.noten[an(6)];
        const bool unten = e1 != 0 && (e2 == 0 || !unsanglich(0, e1));
        const bool oben = e1 == 0 || (e2 != 0 && !unsanglich(0, e2));
        an(7) = unten && oben ? rnd_.below(2) * 7 : oben ? 7 : 0;
    }

    const Aufgabe& a_;
    int nr_;
    base::Rnd& rnd_;
    std::array<int, 8> folge_{};
    std::array<bool, 8> belegt_{};
    bool zwang_ = false;
};

}  // namespace

void MelodikFolge(Aufgabe& a, base::Rnd& rnd) {
    for (int n = 0; n < maxVersuche; ++n) {
        const auto folge = Versuch(a, rnd).folge();
        if (!folge) continue;
        for (int i = 0; i < 8; ++i) a.ton_abfolg[i] = base::at(*folge, i);
        return;
    }
    throw base::RuntimeError(base::ErrorNumber::InvalidCall, "these notes allow no melody");
}

}  // namespace engine
