#include "melvora/log_page.h"

#include "suite/look.h"

#include <QVBoxLayout>

namespace melvora {

LogPage::LogPage(Host& host, QWidget* parent)
    : Page(parent),
      host_(host),
      label_(new QLabel(this)),
      text_(new QLineEdit(this)),
      kind_(new QComboBox(this)),
      table_(new TextTable(this)) {
    label_->setBuddy(text_);
    text_->setClearButtonEnabled(true);
    kind_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (int i = 0; i < 3; ++i) kind_->addItem({});
    auto* filter = new QHBoxLayout;
    filter->addWidget(label_);
    filter->addWidget(text_, 1);
    filter->addWidget(kind_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(suite::pageMargins);
    layout->addLayout(filter);
    layout->addWidget(table_);
    connect(text_, &QLineEdit::textChanged, this, [this] { refresh(); });
    connect(kind_, &QComboBox::currentIndexChanged, this, [this] { refresh(); });
    connect(&host_, &Host::logChanged, this, [this] { refresh(); });
    retranslate();
}

void LogPage::retranslate() {
    const Words& words = host_.words();
    label_->setText(words.wort(934));
    text_->setPlaceholderText(words.wort(962));
    const int kinds[] = {960, 939, 940};
    for (int i = 0; i < 3; ++i) kind_->setItemText(i, words.wort(kinds[i]));
    kind_->setAccessibleName(words.wort(936));
    table_->setHeadings({words.wort(935), words.wort(959), words.wort(936), words.wort(937)});
    table_->setEmptyText(words.wort(958));
    table_->view()->setAccessibleName(words.wort(902));
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
            rows.append({line.time.toString("yyyy-MM-dd HH:mm:ss"), shownKey(line.user),
                         words.wort(line.kind == LogKind::Error ? 940 : 939), line.text});
        table_->setRows(rows);
    });
}

}  // namespace melvora
