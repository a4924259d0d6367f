// What all worksheets show: result, counters, bar or clock, and the way on, beside their own area.
#include "qt/worksheet_page.h"

#include "qt/group_frame.h"
#include "qt/painter_surface.h"
#include "suite/look.h"

#include <QEvent>
#include <QGridLayout>
#include <QVBoxLayout>

namespace qt {

QLabel* labelOf(Binder& bind, const char* name, int index) {
    return static_cast<QLabel*>(bind(name, index));
}

namespace {

constexpr int sideWidth = 250;

/// Keeps a widget with a layout over the middle of another one, in front, without a place in that
/// one's layout.
class InTheMiddle final : public QObject {
  public:
    InTheMiddle(QWidget& above, QWidget& below) : QObject(&above), above_(above), below_(below) {
        above.installEventFilter(this);
        below.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Resize && event->type() != QEvent::Show) return false;
        if (above_.isHidden()) return false;
        above_.resize(above_.sizeHint());
        above_.layout()->setGeometry(above_.rect());  // also before it is seen
        above_.move(below_.rect().center() - above_.rect().center());
        above_.raise();
        return false;
    }

  private:
    QWidget& above_;
    QWidget& below_;
};

/// The result, small above it what it says of the task, and while it is empty what to do.
QWidget* resultBox(Binder& bind) {
    auto& model = bind.control<form::Label>("ergebnis");
    QLabel* result = labelOf(bind, "ergebnis");
    QLabel* verdict = labelOf(bind, "verdict");
    QLabel* todo = labelOf(bind, "todo");
    auto* box = new QWidget;
    box->setAutoFillBackground(true);
    box->setMinimumHeight(84);
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* inside = new QGridLayout(box);
    inside->setContentsMargins(suite::gap, 4, suite::gap, suite::gap);
    inside->setSpacing(0);
    inside->addWidget(verdict, 0, 0);
    inside->addWidget(result, 1, 0);
    inside->addWidget(todo, 1, 0);
    inside->setRowStretch(1, 1);
    for (QLabel* label : {result, todo}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }
    verdict->setAlignment(Qt::AlignHCenter);
    suite::font(*result, 1.2, QFont::Bold);
    suite::font(*verdict, 0.9);
    suite::colours(*todo, Qt::white);
    const auto show = [&model, result, verdict, todo, box](form::Aspect aspect) {
        if (aspect == form::Aspect::Colour) {
            suite::colours(*box, Qt::white, colour(model.backColour()));
            suite::colours(*verdict, colour(model.foreColour()));
        }
        if (aspect != form::Aspect::Caption) return;
        result->setVisible(!model.caption().empty());
        todo->setVisible(model.caption().empty());
    };
    show(form::Aspect::Colour);
    show(form::Aspect::Caption);
    bind.follow(model, show);
    return box;
}

/// The ends of the training bar, and in words where it stands.
void barInWords(Binder& bind, QVBoxLayout* column) {
    auto* ends = new QHBoxLayout;
    QLabel* goal = labelOf(bind, "barGoal");
    QLabel* failed = labelOf(bind, "barFailed");
    QLabel* standing = labelOf(bind, "barStanding");
    ends->addWidget(goal);
    ends->addStretch();
    ends->addWidget(failed);
    column->addLayout(ends);
    column->addWidget(standing);
    standing->setWordWrap(true);
    for (QLabel* label : {goal, failed, standing}) suite::quiet(*label);
}

/// How loud it is, and why nothing can be heard.
void soundControls(Binder& bind, QVBoxLayout* column) {
    QLabel* why = labelOf(bind, "soundHint");
    why->setWordWrap(true);
    suite::colours(*why, suite::warning);
    column->addWidget(why);
    auto* line = new QHBoxLayout;
    QLabel* name = labelOf(bind, "volumeLabel");
    QWidget* slider = bind("volume");
    name->setBuddy(slider);
    line->addWidget(name);
    line->addWidget(slider, 1);
    column->addLayout(line);
}

/// Result, counters, and what leads on.
QWidget* sidePanel(Binder& bind, QWidget*& nextTask) {
    QWidget* side = bind("PicArb1");
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(suite::gap);

    if (bind.has("aufg")) {
        column->addWidget(labelOf(bind, "Label2"));
        QLabel* scale = labelOf(bind, "aufg");
        scale->setWordWrap(true);
        suite::font(*scale, 1.5, QFont::Bold);
        suite::colours(*scale, suite::accent);
        column->addWidget(scale);
    }

    column->addWidget(resultBox(bind));
    if (bind.has("playMark"))
        column->addWidget(bind.playMark(bind.control<form::Panel>("playMark")));

    auto* counters = new QGridLayout;
    counters->setVerticalSpacing(2);
    const auto counter = [&](int row, QLabel* name, QLabel* number) {
        suite::font(*number, 1.25, QFont::Bold);
        number->setAlignment(Qt::AlignRight);
        counters->addWidget(name, row, 0);
        counters->addWidget(number, row, 1);
    };
    for (const int i : {0, 1})
        counter(i, labelOf(bind, "true_false", i), labelOf(bind, "zaehler", i));
    if (bind.has("whlgzaehler"))
        counter(2, labelOf(bind, "whlgzaehler_lb"), labelOf(bind, "whlgzaehler"));
    column->addLayout(counters);
    column->addSpacing(suite::gap);

    const auto tall = [&](const char* name) {
        QWidget* button = bind(name);
        button->setMinimumHeight(40);
        column->addWidget(button);
        return button;
    };
    nextTask = tall("CmdNextAufg");
    suite::font(*nextTask, 1, QFont::Bold);
    QLabel* next = labelOf(bind, "LbNextAufg");
    next->setAlignment(Qt::AlignCenter);
    next->setMinimumHeight(40);
    suite::font(*next, 1, QFont::Bold);
    suite::colours(*next, suite::accent);
    // Where the next task comes by itself its word comes and goes, and moves nothing.
    auto& byHand = bind.control<form::Button>("CmdNextAufg");
    const auto reserve = [next, &byHand](form::Aspect) {
        QSizePolicy keeps = next->sizePolicy();
        keeps.setRetainSizeWhenHidden(!byHand.visible());
        next->setSizePolicy(keeps);
    };
    bind.follow(byHand, reserve);
    column->addWidget(next);
    for (const char* more : {"wieder", "wieder2", "eigene", "schrittmarken"})
        if (bind.has(more)) tall(more);
    column->addStretch();

    // Training bar and exam clock share one place.
    QWidget* training = bind("PicUetyp", 0);
    auto* bar = new QVBoxLayout(training);
    bar->setContentsMargins(0, 0, 0, 0);
    for (const int i : {0, 1, 2}) {
        QLabel* caption = labelOf(bind, "ergebnis_anz", i);
        suite::font(*caption, 1, QFont::Bold);
        caption->setWordWrap(true);
        bar->addWidget(caption);
    }
    QWidget* flood = bind("matboxanz");
    flood->setMinimumHeight(18);
    bar->addWidget(flood);
    barInWords(bind, bar);
    column->addWidget(training);
    QWidget* exam = bind("PicUetyp", 1);
    auto* clock = new QVBoxLayout(exam);
    clock->setContentsMargins(0, 0, 0, 0);
    for (const char* name : {"stop_uhr", "lab_aufgaben"}) {
        QLabel* line = labelOf(bind, name);
        suite::font(*line, 1.1, QFont::Bold);
        clock->addWidget(line);
    }
    clock->addWidget(bind("cmd_test_aus"));
    clock->addWidget(bind("cmd_test_ein"));
    column->addWidget(exam);
    column->addStretch();
    if (bind.has("volume")) soundControls(bind, column);
    tall("zurueck");
    side->setFixedWidth(static_cast<int>(sideWidth * suite::scale()));
    return side;
}

}  // namespace

void worksheetPage(FormWindow& window, QWidget* area, std::vector<QWidget*> answers) {
    Binder& bind = window.binder();
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(16, suite::margin, 16, suite::gap);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(20);
    QWidget* nextTask = nullptr;
    columns->addWidget(sidePanel(bind, nextTask));
    answers.push_back(nextTask);
    window.keys().setSteps(std::move(answers));
    window.keys().begin();
    columns->addWidget(area, 1);
    page->addLayout(columns, 1);

    auto* footer = new QHBoxLayout;
    footer->addWidget(bind("cmdHilfe"));
    QLabel* keys = labelOf(bind, "tasten");
    keys->setAlignment(Qt::AlignCenter);
    footer->addWidget(keys, 1);
    QLabel* clock = labelOf(bind, "Uhr");
    QLabel* copyright = labelOf(bind, "copyright");
    for (QLabel* quiet : {keys, clock, copyright}) {
        suite::quiet(*quiet);
    }
    footer->addWidget(copyright);
    footer->addSpacing(suite::margin);
    footer->addWidget(clock);
    page->addLayout(footer);

    // The waiting notice lies over the middle of the form.
    auto* wait = static_cast<GroupFrame*>(bind("WaitMeldung"));
    wait->setColour(Qt::white);
    auto* notice = new QVBoxLayout(wait);
    notice->setContentsMargins(28, 20, 28, 20);
    QWidget* words = bind("WaitMeld");
    suite::font(*words, 1.15, QFont::Bold);
    notice->addWidget(words);
    new InTheMiddle(*wait, window);
    window.openWith({980, 690});
}

}  // namespace qt
