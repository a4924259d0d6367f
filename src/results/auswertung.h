#pragma once
#include "base/array.h"
#include "base/i16.h"
#include "base/rounding.h"

#include <vector>

namespace results {

using base::i16;

/// Columns of the score table; what they hold hangs on the mode.
namespace spalte {
// Training.
inline constexpr int anzahl = 0;  ///< tasks booked; also in a written test
inline constexpr int summe = 1;   ///< of what they booked
// A test in which scales are named.
inline constexpr int zweitbester = 0;
inline constexpr int bester = 1;
inline constexpr int anwesend = 3;  ///< the slot is asked for
// A written test.
inline constexpr int beste = 2;                ///< and up: the best scores, highest first
inline constexpr int anwesendSchriftlich = 6;  ///< the slot is asked for
}  // namespace spalte

/// Score table: one row per scale code, a few columns of 32-bit floats. Rows are addressed by slot.
/// An index out of range throws run-time error 9.
class Auswertung {
  public:
    void Clear() { tabelle_.clear(); }
    /// Rows 0..ar_1, columns 0..ar_2, all 0.
    void init_arr(float ar_1, float ar_2) {
        tabelle_.redim(base::rounded(static_cast<double>(ar_1)),
                       base::rounded(static_cast<double>(ar_2)));
    }
    void Save(i16 i, i16 x, float value) { tabelle_(i, x) = value; }
    float read(i16 i, i16 x) const { return tabelle_(i, x); }
    void Increment(i16 i, i16 x) { tabelle_(i, x) += 1.0F; }
    void Add(i16 i, i16 x, float value) { tabelle_(i, x) += value; }
    /// Keeps the two lowest values of a row: the lowest ends in column 1, the second in column 0.
    void SaveBest(i16 i, float value);
    /// Before a task of a written test is booked: counts it in column 0, and while fewer than
    /// `bestAnz` scores are kept makes a free place for it in column 2.
    void PlatzSchaffen(i16 i, i16 bestAnz);
    /// Keeps the lowest values of a row in columns 2 up, highest first.
    /// @param bestAnz how many are kept at most; column 0 holds how many were booked.
    void SortASaveBest(i16 i, float value, i16 bestAnz);

  private:
    base::Table<float> tabelle_;
};

/// One whole number per scale code; the highest stays.
class ergebnis {
  public:
    /// Entries 0..x, all 0.
    void init_arr(i16 x) { liste_.redim(x, 0); }
    void SaveBest(i16 i, i16 Schublade) {
        if (Schublade > liste_(i, 0)) liste_(i, 0) = Schublade;
    }
    i16 read(i16 i) const { return liste_(i, 0); }
    /// Entry 0 stays as it is.
    void Clear() {
        for (int i = 1; i < liste_.rows(); ++i) liste_(i, 0) = 0;
    }

  private:
    base::Table<i16> liste_;
};

}  // namespace results
