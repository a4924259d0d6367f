#include "qt/windows.h"
#include "suite/look.h"

#include <QGridLayout>
#include <QLabel>

namespace qt {

namespace {

void build(FormWindow& window, const char* field, const char* label) {
    Binder& bind = window.binder();
    window.setWindowModality(Qt::ApplicationModal);
    auto* grid = new QGridLayout(&window);
    grid->setContentsMargins(suite::dialogMargins);
    grid->setVerticalSpacing(suite::gap);
    grid->setHorizontalSpacing(suite::gap);
    const auto pair = [&](const char* name, int index, int row, int span) {
        auto* words = static_cast<QLabel*>(bind(name));
        QWidget* line = bind(field, index);
        words->setBuddy(line);
        grid->addWidget(words, row, 0);
        grid->addWidget(line, row, 1, 1, span);
    };
    pair(label, 0, 0, 1);
    pair("lblDesc", 1, 1, 2);
    grid->addWidget(bind("cmdSave"), 0, 2);
    auto* limits = static_cast<QLabel*>(bind("limits"));
    limits->setWordWrap(true);
    suite::quiet(*limits);
    grid->addWidget(limits, 2, 0, 1, 3);
    grid->setRowStretch(2, 1);
    QWidget* ok = bind("cmdOK");
    suite::leadingButton(*ok);
    grid->addWidget(ok, 3, 1, 1, 2, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
    window.openWith({560, 210});
}

}  // namespace

void layoutFrmSave(FormWindow& window) { build(window, "txtSave", "lblSave"); }

void layoutFrmLoad(FormWindow& window) { build(window, "txtLoad", "lblLoad"); }

}  // namespace qt
