#pragma once
#include <QWidget>

namespace qt {

/// A rounded frame with a colour of its own.
class GroupFrame final : public QWidget {
  public:
    using QWidget::QWidget;
    /// An invalid colour leaves the page's.
    void setColour(const QColor& colour);

  protected:
    void paintEvent(QPaintEvent* event) override;
    /// Hands the focus to what is chosen in it, or to its first control.
    void focusInEvent(QFocusEvent* event) override;

  private:
    QColor colour_;
};

}  // namespace qt
