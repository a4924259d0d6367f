#include "melvora/results_page.h"

#include "core/wort.h"
#include "melvora/record_html.h"
#include "suite/look.h"

#include <QHBoxLayout>
#include <QSplitter>
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

QString ResultsPage::nameOf(const QString& key) const { return names_.value(key, key); }

}  // namespace melvora
