#include "qt/picture_widget.h"
#include "qt/windows.h"
#include "staff/scale_picture.h"
#include "suite/look.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <array>

namespace qt {

namespace {

/// Builds the groups of the set-up form.
class Groups {
  public:
    explicit Groups(Binder& bind) : bind_(bind) {}

    /// A group with its heading; what it holds goes below.
    QVBoxLayout* begin(QBoxLayout* column, int index) {
        QWidget* frame = bind_("grdeinst", index);
        auto* inside = new QVBoxLayout(frame);
        inside->setContentsMargins(suite::margin, suite::gap, suite::margin, suite::gap + 2);
        inside->setSpacing(5);
        if (bind_.has("geinst_lb", index)) {
            QLabel* heading = static_cast<QLabel*>(bind_("geinst_lb", index));
            suite::font(*heading, 1, QFont::Bold);
            heading->setBuddy(frame);
            frame->setFocusPolicy(Qt::ClickFocus);
            inside->addWidget(heading);
        }
        if (column) column->addWidget(frame);
        return inside;
    }

    /// Nothing where the branch has no such group.
    void options(QBoxLayout* column, int index, const char* name,
                 std::initializer_list<int> indices) {
        if (!bind_.has("grdeinst", index)) return;
        QVBoxLayout* inside = begin(column, index);
        for (const int i : indices) inside->addWidget(bind_(name, i));
    }

    /// A label and what it names, side by side.
    void row(QBoxLayout* inside, QWidget* label, QWidget* control) {
        auto* line = new QHBoxLayout;
        static_cast<QLabel*>(label)->setBuddy(control);
        line->addWidget(label);
        line->addWidget(control, 1);
        inside->addLayout(line);
    }

  private:
    Binder& bind_;
};

void soundGroup(Binder& bind, Groups& groups, QBoxLayout* column) {
    QVBoxLayout* sound = groups.begin(column, 15);
    sound->addWidget(bind("ComboPatch"));
    auto* tempo = new QHBoxLayout;
    auto* tempoLabel = static_cast<QLabel*>(bind("lb15", 0));
    QWidget* tempoChoice = bind("temp_Combo");
    tempoLabel->setBuddy(tempoChoice);
    tempo->addWidget(tempoLabel);
    tempo->addWidget(tempoChoice, 1);
    auto* note = static_cast<PictureWidget*>(bind("pic15"));
    note->setPicture(staff::quarterNote);
    note->setColour(Qt::transparent);
    note->setFixedSize(note->sizeHint() * suite::scale());
    note->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    tempo->addWidget(note);
    tempo->addWidget(bind("lb15", 1));
    sound->addLayout(tempo);
    QVBoxLayout* check = groups.begin(nullptr, 14);
    auto* volume = new QHBoxLayout;
    auto* volumeLabel = static_cast<QLabel*>(bind("lb14", 0));
    QWidget* slider = bind("HSliderVolume");
    volumeLabel->setBuddy(slider);
    volume->addWidget(volumeLabel);
    volume->addWidget(slider, 1);
    QWidget* value = bind("lb14", 1);
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("127")) + 4);
    volume->addWidget(value);
    check->addLayout(volume);
    check->addWidget(bind("klang_contr"));
    sound->addWidget(check->parentWidget());
}

/// The two lists of single scales, each below its heading, with what the choice lacks.
QWidget* chosenScales(Binder& bind, Groups& groups) {
    QVBoxLayout* inside = groups.begin(nullptr, 10);
    auto* lists = new QHBoxLayout;
    lists->setSpacing(suite::margin);
    for (const int list : {0, 1}) {
        auto* column = new QVBoxLayout(bind("kl_rahmen", list));
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(4);
        column->addWidget(bind("lb10", list + 1));
        QWidget* scales = bind("lst_ska", list);
        // On a small screen a line below the form may take some of its room.
        scales->setMinimumHeight(5 * scales->fontMetrics().lineSpacing());
        scales->setMaximumHeight(8 * scales->fontMetrics().lineSpacing());
        column->addWidget(scales);
        lists->addWidget(column->parentWidget(), 1);
    }
    inside->addLayout(lists);
    auto* state = new QHBoxLayout;
    state->addWidget(bind("wahlStand"));
    state->addStretch();
    QWidget* hint = bind("lb10", 0);
    suite::font(*hint, 1, QFont::Bold);
    state->addWidget(hint);
    inside->addLayout(state);
    return inside->parentWidget();
}

}  // namespace

void layoutEinstellung(FormWindow& window) {
    Binder& bind = window.binder();
    Groups groups(bind);
    auto* page = new QVBoxLayout(&window);
    page->setContentsMargins(suite::margin, suite::margin, suite::margin, suite::gap);
    page->setSpacing(suite::gap);

    auto* inner = new QWidget;
    inner->setMaximumWidth(static_cast<int>(1200 * suite::scale()));
    auto* scroll = new QScrollArea(&window);
    scroll->setWidget(inner);
    scroll->setWidgetResizable(true);
    scroll->setAlignment(Qt::AlignHCenter);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    page->addWidget(scroll, 1);
    auto* rows = new QVBoxLayout(inner);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(suite::gap);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(suite::margin);
    rows->addLayout(columns);
    // Below, where the form has room: what is pointed at stays where it is.
    rows->addWidget(chosenScales(bind, groups));
    rows->addStretch();
    const auto column = [&] {
        auto* layout = new QVBoxLayout;
        layout->setSpacing(suite::gap);
        columns->addLayout(layout, 1);
        return layout;
    };

    QVBoxLayout* scales = column();
    groups.begin(scales, 1)->addWidget(bind("skal_typ_cmb"));
    groups.options(scales, 9, "ska_ausw", {0, 1});
    QVBoxLayout* order = groups.begin(scales, 4);
    for (const int i : {0, 1}) order->addWidget(bind("abfolge", i));
    groups.row(order, bind("lb4"), bind("Combo_richtung"));
    groups.options(scales, 7, "final", {0, 1, 2});
    scales->addStretch();

    QVBoxLayout* tones = column();
    QVBoxLayout* range = groups.begin(tones, 0);
    range->addWidget(bind("CmbOktAnz"));
    groups.row(range, bind("lb0"), bind("CmbOktBer"));
    groups.options(tones, 3, "stimm_g", {0, 1, 2});
    groups.options(tones, 2, "frequenz", {0, 1});
    groups.options(tones, 11, "an_zeig", {0, 1});
    tones->addStretch();

    QVBoxLayout* run = column();
    QVBoxLayout* mode = groups.begin(run, 8);
    mode->addWidget(bind("training_Combo"));
    mode->addWidget(bind("prfnr_Comb"));
    groups.options(run, 5, "abfrage", {0, 1});
    if (bind.has("lb14", 0)) soundGroup(bind, groups, run);
    run->addStretch();

    auto* note = static_cast<QLabel*>(bind("fileNote"));
    note->setWordWrap(true);
    suite::font(*note, 1, QFont::Bold);
    page->insertWidget(0, note);
    auto* hint = static_cast<QLabel*>(bind("tonHinweis"));
    hint->setWordWrap(true);
    suite::colours(*hint, suite::warning);
    page->addWidget(hint);

    QWidget* box = bind("aktionsbox");
    auto* actions = new QHBoxLayout(box);
    actions->setContentsMargins(0, 0, 0, 0);
    actions->addWidget(bind("cmdHilfe"));
    const std::array presets{static_cast<QPushButton*>(bind("asLastTime")),
                             static_cast<QPushButton*>(bind("forBeginners"))};
    for (QPushButton* preset : presets) actions->addWidget(preset);
    actions->addWidget(bind("cmdOptionRead"));
    actions->addWidget(bind("cmdOptionSave"));
    actions->addStretch();
    QWidget* footer = bind("copyright");
    suite::quiet(*footer);
    actions->addWidget(footer);
    actions->addStretch();
    actions->addWidget(bind("cmdZurueck"));
    QWidget* ok = bind("cmdOK");
    suite::font(*ok, 1, QFont::Bold);
    actions->addWidget(ok);
    window.keys().setSteps({ok});
    // What was filled is looked at, and begun.
    for (QPushButton* preset : presets)
        QObject::connect(preset, &QPushButton::clicked, ok, [ok] { ok->setFocus(); });
    page->addWidget(box);
    bind("popPruefung");
    window.openWith({980, 690});
}

}  // namespace qt
