#pragma once
#include <QWidget>

namespace melvora {

/// Gives the application, which must be there, the suite's look, with grey texts that contrast at
/// least 4.5 : 1; lists to choose from get names.
void applyLook();

/// Gives all that can be used in a window a frame that contrasts at least 3 : 1.
void darkenFrames(QWidget& window);

}  // namespace melvora
