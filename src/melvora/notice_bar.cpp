#include "melvora/notice_bar.h"

#include "melvora/wrapped.h"
#include "suite/look.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QStyle>

namespace melvora {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), close_(new QToolButton(this)) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    close_->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close_->setAutoRaise(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(suite::margin, suite::gap, suite::gap, suite::gap);
    layout->addWidget(text_, 1);
    layout->addWidget(close_, 0, Qt::AlignTop);
    connect(close_, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void NoticeBar::show(const QString& text) {
    text_->setText(wrapped(text));
    QFrame::show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::setCloseText(const QString& text) {
    close_->setToolTip(text);
    close_->setAccessibleName(text);
}

}  // namespace melvora
