#include "qt/answer_card.h"

#include "qt/sign.h"
#include "suite/look.h"

#include <QPainter>

namespace qt {

class AnswerCard::Sign final : public QWidget {
  public:
    explicit Sign(QWidget* card) : QWidget(card) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }
    void set(form::Verdict verdict) {
        verdict_ = verdict;
        setVisible(verdict != form::Verdict::None);
        raise();
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintSign(painter, QRectF(rect()).adjusted(1, 1, -1, -1), verdict_);
    }

  private:
    form::Verdict verdict_ = form::Verdict::None;
};

AnswerCard::AnswerCard(QWidget* parent) : QWidget(parent), sign_(new Sign(this)) {}

void AnswerCard::setColour(const QColor& colour) {
    colour_ = colour;
    update();
}

void AnswerCard::setVerdict(form::Verdict verdict) { sign_->set(verdict); }

void AnswerCard::resizeEvent(QResizeEvent*) {
    const int side = static_cast<int>(22 * suite::scale());
    sign_->setGeometry(width() - side - 7, 7, side, side);
}

void AnswerCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::white);
    const QRectF frame = QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5);
    for (const auto& pen : {QPen(suite::edge(colour_), 5), QPen(colour_, 3)}) {
        painter.setPen(pen);
        painter.drawRoundedRect(frame, suite::radius, suite::radius);
    }
}

}  // namespace qt
