#include "suite/wheel.h"

#include <QEvent>
#include <QWidget>

namespace suite {

namespace {

class WheelNeedsFocus final : public QObject {
  public:
    explicit WheelNeedsFocus(QWidget& control) : QObject(&control), control_(control) {
        control.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Wheel || control_.hasFocus()) return false;
        event->ignore();
        return true;
    }

  private:
    QWidget& control_;
};

}  // namespace

void wheelNeedsFocus(QWidget& control) {
    control.setFocusPolicy(Qt::StrongFocus);
    new WheelNeedsFocus(control);
}

}  // namespace suite
