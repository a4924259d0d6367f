#pragma once
#include <QString>

namespace melvora {

/// Module that the files of settings (*.mvs) are for.
inline constexpr char settingsModule[] = "zepha9";

/// Why the file cannot be read, with its path in front; "" when it can be.
QString whyUnreadable(const QString& path);

}  // namespace melvora
