#include "engine/tonality_sequence.h"

#include <cstdlib>

namespace engine {

namespace {

constexpr int freeAttempts = 10;
constexpr int lastAttempt = 1000;
constexpr int average = 3;

}  // namespace

i16 TonalitySequence::candidate(bool evenOut, base::Rnd& rnd) const {
    const int richtung = rnd.sign();
    if (!evenOut) return rnd.upTo(6) * richtung;
    const bool hard = accidentalSum_ >= average * (row_ - 1);
    return hard ? rnd.upTo(3) * richtung : (rnd.upTo(2) + 4) * richtung;
}

i16 TonalitySequence::draw(int scale, int half, base::Rnd& rnd) {
    ++row_;
    auto& had = base::at(had_, scale);
    i16 tonality;
    for (int attempt = 1; attempt <= lastAttempt; ++attempt) {
        tonality = candidate(row_ > half && attempt < freeAttempts, rnd);
        if (!had.contains(tonality)) break;
    }
    had.insert(tonality);
    accidentalSum_ += std::abs(int(tonality));
    return tonality;
}

}  // namespace engine
