#pragma once
#include <QWidget>

namespace qt {

/// A slim bar filled from the left.
class BarWidget final : public QWidget {
  public:
    using QWidget::QWidget;
    /// 0..100.
    void setPercent(int percent);
    QSize sizeHint() const override { return {120, 14}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int percent_ = 0;
};

}  // namespace qt
