#pragma once
#include <QIcon>

namespace suite {

/// The suite's icon, for windows.
QIcon icon();

}  // namespace suite
