#include "melvora/log_page.h"

#include "core/wort.h"
#include "suite/look.h"

#include <QVBoxLayout>

namespace melvora {

namespace wort = core::wort;

LogPage::LogPage(Host& host, QWidget* parent)
    : Page(parent),
      host_(host),
      label_(new QLabel(this)),
      text_(new QLineEdit(this)),
      kindLabel_(new QLabel(this)),
      kind_(new Combo(this)),
      help_(new QPushButton(this)),
      table_(new TextTable(this)) {
    label_->setBuddy(text_);
    kindLabel_->setBuddy(kind_);
    text_->setClearButtonEnabled(true);
    kind_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    for (int i = 0; i < 3; ++i) kind_->addItem({});
    auto* filter = new QHBoxLayout;
    filter->addWidget(label_);
    filter->addWidget(text_, 1);
    filter->addSpacing(suite::margin);
    filter->addWidget(kindLabel_);
    filter->addWidget(kind_);
    filter->addSpacing(suite::margin);
    filter->addWidget(help_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(suite::pageMargins);
    layout->addLayout(filter);
    layout->addWidget(table_);
    connect(help_, &QPushButton::clicked, this, [this] { emit host_.helpWanted(helpPage()); });
    connect(text_, &QLineEdit::textChanged, this, [this] { refresh(); });
    connect(kind_, &QComboBox::currentIndexChanged, this, [this] { refresh(); });
    connect(&host_, &Host::logChanged, this, [this] { refresh(); });
    retranslate();
}

void LogPage::retranslate() {
    const Words& words = host_.words();
    label_->setText(words.wort(wort::filterLabel));
    text_->setPlaceholderText(words.wort(wort::searchText));
    const wort::Id kinds[] = {wort::allKinds, wort::logMessage, wort::logError};
    for (int i = 0; i < 3; ++i) kind_->setItemText(i, words.wort(kinds[i]));
    kindLabel_->setText(words.wort(wort::kindLabel));
    help_->setText(words.wort(wort::helpButton));
    setWindowTitle(words.wort(wort::logPage));
    table_->setHeadings({words.wort(wort::logTime), words.wort(wort::userHeading),
                         words.wort(wort::logKind), words.wort(wort::logText)});
    table_->setEmptyText(words.wort(wort::noEntries));
    table_->view()->setAccessibleName(words.wort(wort::logPage));
    refresh();
}

void LogPage::fill() {
    host_.inTurn([this] {
        Log::Filter filter{text_->text(), {}};
        if (kind_->currentIndex() == 1) filter.kind = LogKind::Message;
        if (kind_->currentIndex() == 2) filter.kind = LogKind::Error;
        const Words& words = host_.words();
        QList<QStringList> rows;
        for (const LogLine& line : host_.store().log.lines(filter))
            rows.append(
                {words.moment(line.time, Words::Precision::Seconds), shownKey(line.user),
                 words.wort(line.kind == LogKind::Error ? wort::logError : wort::logMessage),
                 line.text});
        table_->setRows(rows);
    });
}

}  // namespace melvora
