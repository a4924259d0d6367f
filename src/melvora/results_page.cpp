#include "melvora/results_page.h"

#include "core/wort.h"
#include "melvora/record_html.h"
#include "suite/look.h"

#include <QSplitter>
#include <QVBoxLayout>

namespace melvora {

namespace wort = core::wort;

ResultsPage::ResultsPage(Host& host, QWidget* parent)
    : Page(parent), host_(host), table_(new TextTable(this)), record_(new QTextBrowser(this)) {
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(table_);
    splitter->addWidget(record_);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(suite::pageMargins);
    layout->addWidget(splitter);
    connect(table_, &TextTable::chosen, this, &ResultsPage::showRecord);
    connect(&host_, &Host::resultsChanged, this, [this] { refresh(); });
    retranslate();
}

void ResultsPage::retranslate() {
    const Words& words = host_.words();
    table_->setHeadings({words.wort(wort::recordDate), words.wort(wort::userHeading),
                         words.wort(wort::exercise), words.wort(wort::rightAtFirst)});
    table_->setEmptyText(words.wort(wort::noResults));
    table_->view()->setAccessibleName(words.wort(wort::resultsPage));
    record_->setAccessibleName(words.wort(wort::exercise));
    record_->setPlaceholderText(words.wort(wort::chooseResult));
    refresh();
}

void ResultsPage::fill() {
    host_.inTurn([this] {
        const Words& words = host_.words();
        results_ = host_.store().results.all();
        QList<QStringList> rows;
        for (const Result& result : results_)
            rows.append({words.moment(result.started), shownKey(result.user), result.exercise.name,
                         shareText(words, result.rightFirst, result.answered)});
        table_->setRows(rows);
        record_->setVisible(!rows.isEmpty());
    });
}

void ResultsPage::showRecord(int row) {
    record_->clear();
    if (row < 0) return;
    host_.guarded([&] {
        const QByteArray xml = host_.store().results.text(results_[row].id).toUtf8();
        if (const auto record = parseResultRecord(xml))
            record_->setHtml(recordHtml(host_.words(), *record));
    });
}

}  // namespace melvora
