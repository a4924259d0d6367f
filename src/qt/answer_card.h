#pragma once
#include "form/controls.h"

#include <QWidget>

namespace qt {

/// A picture answer: the frame whose colour tells the state, around picture, digit and name, with
/// the sign of what became of it.
class AnswerCard final : public QWidget {
  public:
    explicit AnswerCard(QWidget* parent = nullptr);
    void setColour(const QColor& colour);
    void setVerdict(form::Verdict verdict);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    class Sign;

    QColor colour_ = Qt::white;
    Sign* sign_;  ///< above what the card holds
};

}  // namespace qt
