#include "melvora/confirm.h"

#include <QMessageBox>
#include <QPushButton>

namespace melvora {

bool confirmsDeletion(QWidget* parent, const Words& words, const QString& question) {
    QMessageBox box(QMessageBox::Question, "Melvora", question, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    auto* yes = box.addButton(words.wort(957), QMessageBox::DestructiveRole);
    box.setDefaultButton(box.addButton(words.wort(923), QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == yes;
}

}  // namespace melvora
