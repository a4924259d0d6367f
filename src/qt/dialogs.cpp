#include "qt/dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
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

/// A file dialog of the toolkit's own: it speaks the language of the program on every desktop.
std::string askFile(const form::Dialogs::FileQuestion& question, QFileDialog::AcceptMode mode) {
    const QFileInfo proposal(QString::fromStdString(question.proposal));
    const bool save = mode == QFileDialog::AcceptSave;
    QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(question.title),
                       save ? proposal.path() : proposal.filePath(),
                       QString::fromStdString(question.kind + " (" + question.pattern + ")"));
    dialog.setAcceptMode(mode);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(QFileInfo(QString::fromStdString(question.pattern)).suffix());
    if (save) dialog.selectFile(proposal.fileName());
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.selectedFiles().value(0).toStdString();
}

}  // namespace

std::string QtDialogs::askOpenFile(const FileQuestion& question) {
    return askFile(question, QFileDialog::AcceptOpen);
}

std::string QtDialogs::askSaveFile(const FileQuestion& question) {
    return askFile(question, QFileDialog::AcceptSave);
}

void QtDialogs::message(form::Icon icon, const std::string& title, const std::string& text) {
    ask(icon, title, text, QMessageBox::Ok);
}

bool QtDialogs::askYesNo(const std::string& title, const std::string& text) {
    return ask(form::Icon::Question, title, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

}  // namespace qt
