#include "qt/dialogs.h"

#include "qt/window_keys.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <initializer_list>
#include <utility>

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

using Button = std::pair<const std::string&, QMessageBox::ButtonRole>;

/// A box that is answered by its buttons only.
class Insistent final : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
    }
};

/// @param buttons the first is the default, and what Esc and the close box mean.
/// @return whether the first was pressed.
template <class Box = QMessageBox>
bool ask(form::Icon icon, const std::string& title, const std::string& text,
         std::initializer_list<Button> buttons) {
    Box box(iconOf(icon), QString::fromStdString(title), QString::fromStdString(text),
            QMessageBox::NoButton, QApplication::activeWindow());
    for (const auto& [caption, role] : buttons) {
        auto* button = box.addButton(QString::fromStdString(caption), role);
        if (box.defaultButton()) continue;
        box.setDefaultButton(button);
        box.setEscapeButton(button);
    }
    giveLetters(box);
    box.exec();
    return box.clickedButton() == box.defaultButton();
}

/// A file dialog of the toolkit's own: it speaks the language of the program on every desktop.
std::string askFile(const form::Dialogs::FileQuestion& question, QFileDialog::AcceptMode mode) {
    const QFileInfo proposal(QString::fromStdString(question.proposal));
    const bool save = mode == QFileDialog::AcceptSave;
    QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(question.title),
                       save ? proposal.path() : proposal.filePath(),
                       QString::fromStdString(question.kind + " (" + question.pattern + ")"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
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
    const Answers a = answers();
    ask(icon, title, text, {{a.ok, QMessageBox::AcceptRole}});
}

bool QtDialogs::askYesNo(const std::string& title, const std::string& text) {
    const Answers a = answers();
    return ask<Insistent>(form::Icon::Question, title, text,
                          {{a.yes, QMessageBox::YesRole}, {a.no, QMessageBox::NoRole}});
}

bool QtDialogs::confirm(const std::string& title, const std::string& text) {
    const Answers a = answers();
    return !ask(form::Icon::Question, title, text,
                {{a.no, QMessageBox::NoRole}, {a.yes, QMessageBox::YesRole}});
}

}  // namespace qt
