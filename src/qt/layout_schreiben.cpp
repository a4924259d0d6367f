// The worksheets on which a scale is written.
#include "qt/windows.h"
#include "qt/worksheet_page.h"
#include "suite/look.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace qt {

namespace {

/// The five fields with their keys, in their coloured frames.
QWidget* palette(Binder& bind) {
    QWidget* frame = bind("pbNoten");
    auto* fields = new QHBoxLayout(frame);
    fields->setContentsMargins(suite::gap, suite::gap, suite::gap, suite::gap);
    fields->setSpacing(suite::gap);
    for (int i = 0; bind.has("NotP", i); ++i) {
        auto* number = new QLabel(QString::number(i + 1));
        suite::colours(*number, suite::muted);
        suite::font(*number, 0.9, QFont::Bold);
        fields->addWidget(number);
        QWidget* field = bind("grdnot", i);
        auto* inside = new QHBoxLayout(field);
        inside->setContentsMargins(4, 4, 4, 4);
        inside->addWidget(bind("NotP", i));
        fields->addWidget(field);
    }
    frame->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    return frame;
}

QWidget* writingArea(Binder& bind, std::vector<QWidget*>& steps) {
    QWidget* area = bind("PicArb2");
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(suite::margin);
    auto* tools = new QHBoxLayout;
    tools->addWidget(palette(bind));
    tools->addStretch();
    QWidget* hand = bind("cmdOK");
    hand->setMinimumSize(static_cast<int>(130 * suite::scale()), 48);
    suite::font(*hand, 1.15, QFont::Bold);
    tools->addWidget(hand);
    column->addLayout(tools);
    QWidget* staff = bind("PicBNot");
    column->addWidget(staff, 1);
    steps = {staff, hand};
    QWidget* hint = bind("HinweisMeldung");
    hint->setFixedHeight(12 * hint->fontMetrics().lineSpacing());
    // The staff stays where it is when the hint goes.
    QSizePolicy keeps = hint->sizePolicy();
    keeps.setRetainSizeWhenHidden(true);
    hint->setSizePolicy(keeps);
    column->addWidget(hint);
    return area;
}

}  // namespace

void layoutSchreiben(FormWindow& window) {
    std::vector<QWidget*> steps;
    QWidget* area = writingArea(window.binder(), steps);
    worksheetPage(window, area, steps);
}

}  // namespace qt
