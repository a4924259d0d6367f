#include "engine/melody.h"

#include "base/runtime_error.h"

#include <cstdlib>
#include <optional>

namespace engine {

namespace {

/// The six orders of three things.
constexpr std::array<std::array<int, 3>, 6> kombi{
    {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}}};

/// More fresh starts than any singable set of notes needs.
constexpr int maxAttempts = 10000;

/// One attempt at a melody.
class MelodyAttempt {
  public:
    MelodyAttempt(const Task& a, base::Rnd& rnd) : a_(a), nr_(a.skala_nr), rnd_(rnd) {}

    std::optional<std::array<int, 8>> order() {
        first();
        for (int position = 1; position <= 3; ++position)
            if (!next(position)) return {};
        if (!rest()) return {};
        last();
        return order_;
    }

  private:
    bool isAwkward(int from, int to) const { return awkward(a_.noten[from], a_.noten[to]); }
    int& degreeAt(int position) { return base::at(order_, position); }
    bool& belegt(int stufe) { return base::at(belegt_, stufe); }

    /// First or last note, or, never for scale 6, with chance 1 in 5 the fifth degree.
    void first() {
        const int r = rnd_.below(nr_ == 6 ? 4 : 5);
        forced_ = r == 4;
        degreeAt(0) = r < 3 ? 0 : r == 3 ? 7 : 4;
        occupy(degreeAt(0));
    }

    /// The octave counts as the same degree.
    void occupy(int stufe) {
        belegt(stufe) = true;
        if (stufe == 0 || stufe == 7) belegt(0) = belegt(7) = true;
    }

    /// After a start on the fifth the final comes next.
    bool next(int position) {
        const int before = degreeAt(position - 1);
        bool possible = false;
        for (int stufe = 0; stufe < 8; ++stufe)
            possible = possible || (!belegt(stufe) && !isAwkward(before, stufe));
        if (!possible) return false;
        for (;;) {
            const int candidate = forced_ ? rnd_.below(2) * 7 : rnd_.below(8);
            forced_ = false;
            if (belegt(candidate) || isAwkward(before, candidate)) continue;
            degreeAt(position) = candidate;
            occupy(candidate);
            return true;
        }
    }

    /// The three degrees left, in the first order that can be sung on to the final.
    bool rest() {
        std::array<int, 3> restton{};
        int free = 0;
        for (int stufe = 0; stufe < 7; ++stufe)
            if (!belegt(stufe) && free < 3) base::at(restton, free++) = stufe;
        std::array<bool, 6> versucht{};
        for (int n = 0; n < 6; ++n) {
            int t = 0;
            do t = rnd_.below(6);
            while (base::at(versucht, t));
            base::at(versucht, t) = true;
            for (int k = 0; k < 3; ++k)
                degreeAt(4 + k) = base::at(restton, base::at(base::at(kombi, t), k));
            if (!isAwkward(degreeAt(3), degreeAt(4)) && !isAwkward(degreeAt(4), degreeAt(5)) &&
                !isAwkward(degreeAt(5), degreeAt(6)) &&
                std::abs(a_.noten[0] - a_.noten[degreeAt(6)]) != 6)
                return true;
        }
        return false;
    }

    void last() {
        const int e1 = a_.noten[0] - a_.noten[degreeAt(6)];
        const int e2 = a_.noten[7] - a_.noten[degreeAt(6)];
        const bool unten = e1 != 0 && (e2 == 0 || !awkward(0, e1));
        const bool oben = e1 == 0 || (e2 != 0 && !awkward(0, e2));
        degreeAt(7) = unten && oben ? rnd_.below(2) * 7 : oben ? 7 : 0;
    }

    const Task& a_;
    int nr_;
    base::Rnd& rnd_;
    std::array<int, 8> order_{};
    std::array<bool, 8> belegt_{};
    bool forced_ = false;
};

}  // namespace

void MelodikFolge(Task& a, base::Rnd& rnd) {
    for (int n = 0; n < maxAttempts; ++n) {
        const auto order = MelodyAttempt(a, rnd).order();
        if (!order) continue;
        for (int i = 0; i < 8; ++i) a.ton_abfolg[i] = base::at(*order, i);
        return;
    }
    throw base::RuntimeError(base::ErrorNumber::InvalidCall, "these notes allow no melody");
}

}  // namespace engine
