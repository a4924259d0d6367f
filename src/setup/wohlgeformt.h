#pragma once
#include <string_view>

namespace setup {

/// Whether these bytes are one whole XML document: well-formed to the letter, in an encoding that
/// its declaration names (UTF-8, UTF-16, ISO 8859-1, US-ASCII), without entities of its own, and
/// nested no deeper than 100 elements. Fewer than 2 GB.
bool wohlgeformt(std::string_view bytes);

}  // namespace setup
