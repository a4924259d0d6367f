#pragma once
#include "form/controls.h"

#include <QTimer>
#include <QWidget>

namespace qt {

/// A dot for each note of what sounds; those that have begun are filled, the last of them is
/// larger. Empty while nothing sounds.
class PlayMark final : public QWidget {
  public:
    explicit PlayMark(QWidget* parent = nullptr);
    void setFlow(const form::Flow& flow);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    form::Flow flow_;
    int step_ = 0;
    QTimer next_;
};

}  // namespace qt
