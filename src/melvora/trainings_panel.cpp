#include "melvora/trainings_panel.h"

#include "core/wort.h"
#include "melvora/confirm.h"
#include "melvora/record_html.h"
#include "melvora/wrapped.h"
#include "suite/look.h"

#include <QGridLayout>

namespace melvora {

namespace wort = core::wort;

TrainingsPanel::TrainingsPanel(Host& host, QWidget* parent)
    : QWidget(parent),
      host_(host),
      heading_(new QLabel(this)),
      table_(new TextTable(this)),
      remove_(new QPushButton(this)),
      hint_(new QLabel(this)) {
    suite::font(*heading_, 1, QFont::DemiBold);
    heading_->setTextFormat(Qt::PlainText);
    heading_->setWordWrap(true);
    heading_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    hint_->setWordWrap(true);
    hint_->setForegroundRole(QPalette::PlaceholderText);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(suite::margin);
    layout->setVerticalSpacing(6);
    layout->setColumnStretch(0, 1);
    layout->addWidget(heading_, 0, 0);
    layout->addWidget(table_, 1, 0);
    layout->addWidget(remove_, 1, 1, Qt::AlignTop);
    layout->addWidget(hint_, 2, 0);
    connect(remove_, &QPushButton::clicked, this, &TrainingsPanel::remove);
    connect(table_, &TextTable::deletionWanted, this, &TrainingsPanel::remove);
    connect(table_, &TextTable::chosen, this, &TrainingsPanel::showButton);
    connect(&host_, &Host::moduleStarted, this, &TrainingsPanel::showButton);
    connect(&host_, &Host::moduleEnded, this, &TrainingsPanel::showButton);
}

void TrainingsPanel::retranslate() {
    const Words& words = host_.words();
    table_->setHeadings({words.wort(wort::exercise), words.wort(wort::savedOn)});
    table_->setHeightInRows(static_cast<int>(std::size(Trainings::exercises)));
    table_->setEmptyText(words.wort(wort::noTrainings));
    remove_->setText(words.wort(wort::deleteTraining));
    hint_->setText(words.wort(wort::noDeletingNow));
}

void TrainingsPanel::showUser(const QString& key, const QString& name) {
    name_ = name;
    heading_->setText(wrapped(host_.words().wort(wort::savedTrainings).arg(name)));
    table_->view()->setAccessibleName(heading_->text());
    host_.guarded([&] {
        trainings_ = host_.store().trainings.of(key);
        QList<QStringList> rows;
        for (const Training& training : trainings_)
            rows.append({exerciseName(training), host_.words().moment(training.saved)});
        table_->setRows(rows);
        if (table_->row() < 0) table_->chooseRow(0);
    });
    showButton();
}

void TrainingsPanel::showButton() {
    const bool running = host_.module().runs();
    remove_->setEnabled(table_->row() >= 0 && !running);
    hint_->setVisible(running && !trainings_.isEmpty());
}

void TrainingsPanel::remove() {
    if (!remove_->isEnabled()) return;
    const Training training = trainings_[table_->row()];
    const QString question =
        host_.words().wort(wort::deleteTrainingQuestion).arg(exerciseName(training), name_);
    if (confirmsDeletion(this, host_.words(), question)) host_.removeTraining(training);
}

QString TrainingsPanel::exerciseName(const Training& training) const {
    return exerciseText(host_.words(), exerciseOf(training.exercise));
}

}  // namespace melvora
