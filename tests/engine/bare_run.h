#pragma once
#include "core/katalog.h"
#include "engine/run.h"
#include "support/choices.h"

#include <algorithm>
#include <map>
#include <optional>
#include <vector>

namespace engine {

namespace katalog = core::katalog;

inline constexpr const Exercise& hearing = exercises[0];
inline constexpr const Exercise& reading = exercises[1];
inline constexpr const Exercise& writing = exercises[2];

/// A run without form, sound or time: church modes in both directions, one octave.
struct BareRun {
    explicit BareRun(const Exercise& exercise = hearing, std::int64_t seed = 1)
        : exercise_(exercise), seed_(seed) {
        z.theoriewahl = exercise.theoriewahl;
        z.ueb_typ = exercise.ueb_typ;
        wertung.vorbereiten();
        category(0);
    }
    BareRun(const BareRun&) = delete;
    BareRun& operator=(const BareRun&) = delete;

    void category(int skal_typ) { support::category(z, skal_typ); }
    void choose(const std::vector<int>& codes) { support::choose(z, codes); }
    engine::Run& begin(int uebungsmodus = core::modus::ausprobieren) {
        z.uebungsmodus = uebungsmodus;
        run.emplace(z, rnd, wertung, exercise_);
        run->begin({.presentation = 4000}, [this] { return seed_; });
        return *run;
    }
    /// Answers the task in hand. @return what the answer has led to.
    TaskState answer(bool right, float seconds = 0) {
        run->answerOpen(0);
        const int asked = run->task().skala_nr;
        const int named = right ? asked : (asked + 1) % (int(z.skal_anz) + 1);
        return run->score({named, right}, seconds);
    }
    /// A task to its end, at once right or wrong until it is lost.
    TaskState task(bool right) {
        run->draw();
        TaskState state = answer(right);
        while (state == TaskState::TryAgain) state = answer(false);
        return state;
    }
    int code() const { return run->task().code(); }
    /// How often each code stands in the pool; 0 for rows that are used up.
    std::map<int, int> pool() const {
        std::map<int, int> count;
        for (int i = 1; i <= run->pool().matboxanz(); ++i) ++count[run->pool().code(i)];
        return count;
    }
    std::map<int, int> weights() const { return support::weights(z); }
    /// Codes that the run may draw.
    std::vector<int> codes() const {
        std::vector<int> all;
        if (z.ska_ausw != 0)
            for (int i = 0; i <= z.einzelAnz; ++i) all.push_back(z.einzel_wahl[i]);
        else
            for (int nr = 1; nr <= z.skal_anz + 1; ++nr) {
                if (z.richtung != 1) all.push_back(nr);
                if (z.richtung != 0) all.push_back(-nr);
            }
        std::ranges::sort(all);
        return all;
    }

    core::Zustand z;
    base::Rnd rnd;
    results::Wertung wertung{z};
    std::optional<engine::Run> run;

  private:
    const Exercise& exercise_;
    std::int64_t seed_;
};

}  // namespace engine
