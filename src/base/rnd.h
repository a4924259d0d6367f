#pragma once
#include <cstdint>

namespace base {

/// The drill's only source of chance: a sequence of single-precision floats in [0, 1), uniform over
/// the multiples of 2^-24. The same seed gives the same sequence.
class Rnd {
  public:
    explicit Rnd(std::int64_t seed = 1) { restart(seed); }
    void restart(std::int64_t seed) { state_ = static_cast<std::uint64_t>(seed); }

    /// The next number of the sequence.
    float R() { return static_cast<float>(next() >> 40) * 0x1p-24F; }

    /// `Int(R() * k)`: 0..k-1.
    int below(int k) { return static_cast<int>(R() * static_cast<float>(k)); }
    /// `Int(R() * k) + 1`: 1..k.
    int upTo(int k) { return below(k) + 1; }
    /// +1 or -1, each with chance one half.
    int sign() { return below(2) == 0 ? -1 : 1; }

  private:
    /// SplitMix64.
    std::uint64_t next() {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15U);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
        return z ^ (z >> 31);
    }
    std::uint64_t state_ = 0;
};

}  // namespace base
