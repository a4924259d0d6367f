// The worksheets on which a scale is named.
#include "qt/answer_card.h"
#include "qt/painter_surface.h"
#include "qt/windows.h"
#include "qt/worksheet_page.h"
#include "suite/look.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace qt {

namespace {

constexpr int answers = 10;

QLabel* digit(Binder& bind, int i) {
    QLabel* label = labelOf(bind, "ziffer", i);
    suite::colours(*label, suite::muted);
    suite::font(*label, 0.9, QFont::Bold);
    label->setFixedWidth(14);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return label;
}

/// The picture with its name below; the frame's colour tells the state.
QWidget* pictureAnswer(Binder& bind, int i, std::vector<QWidget*>& buttons) {
    auto& frame = bind.control<form::Panel>("skal_pan", i);
    auto* card = new AnswerCard;
    bind.common(frame, *card);
    card->setColour(colour(frame.backColour()));
    bind.follow(frame, [card, &frame](form::Aspect aspect) {
        if (aspect == form::Aspect::Colour) card->setColour(colour(frame.backColour()));
        if (aspect == form::Aspect::Value) card->setVerdict(frame.verdict());
    });
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(6, 4, 6, 6);
    inside->setSpacing(2);
    buttons.push_back(bind("ton_art", i));
    inside->addWidget(buttons.back(), 1);
    QLabel* name = labelOf(bind, "skal_bez", i);
    name->setAlignment(Qt::AlignCenter);
    inside->addWidget(name);
    return card;
}

/// The answers in two columns, two pictures one above the other: they are wide.
void arrange(QGridLayout& grid, const std::vector<QHBoxLayout*>& lines, bool inOneColumn) {
    for (QHBoxLayout* line : lines) {
        grid.removeItem(line);
        line->setParent(nullptr);
    }
    for (int i = 0; i < answers; ++i) {
        QHBoxLayout* line = lines[static_cast<std::size_t>(i)];
        if (inOneColumn)
            grid.addLayout(line, i, 0, 1, 2);
        else
            grid.addLayout(line, i / 2, i % 2);
    }
}

QWidget* answerArea(Binder& bind, std::vector<QWidget*>& buttons) {
    QWidget* area = bind("PicArb2");
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    QLabel* heading = labelOf(bind, "tonarten");
    suite::font(*heading, 1.3, QFont::Bold);
    if (bind.has("PicBNot")) column->addWidget(bind("PicBNot"), 2);
    column->addWidget(heading);
    auto* grid = new QGridLayout;
    grid->setSpacing(suite::gap);
    std::vector<QHBoxLayout*> lines;
    for (int i = 0; i < answers; ++i) {
        auto* line = lines.emplace_back(new QHBoxLayout);
        line->setSpacing(2);
        line->addWidget(digit(bind, i));
        line->addWidget(pictureAnswer(bind, i, buttons), 1);
        QWidget* name = bind("tonart", i);
        name->setMinimumHeight(56);
        name->setProperty("ownKey", true);
        buttons.push_back(name);
        name->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        suite::font(*name, 1.15);
        line->addWidget(name, 1);
    }
    const auto& third = bind.control<form::Panel>("skal_pan", 2);
    const auto& second = bind.control<form::Panel>("skal_pan", 1);
    const auto follow = [grid, lines, &second, &third](form::Aspect aspect) {
        if (aspect == form::Aspect::Visible)
            arrange(*grid, lines, second.visible() && !third.visible());
    };
    for (const int i : {1, 2}) bind.follow(bind.control<form::Panel>("skal_pan", i), follow);
    follow(form::Aspect::Visible);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    column->addLayout(grid, 3);
    return area;
}

}  // namespace

void layoutBestimmen(FormWindow& window) {
    std::vector<QWidget*> buttons;
    QWidget* area = answerArea(window.binder(), buttons);
    worksheetPage(window, area, buttons);
}

}  // namespace qt
