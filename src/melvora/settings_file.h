#pragma once
#include "melvora/words.h"

#include <QString>

namespace melvora {

/// Module that the files of settings (*.mvs) are for.
inline constexpr char settingsModule[] = "zepha9";

/// What is wrong with a file of settings, in one sentence with its path; "" when it can be used.
QString whyUnusable(const Words& words, const QString& path);

}  // namespace melvora
