#pragma once
#include <QString>

namespace melvora {

/// A text of any origin for a label that wraps words: long words, such as paths, may be broken
/// anywhere, so that they never decide how wide a window is. At most `most` characters are shown.
QString wrapped(const QString& text, qsizetype most = 300);

}  // namespace melvora
