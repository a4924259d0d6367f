#pragma once
#include "core/katalog.h"
#include "engine/aufgabenwahl.h"

#include <algorithm>
#include <map>
#include <vector>

namespace engine {

namespace katalog = core::katalog;

/// Semitones of a scale above its first note, as the catalogue has it.
inline int step(int typ, int nr, int i) {
    if (const auto* own = katalog::eigenesMuster(typ, nr))
        return own->stufe[static_cast<std::size_t>(i)];
    const auto base = katalog::grundmuster(typ);
    const int degrees = base.size() == 6 ? 5 : static_cast<int>(base.size());
    return base[static_cast<std::size_t>((nr + i) % degrees)] + 12 * ((nr + i) / degrees) -
           base[static_cast<std::size_t>(nr)];
}

/// Task selection without form, sound or time: church modes in both directions, one octave.
struct Draw {
    explicit Draw(std::int64_t seed = 1) : rnd(seed) {
        auswertung.init_arr(20, 6);
        category(0);
    }
    Draw(const Draw&) = delete;
    Draw& operator=(const Draw&) = delete;

    void category(int skal_typ) {
        z.skal_typ = skal_typ;
        z.skal_anz = katalog::kategorien.at(static_cast<std::size_t>(skal_typ)).skal_max;
    }
    void choose(const std::vector<int>& codes) {
        z.ska_ausw = 1;
        z.einzelAnz = codes.size() - 1;
        int i = 0;
        for (const int code : codes) z.einzel_wahl[i++] = code;
    }
    int code() const { return (z.skala_nr + 1) * z.akt_richtung; }
    /// How often each code stands in the pool; 0 for rows that are used up.
    std::map<int, int> pool() const {
        std::map<int, int> count;
        for (int i = 1; i <= z.matboxanz; ++i) ++count[z.matbox(i, 0)];
        return count;
    }
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
    results::Auswertung auswertung;
    Aufgabe a;
    Matbox box{z, auswertung, rnd};
    KlingendeTonart tonart{z, rnd, a};
    Aufgabenwahl wahl{z, rnd, box, tonart, a};
};

}  // namespace engine
