#pragma once

namespace qt {

/// Tells screen readers what the program's own widgets are: groups, pictures that are buttons, bars
/// with a value, staves, windows. Called once.
void installAccessibility();

}  // namespace qt
