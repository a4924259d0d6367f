#include "melvora/results_page.h"

#include "core/wort.h"
#include "melvora/record_html.h"
#include "melvora/result_csv.h"
#include "suite/look.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QProgressDialog>
#include <QSplitter>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>

namespace melvora {

namespace wort = core::wort;

ResultsPage::ResultsPage(Host& host, QWidget* parent)
    : Page(parent),
      host_(host),
      filterLabel_(new QLabel(this)),
      filter_(new QLineEdit(this)),
      allUsers_(new QCheckBox(this)),
      emptyRuns_(new QCheckBox(this)),
      export_(new QPushButton(this)),
      table_(new TextTable(this)),
      record_(new QTextBrowser(this)) {
    layOut();
    table_->makeSortable();
    connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        showEmptyText();
        table_->setFilter(text);
    });
    for (const QCheckBox* box : {allUsers_, emptyRuns_})
        connect(box, &QCheckBox::toggled, this, [this] { showRows(); });
    connect(table_, &TextTable::chosen, this, &ResultsPage::showRecord);
    connect(export_, &QPushButton::clicked, this, &ResultsPage::askAndExport);
    connect(&host_, &Host::resultsChanged, this, [this] { refresh(); });
    connect(&host_, &Host::usersChanged, this, [this] { refresh(); });
    retranslate();
}

void ResultsPage::layOut() {
    filterLabel_->setBuddy(filter_);
    filter_->setClearButtonEnabled(true);
    auto* bar = new QHBoxLayout;
    bar->setSpacing(suite::margin);
    bar->addWidget(filterLabel_);
    bar->addWidget(filter_, 1);
    bar->addWidget(allUsers_);
    bar->addWidget(emptyRuns_);
    bar->addWidget(export_);
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(table_);
    splitter->addWidget(record_);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(suite::pageMargins);
    layout->addLayout(bar);
    layout->addWidget(splitter, 1);
}

void ResultsPage::retranslate() {
    const Words& words = host_.words();
    filterLabel_->setText(words.wort(wort::filterLabel));
    filter_->setPlaceholderText(words.wort(wort::searchText));
    allUsers_->setText(words.wort(wort::allUsers));
    emptyRuns_->setText(words.wort(wort::emptyRuns));
    export_->setText(words.wort(wort::exportButton));
    QStringList headings;
    for (const wort::Id heading : {wort::begun, wort::userHeading, wort::branch, wort::exercise,
                                   wort::exerciseMode, wort::scaleType, wort::rightAtFirst})
        headings.append(words.wort(heading));
    table_->setHeadings(headings);
    table_->view()->setAccessibleName(words.wort(wort::resultsPage));
    record_->setAccessibleName(words.wort(wort::exercise));
    record_->setPlaceholderText(words.wort(wort::chooseResult));
    refresh();
}

void ResultsPage::fill() {
    host_.inTurn([this] {
        results_ = host_.store().results.all();
        names_.clear();
        for (const User& user : host_.store().users.all()) names_.insert(user.key, user.fullName());
        names_.insert(nobody, host_.words().wort(wort::withoutLogin));
        showRows();
    });
}

void ResultsPage::showRows() {
    const Words& words = host_.words();
    const int row = table_->row();
    const int chosen = row < 0 ? 0 : listed_[row].id;
    listed_.clear();
    std::ranges::copy_if(results_, std::back_inserter(listed_), [this](const Result& result) {
        return (allUsers_->isChecked() || result.user == host_.userKey()) &&
               (emptyRuns_->isChecked() || result.answered > 0);
    });
    QList<QStringList> rows;
    QList<QVariantList> keys;
    for (const Result& result : listed_) {
        const Exercise& about = result.exercise;
        rows.append({words.moment(result.started), nameOf(result.user), branchText(words, about),
                     kindText(words, about), modeText(words, about), scaleTypeText(words, about),
                     shareText(words, result.rightFirst, result.answered)});
        const double share =
            result.answered == 0 ? -1 : double(result.rightFirst) / result.answered;
        keys.append({result.started, {}, {}, {}, {}, {}, share});
    }
    showEmptyText();
    table_->setRows(rows, keys);
    export_->setEnabled(!rows.isEmpty());
    const auto found = std::ranges::find(listed_, chosen, &Result::id);
    table_->chooseRow(found == listed_.end() ? -1 : static_cast<int>(found - listed_.begin()));
    record_->setVisible(!rows.isEmpty());
}

void ResultsPage::showEmptyText() {
    table_->setEmptyText(
        host_.words().wort(results_.isEmpty() ? wort::noResults : wort::noneShown));
}

void ResultsPage::showRecord(int row) {
    record_->clear();
    if (row < 0) return;
    const Result& result = listed_[row];
    host_.guarded([&] {
        const QByteArray xml = host_.store().results.text(result.id).toUtf8();
        if (const auto record = parseResultRecord(xml))
            record_->setHtml(
                recordHtml(host_.words(), *record, result.started, nameOf(result.user)));
    });
}

void ResultsPage::askAndExport() {
    const Words& words = host_.words();
    QFileDialog dialog(this, words.wort(wort::exportTitle),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       words.wort(wort::tables) + " (*.csv)");
    // The system's own speaks the system's language.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("csv");
    dialog.selectFile("melvora-" + QDate::currentDate().toString(Qt::ISODate) + ".csv");
    if (dialog.exec() == QDialog::Accepted) exportTo(dialog.selectedFiles().value(0));
}

void ResultsPage::exportTo(const QString& path) {
    const Words& words = host_.words();
    QList<Result> runs;
    for (const int row : table_->shownRows()) runs.append(listed_[row]);
    const auto count = static_cast<int>(runs.size());
    QProgressDialog progress(words.wort(wort::exporting), words.wort(wort::cancel), 0, count, this);
    progress.setWindowModality(Qt::WindowModal);
    try {
        ResultCsv csv(path);
        for (int i = 0; i < count; ++i) {
            progress.setValue(i);
            if (progress.wasCanceled()) return;
            const QByteArray xml = host_.store().results.text(runs[i].id).toUtf8();
            csv.add(runs[i], nameOf(runs[i].user), parseResultRecord(xml));
        }
        csv.finish();
        QString told = words.wort(wort::exported)
                           .arg(count)
                           .arg(csv.answers())
                           .arg(csv.answersFile(), QFileInfo(csv.runsFile()).fileName());
        if (csv.unreadable() > 0)
            told += " " + words.wort(wort::exportedUnreadable).arg(csv.unreadable());
        emit host_.noticed(told, Host::Details::Here);
    } catch (const CsvError& fault) {
        emit host_.noticed(words.wort(wort::exportFailed).arg(QString::fromUtf8(fault.what())),
                           Host::Details::Here);
    } catch (const StoreError& fault) {
        host_.tell(fault);
    }
}

QString ResultsPage::nameOf(const QString& key) const { return names_.value(key, key); }

}  // namespace melvora
