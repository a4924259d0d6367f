#include "melvora/combo.h"

#include "suite/wheel.h"

#include <QHelpEvent>
#include <QStyleOptionComboBox>
#include <QToolTip>

namespace melvora {

Combo::Combo(QWidget* parent, std::function<void()> refresh)
    : QComboBox(parent), refresh_(std::move(refresh)) {
    suite::wheelNeedsFocus(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(16);
}

void Combo::showPopup() {
    if (refresh_) refresh_();
    QComboBox::showPopup();
}

void Combo::initStyleOption(QStyleOptionComboBox* option) const {
    QComboBox::initStyleOption(option);
    option->currentText = cut(*option);
}

QString Combo::cut(const QStyleOptionComboBox& option) const {
    constexpr int inset = 8;  // of the text in its field, pixels
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().elidedText(currentText(), Qt::ElideRight, field.width() - inset);
}

bool Combo::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        if (option.currentText != currentText()) {
            // A name that came from elsewhere is shown as it is, never as a page with pictures.
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                               "<span>" + currentText().toHtmlEscaped() + "</span>", this);
            return true;
        }
    }
    return QComboBox::event(event);
}

}  // namespace melvora
