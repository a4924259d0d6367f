#pragma once
#include <QWidget>

#include <algorithm>

namespace qt {

/// A slim bar filled from the left.
class BarWidget final : public QWidget {
  public:
    using QWidget::QWidget;
    /// 0..100.
    void setPercent(int percent);
    /// What is filled; 0 where nothing counts.
    int percent() const { return isEnabled() ? std::clamp(percent_, 0, 100) : 0; }
    QSize sizeHint() const override { return {120, 14}; }

    /// What the fill means, in words: told when the bar is pointed at.
    void setMeaning(const QString& words);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void describe();

    int percent_ = 0;
};

}  // namespace qt
