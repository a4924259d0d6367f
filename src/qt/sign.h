#pragma once
#include "form/controls.h"

#include <QRectF>

class QPainter;

namespace qt {

/// A tick or a cross of a judged answer, in a disc of its colour; nothing for none.
void paintSign(QPainter& painter, const QRectF& place, form::Verdict verdict);

}  // namespace qt
