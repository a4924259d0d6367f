#include "qt/windows.h"
#include "qt/worksheet_page.h"
#include "results/testergebnis.h"
#include "suite/look.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace qt {

namespace {

void heading(Binder& bind, QVBoxLayout* column, const char* name) {
    QWidget* head = bind(name);
    suite::font(*head, 1.15, QFont::Bold);
    column->addWidget(head);
}

/// The rows of each direction below its heading, those never asked last, then the total.
QWidget* resultRows(FormWindow& window) {
    Binder& bind = window.binder();
    QWidget* frame = bind("erg_cont");
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(3);
    grid->setHorizontalSpacing(suite::gap);
    grid->setColumnStretch(1, 1);
    column->addLayout(grid);
    struct Row {
        QWidget *name, *bar;
        QLabel* percent;
    };
    std::vector<Row> rows;
    for (int i = 0; bind.has("Lab_ergeb", i); ++i) {
        rows.push_back(
            {bind("Lab_ergeb", i), bind("balken", i), static_cast<QLabel*>(bind("ergebnis", i))});
        rows.back().bar->setFixedHeight(12);
        rows.back().bar->setMinimumWidth(90);
        rows.back().percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    const std::vector<QWidget*> headings{bind("Lab_richtung", 0), bind("Lab_richtung", 1)};
    for (QWidget* head : headings) {
        suite::font(*head, 1, QFont::Bold);
        suite::colours(*head, suite::accent);
    }
    window.beforeOpening = [rows, headings, grid, &bind] {
        const auto each = static_cast<std::size_t>(
            static_cast<results::Testergebnis&>(bind.form()).zeilenJeRichtung());
        int line = 0;
        for (std::size_t first = 0, k = 0; first < rows.size(); first += each, ++k) {
            std::vector<Row> part(
                rows.begin() + static_cast<std::ptrdiff_t>(first),
                rows.begin() + static_cast<std::ptrdiff_t>(std::min(first + each, rows.size())));
            std::ranges::stable_partition(part,
                                          [](const Row& row) { return row.name->isEnabled(); });
            if (k < headings.size()) grid->addWidget(headings[k], line++, 0, 1, 3);
            for (const Row& row : part) {
                grid->addWidget(row.name, line, 0);
                grid->addWidget(row.bar, line, 1);
                grid->addWidget(row.percent, line++, 2);
            }
        }
    };
    auto* total = new QHBoxLayout;
    QWidget* name = bind("Lab_gesamt");
    QWidget* percent = bind("gesamt");
    for (QWidget* label : {name, percent}) suite::font(*label, 1.25, QFont::Bold);
    total->addWidget(name);
    total->addStretch();
    total->addWidget(percent);
    column->addSpacing(suite::gap);
    column->addLayout(total);
    QLabel* lost = labelOf(bind, "lost");
    lost->setWordWrap(true);
    suite::quiet(*lost);
    column->addWidget(lost);
    column->addStretch(1);
    return frame;
}

/// Scales and their weights, after a training.
QWidget* weights(Binder& bind) {
    QWidget* frame = bind("schwach_cont");
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(suite::gap);
    heading(bind, column, "schwach_head");
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(3);
    grid->setHorizontalSpacing(suite::margin);
    grid->setColumnStretch(0, 1);
    for (int i = 0; bind.has("Lab_schwach", i); ++i) {
        grid->addWidget(bind("Lab_schwach", i), i, 0);
        grid->addWidget(bind("gewicht", i), i, 1, Qt::AlignRight);
    }
    column->addLayout(grid);
    column->addStretch(1);
    return frame;
}

/// Keys and values below each other.
QWidget* pairs(Binder& bind, const char* frameName, const char* keys, const char* values) {
    QWidget* frame = bind(frameName);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(2);
    grid->setHorizontalSpacing(suite::margin);
    for (int i = 0; bind.has(keys, i); ++i) {
        QLabel* key = labelOf(bind, keys, i);
        suite::colours(*key, suite::muted);
        QLabel* value = labelOf(bind, values, i);
        value->setWordWrap(true);
        for (QLabel* label : {key, value}) label->setAlignment(Qt::AlignTop);
        grid->addWidget(key, i, 0);
        grid->addWidget(value, i, 1);
    }
    grid->setColumnStretch(1, 1);
    frame->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    return frame;
}

/// However long the contents are, the buttons stay in sight.
QWidget* scrolled(QWidget* contents, QWidget& window) {
    auto* scroll = new QScrollArea(&window);
    scroll->setWidget(contents);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    QObject::connect(&window, &QWidget::windowTitleChanged, scroll, &QWidget::setAccessibleName);
    return scroll;
}

}  // namespace

void layoutTestergebnis(FormWindow& window) {
    Binder& bind = window.binder();
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(20, 16, 20, suite::margin);
    page->setSpacing(suite::margin);
    auto* contents = new QWidget;
    auto* columns = new QHBoxLayout(contents);
    columns->setContentsMargins(0, 0, suite::margin, 0);
    columns->setSpacing(28);
    auto* left = new QVBoxLayout;
    left->setSpacing(suite::gap);
    heading(bind, left, "erg_head");
    left->addWidget(resultRows(window), 1);
    columns->addLayout(left, 1);
    columns->addWidget(weights(bind));
    auto* right = new QVBoxLayout;
    right->setSpacing(suite::gap);
    heading(bind, right, "grd_einst_head");
    right->addWidget(pairs(bind, "gr_einst", "g_einst_lab", "g_einst_inh"));
    right->addSpacing(suite::margin);
    heading(bind, right, "einst_head");
    right->addWidget(pairs(bind, "einst_cont", "einst_lab", "einst_Inh"));
    right->addStretch(1);
    columns->addLayout(right, 1);
    window.setContents(*contents);
    page->addWidget(scrolled(contents, window), 1);

    QWidget* buttons = bind("PicSchalt");
    auto* actions = new QHBoxLayout(buttons);
    actions->setContentsMargins(0, 0, 0, 0);
    actions->addWidget(bind("cmdHilfe"));
    actions->addWidget(bind("cmdPrint"));
    actions->addStretch();
    QWidget* ok = bind("cmdOK");
    suite::leadingButton(*ok);
    actions->addWidget(ok);
    page->addWidget(buttons);
    window.openWith({860, 620});
    ok->setFocus();
}

}  // namespace qt
