#include "qt/dialogs.h"

#include <QApplication>
#include <QMessageBox>

namespace qt {

namespace {

QMessageBox::Icon iconOf(form::Icon icon) {
    switch (icon) {
        case form::Icon::Exclamation:
            return QMessageBox::Warning;
        case form::Icon::Stop:
            return QMessageBox::Critical;
        case form::Icon::Question:
            return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton ask(form::Icon icon, const std::string& title, const std::string& text,
                                QMessageBox::StandardButtons buttons) {
    QMessageBox box(iconOf(icon), QString::fromStdString(title), QString::fromStdString(text),
                    buttons, QApplication::activeWindow());
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void QtDialogs::message(form::Icon icon, const std::string& title, const std::string& text) {
    ask(icon, title, text, QMessageBox::Ok);
}

bool QtDialogs::askYesNo(const std::string& title, const std::string& text) {
    return ask(form::Icon::Question, title, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

}  // namespace qt
