#pragma once
#include "qt/form_window.h"

#include <QLabel>

namespace qt {

/// A control that is a label, as its widget.
QLabel* labelOf(Binder& bind, const char* name, int index = form::Place::noIndex);

/// Lays out a worksheet around the area in which it is answered.
void worksheetPage(FormWindow& window, QWidget* area, std::vector<QWidget*> answers);

}  // namespace qt
