#pragma once
#include <QWidget>

/// Measures what a window paints, for every control that can be used: letters contrast at least
/// 4.5 to 1 with the ground that they stand on, frames 3 to 1 with what is around them.
void expectContrast(QWidget& window);
