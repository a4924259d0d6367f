#pragma once
#include <utility>
#include <vector>

namespace setup {

/// The branches of the program: what the set-up form is built for. Values of `theoriewahl`.
enum class Zweig { Gehoerbildung, Musiklehre };

/// The sound of a task can be set up.
constexpr bool klingt(Zweig zweig) { return zweig == Zweig::Gehoerbildung; }

/// Indices of controls that only a branch with sound has.
inline std::vector<int> wennKlang(Zweig zweig, std::vector<int> indices) {
    return klingt(zweig) ? std::move(indices) : std::vector<int>{};
}

/// What a category of scales allows on the set-up form.
struct Regel {
    bool namen;            ///< the answers may be labelled with names
    bool vorzeichen;       ///< the key signature may stay the same
    bool melodieStimmung;  ///< melodies, and tunings other than equal
};
const Regel& regel(int skal_typ);

}  // namespace setup
