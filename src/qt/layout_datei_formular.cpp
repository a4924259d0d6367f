#include "qt/windows.h"
#include "suite/look.h"

#include <QGridLayout>

namespace qt {

namespace {

void build(FormWindow& window, const char* field, const char* label) {
    Binder& bind = window.binder();
    window.setWindowModality(Qt::ApplicationModal);
    auto* grid = new QGridLayout(&window);
    grid->setContentsMargins(suite::dialogMargins);
    grid->setVerticalSpacing(suite::gap);
    grid->setHorizontalSpacing(suite::gap);
    grid->addWidget(bind(label), 0, 0);
    grid->addWidget(bind(field, 0), 0, 1);
    grid->addWidget(bind("cmdSave"), 0, 2);
    grid->addWidget(bind("lblDesc"), 1, 0);
    grid->addWidget(bind(field, 1), 1, 1, 1, 2);
    grid->setRowStretch(2, 1);
    QWidget* ok = bind("cmdOK");
    suite::leadingButton(*ok);
    grid->addWidget(ok, 3, 1, 1, 2, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
    window.openWith({560, 170});
}

}  // namespace

void layoutFrmSave(FormWindow& window) { build(window, "txtSave", "lblSave"); }

void layoutFrmLoad(FormWindow& window) { build(window, "txtLoad", "lblLoad"); }

}  // namespace qt
