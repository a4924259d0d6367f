#pragma once

namespace suite {

/// From here on whoever hears a window is told the name of each list to choose from, that is its
/// accessible name or else its label, and what is chosen there as its value.
void nameCombos();

}  // namespace suite
