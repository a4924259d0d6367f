#include "melvora/confirm.h"

#include "core/wort.h"
#include "suite/look.h"

#include <QMessageBox>
#include <QPushButton>

namespace melvora {

bool confirmsDeletion(QWidget* parent, const Words& words, const QString& question) {
    QMessageBox box(QMessageBox::Question, "Melvora", question, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    auto* yes = box.addButton(words.wort(core::wort::confirmDelete), QMessageBox::DestructiveRole);
    box.setDefaultButton(box.addButton(words.wort(core::wort::cancel), QMessageBox::RejectRole));
    suite::darkenFrames(box);
    box.exec();
    return box.clickedButton() == yes;
}

}  // namespace melvora
