#pragma once
#include "base/rnd.h"
#include "worksheets/worksheet.h"

#include <array>

namespace sim {

/// How a scale is written.
enum class Writing {
    Right,
    Wrong,       ///< one note carries another accidental
    Enharmonic,  ///< flats become sharps on the letter below: it sounds alike and is misspelled
};

/// The accidentals that are put on the inner notes of a scale, by their place in the task, 1 to 6.
using Accidentals = std::array<int, 7>;
Accidentals accidentals(const engine::Task& task, Writing how, base::Rnd& chance);

/// Drags accidentals from the palette onto the staff, as a user would, until it stands as wanted.
/// Does not hand it in.
void writeScale(worksheets::Worksheet& sheet, Writing how, base::Rnd& chance);

}  // namespace sim
