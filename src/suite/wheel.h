#pragma once
class QWidget;

namespace suite {

/// The wheel changes the control only while it has the focus, and does not give it: otherwise the
/// page around it scrolls.
void wheelNeedsFocus(QWidget& control);

}  // namespace suite
