#pragma once

namespace melvora {

/// Gives the application, which must be there, the suite's look, with grey texts that contrast at
/// least 4.5 : 1 and frames of what can be used at least 3 : 1; lists to choose from get names.
void applyLook();

}  // namespace melvora
