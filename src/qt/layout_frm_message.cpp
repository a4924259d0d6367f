#include "look/look.h"
#include "qt/windows.h"

#include <QVBoxLayout>

namespace qt {

void layoutFrmMessage(FormWindow& window) {
    Binder& bind = window.binder();
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(18, 16, 18, 14);
    // The title stands on its picture.
    QWidget* picture = bind("picTitel");
    QWidget* title = bind("lblTitel");
    look::font(*title, 1.15, true);
    auto* band = new QHBoxLayout(picture);
    band->setContentsMargins(look::margin, look::gap, look::margin, look::gap);
    band->addWidget(title);
    picture->setFixedHeight(title->sizeHint().height() + 2 * look::margin);
    page->addWidget(picture);
    page->addWidget(bind("txtPrompt"), 1);
    page->addWidget(bind("cmdOK"), 0, Qt::AlignRight);
    // Whatever form is shown meanwhile, it is read first.
    window.setWindowModality(Qt::ApplicationModal);
    window.setWindowFlag(Qt::WindowStaysOnTopHint);
    window.openWith({460, 240});
}

}  // namespace qt
