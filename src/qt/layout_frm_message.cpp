#include "look/look.h"
#include "qt/windows.h"

#include <QVBoxLayout>

namespace qt {

void layoutFrmMessage(FormWindow& window) {
    Binder& bind = window.binder();
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(18, 16, 18, 14);
    QWidget* title = bind("lblTitel");
    look::font(*title, 1.15, true);
    page->addWidget(title);
    page->addWidget(bind("txtPrompt"), 1);
    page->addWidget(bind("cmdOK"), 0, Qt::AlignRight);
    window.openWith({460, 240});
}

}  // namespace qt
