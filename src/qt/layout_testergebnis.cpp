#include "qt/look.h"
#include "qt/windows.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace qt {

namespace {

void heading(Binder& bind, QVBoxLayout* column, const char* name) {
    QWidget* head = bind(name);
    look::font(*head, 1.15, true);
    column->addWidget(head);
}

/// Ascending and descending rows side by side, ten each at most.
QWidget* results(Binder& bind) {
    QWidget* frame = bind("erg_cont");
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(3);
    grid->setHorizontalSpacing(look::gap);
    int row = 0;
    for (int i = 0; bind.has("Lab_ergeb", i); ++i, ++row) {
        grid->addWidget(bind("Lab_ergeb", i), row, 0);
        QWidget* bar = bind("balken", i);
        bar->setFixedHeight(12);
        bar->setMinimumWidth(90);
        grid->addWidget(bar, row, 1);
        auto* percent = static_cast<QLabel*>(bind("ergebnis", i));
        percent->setAlignment(Qt::AlignRight);
        grid->addWidget(percent, row, 2);
    }
    grid->setColumnStretch(1, 1);
    column->addLayout(grid);
    auto* total = new QHBoxLayout;
    for (const char* name : {"Lab_gesamt", "gesamt"}) {
        QWidget* label = bind(name);
        look::font(*label, 1.25, true);
        total->addWidget(label);
        if (name[0] == 'L') total->addStretch();
    }
    column->addSpacing(look::gap);
    column->addLayout(total);
    column->addStretch();
    return frame;
}

/// Keys and values below each other.
QWidget* pairs(Binder& bind, const char* frameName, const char* keys, const char* values) {
    QWidget* frame = bind(frameName);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(2);
    grid->setHorizontalSpacing(look::margin);
    for (int i = 0; bind.has(keys, i); ++i) {
        QWidget* key = bind(keys, i);
        look::colours(*key, look::muted);
        grid->addWidget(key, i, 0, Qt::AlignTop);
        grid->addWidget(bind(values, i), i, 1);
    }
    grid->setColumnStretch(1, 1);
    return frame;
}

}  // namespace

void layoutTestergebnis(FormWindow& window) {
    Binder& bind = window.binder();
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(20, 16, 20, look::margin);
    page->setSpacing(look::margin);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(36);
    auto* left = new QVBoxLayout;
    heading(bind, left, "erg_head");
    left->addWidget(results(bind), 1);
    columns->addLayout(left, 1);
    auto* right = new QVBoxLayout;
    heading(bind, right, "grd_einst_head");
    right->addWidget(pairs(bind, "gr_einst", "g_einst_lab", "g_einst_inh"));
    right->addSpacing(look::margin);
    heading(bind, right, "einst_head");
    right->addWidget(pairs(bind, "einst_cont", "einst_lab", "einst_Inh"));
    right->addStretch();
    columns->addLayout(right, 1);
    page->addLayout(columns, 1);

    auto* actions = new QHBoxLayout;
    actions->addWidget(bind("cmdHilfe"));
    actions->addWidget(bind("cmdPrint"));
    actions->addStretch();
    QWidget* ok = bind("cmdOK");
    look::font(*ok, 1, true);
    ok->setMinimumWidth(120);
    actions->addWidget(ok);
    page->addLayout(actions);
    window.openWith({860, 600});
}

}  // namespace qt
