#include "qt/windows.h"
#include "suite/look.h"

#include <QVBoxLayout>

namespace qt {

void layoutFrmMessage(FormWindow& window) {
    Binder& bind = window.binder();
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(suite::dialogMargins);
    // The title stands on its picture.
    QWidget* picture = bind("picTitel");
    QWidget* title = bind("lblTitel");
    suite::font(*title, 1.15, QFont::Bold);
    auto* band = new QHBoxLayout(picture);
    band->setContentsMargins(suite::margin, suite::gap, suite::margin, suite::gap);
    band->addWidget(title);
    picture->setFixedHeight(title->sizeHint().height() + 2 * suite::margin);
    page->addWidget(picture);
    page->addWidget(bind("txtPrompt"), 1);
    page->addWidget(bind("cmdOK"), 0, Qt::AlignRight);
    // Whatever form is shown meanwhile, it is read first.
    window.setWindowModality(Qt::ApplicationModal);
    window.setWindowFlag(Qt::WindowStaysOnTopHint);
    window.openWith({460, 240});
}

}  // namespace qt
