#pragma once
#include <QWidget>

namespace qt {

/// A picture answer: the frame whose colour tells the state, around picture, digit and name.
class AnswerCard final : public QWidget {
  public:
    using QWidget::QWidget;
    void setColour(const QColor& colour);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor colour_ = Qt::white;
};

}  // namespace qt
