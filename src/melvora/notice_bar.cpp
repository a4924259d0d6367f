#include "melvora/notice_bar.h"

#include "melvora/wrapped.h"
#include "suite/look.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QStyle>

namespace melvora {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent),
      text_(new QLabel(this)),
      way_(new QPushButton(this)),
      close_(new QToolButton(this)) {
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
    layout->addWidget(way_);
    layout->addWidget(close_, 0, Qt::AlignTop);
    connect(close_, &QToolButton::clicked, this, &QWidget::hide);
    connect(way_, &QPushButton::clicked, this, [this] {
        hide();
        go_();
    });
    hide();
}

void NoticeBar::show(const QString& text, const Way& way) {
    text_->setText(wrapped(text));
    way_->setText(way.text);
    way_->setVisible(!way.text.isEmpty());
    go_ = way.go;
    QFrame::show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeBar::setCloseText(const QString& text) {
    close_->setToolTip(text);
    close_->setAccessibleName(text);
}

}  // namespace melvora
