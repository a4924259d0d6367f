#include "look/look.h"
#include "qt/answer_card.h"
#include "qt/painter_surface.h"
#include "qt/windows.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace qt {

namespace {

constexpr int answers = 10;
constexpr int sideWidth = 250;

QLabel* labelOf(Binder& bind, const char* name, int index = form::Place::noIndex) {
    return static_cast<QLabel*>(bind(name, index));
}

/// Result, counters, and what leads on.
QWidget* sidePanel(Binder& bind) {
    QWidget* side = bind("PicArb1");
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::gap);

    QLabel* result = labelOf(bind, "ergebnis");
    result->setAlignment(Qt::AlignCenter);
    result->setWordWrap(true);
    result->setMinimumHeight(64);
    result->setAutoFillBackground(true);
    look::font(*result, 1.2, true);
    column->addWidget(result);

    auto* counters = new QGridLayout;
    counters->setVerticalSpacing(2);
    const auto counter = [&](int row, QLabel* name, QLabel* number) {
        look::font(*number, 1.25, true);
        number->setAlignment(Qt::AlignRight);
        counters->addWidget(name, row, 0);
        counters->addWidget(number, row, 1);
    };
    for (const int i : {0, 1})
        counter(i, labelOf(bind, "true_false", i), labelOf(bind, "zaehler", i));
    if (bind.has("whlgzaehler"))
        counter(2, labelOf(bind, "whlgzaehler_lb"), labelOf(bind, "whlgzaehler"));
    column->addLayout(counters);
    column->addSpacing(look::gap);

    const auto tall = [&](const char* name) {
        QWidget* button = bind(name);
        button->setMinimumHeight(40);
        column->addWidget(button);
        return button;
    };
    look::font(*tall("CmdNextAufg"), 1, true);
    QLabel* next = labelOf(bind, "LbNextAufg");
    next->setAlignment(Qt::AlignCenter);
    next->setMinimumHeight(40);
    look::font(*next, 1, true);
    look::colours(*next, look::accent);
    column->addWidget(next);
    if (bind.has("wieder")) {
        tall("wieder");
        tall("wieder2");
    }
    column->addStretch();

    // Training bar and exam clock share one place.
    QWidget* training = bind("PicUetyp", 0);
    auto* bar = new QVBoxLayout(training);
    bar->setContentsMargins(0, 0, 0, 0);
    for (const int i : {0, 1, 2}) {
        QLabel* caption = labelOf(bind, "ergebnis_anz", i);
        look::font(*caption, 1, true);
        bar->addWidget(caption);
    }
    QWidget* flood = bind("matboxanz");
    flood->setMinimumHeight(18);
    bar->addWidget(flood);
    column->addWidget(training);
    QWidget* exam = bind("PicUetyp", 1);
    auto* clock = new QVBoxLayout(exam);
    clock->setContentsMargins(0, 0, 0, 0);
    for (const char* name : {"stop_uhr", "lab_aufgaben"}) {
        QLabel* line = labelOf(bind, name);
        look::font(*line, 1.1, true);
        clock->addWidget(line);
    }
    clock->addWidget(bind("cmd_test_aus"));
    clock->addWidget(bind("cmd_test_ein"));
    column->addWidget(exam);
    column->addStretch();
    tall("zurueck");
    side->setFixedWidth(static_cast<int>(sideWidth * look::scale()));
    return side;
}

QLabel* digit(Binder& bind, int i) {
    QLabel* label = labelOf(bind, "ziffer", i);
    look::colours(*label, look::muted);
    look::font(*label, 0.9, true);
    label->setFixedWidth(14);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return label;
}

/// Digit and name in one line, the picture below; the frame's colour tells the state.
QWidget* pictureAnswer(Binder& bind, int i) {
    auto& frame = bind.control<form::Panel>("skal_pan", i);
    auto* card = new AnswerCard;
    bind.common(frame, *card);
    card->setColour(colour(frame.backColour()));
    bind.follow(frame, [card, &frame](form::Aspect aspect) {
        if (aspect == form::Aspect::Colour) card->setColour(colour(frame.backColour()));
    });
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(6, 4, 6, 6);
    inside->setSpacing(2);
    auto* head = new QHBoxLayout;
    head->addWidget(labelOf(bind, "skal_bez", i), 1);
    inside->addLayout(head);
    inside->addWidget(bind("ton_art", i), 1);
    return card;
}

QWidget* answerArea(Binder& bind) {
    QWidget* area = bind("PicArb2");
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    QLabel* heading = labelOf(bind, "tonarten");
    look::font(*heading, 1.3, true);
    column->addWidget(heading);
    auto* grid = new QGridLayout;
    grid->setSpacing(look::gap);
    for (int i = 0; i < answers; ++i) {
        auto* line = new QHBoxLayout;
        line->setSpacing(2);
        line->addWidget(digit(bind, i));
        line->addWidget(pictureAnswer(bind, i), 1);
        QWidget* name = bind("tonart", i);
        name->setMinimumHeight(56);
        name->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        look::font(*name, 1.15);
        line->addWidget(name, 1);
        grid->addLayout(line, i / 2, i % 2);
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    column->addLayout(grid, 1);
    return area;
}

}  // namespace

void layoutArbeitsblatt(FormWindow& window) {
    Binder& bind = window.binder();
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(16, look::margin, 16, look::gap);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(20);
    columns->addWidget(sidePanel(bind));
    columns->addWidget(answerArea(bind), 1);
    page->addLayout(columns, 1);

    auto* footer = new QHBoxLayout;
    footer->addWidget(bind("cmdHilfe"));
    QLabel* keys = labelOf(bind, "tasten");
    keys->setAlignment(Qt::AlignCenter);
    footer->addWidget(keys, 1);
    QLabel* clock = labelOf(bind, "Uhr");
    QLabel* copyright = labelOf(bind, "copyright");
    for (QLabel* quiet : {keys, clock, copyright}) {
        look::font(*quiet, 0.9);
        look::colours(*quiet, look::muted);
    }
    footer->addWidget(copyright);
    footer->addSpacing(look::margin);
    footer->addWidget(clock);
    page->addLayout(footer);

    // The waiting notice lies over the middle of the form.
    QWidget* wait = bind("WaitMeldung");
    auto* notice = new QVBoxLayout(wait);
    notice->addWidget(bind("WaitMeld"), 0, Qt::AlignCenter);
    page->addWidget(wait);
    window.openWith({980, 690});
}

}  // namespace qt
