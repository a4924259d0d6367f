#include "melvora/text_table.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QShortcut>

#include <algorithm>
#include <numeric>

namespace melvora {

namespace {

/// Of a column, in average characters: where there is no room it is cut to no less, and never
/// wider.
constexpr int narrowest = 12, widest = 40;

}  // namespace

void TextModel::setHeadings(const QStringList& headings) {
    beginResetModel();
    headings_ = headings;
    endResetModel();
}

void TextModel::setRows(const QList<QStringList>& rows, const QList<QVariantList>& keys) {
    beginResetModel();
    rows_ = rows;
    keys_ = keys;
    endResetModel();
}

int TextModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TextModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant TextModel::data(const QModelIndex& index, int role) const {
    const QString text = rows_.value(index.row()).value(index.column());
    if (role == Qt::DisplayRole) return text;
    if (role == sortRole) {
        const QVariant key = keys_.value(index.row()).value(index.column());
        return key.isValid() ? key : text;
    }
    // What came from elsewhere is shown as it is, never as a page with pictures.
    if (role == Qt::ToolTipRole) return "<span>" + text.toHtmlEscaped() + "</span>";
    return {};
}

QVariant TextModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return isText ? headings_.value(section) : QVariant();
}

void RowFilter::setText(const QString& text) {
    words_ = text.split(' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

bool RowFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    return std::ranges::all_of(words_, [&](const QString& word) {
        for (int column = 0; column < sourceModel()->columnCount(parent); ++column)
            if (sourceModel()
                    ->index(row, column, parent)
                    .data()
                    .toString()
                    .contains(word, Qt::CaseInsensitive))
                return true;
        return false;
    });
}

TextTable::TextTable(QWidget* parent)
    : QWidget(parent),
      model_(new TextModel(this)),
      shown_(new RowFilter(this)),
      view_(new QTableView(this)),
      empty_(new QLabel(this)),
      stack_(new QStackedLayout(this)) {
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setWordWrap(true);
    empty_->setForegroundRole(QPalette::PlaceholderText);
    shown_->setSourceModel(model_);
    shown_->setSortRole(TextModel::sortRole);
    shown_->setSortCaseSensitivity(Qt::CaseInsensitive);
    shown_->setSortLocaleAware(true);
    view_->setModel(shown_);
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setTabKeyNavigation(false);
    view_->setShowGrid(false);
    view_->setAlternatingRowColors(true);
    view_->setWordWrap(false);
    view_->verticalHeader()->hide();
    view_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    view_->horizontalHeader()->setStretchLastSection(true);
    view_->horizontalHeader()->setHighlightSections(false);
    view_->installEventFilter(this);
    view_->viewport()->installEventFilter(this);
    showFocus(false);
    stack_->addWidget(empty_);
    stack_->addWidget(view_);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { emit chosen(row()); });
    connect(view_, &QTableView::activated, this, [this] { emit opened(row()); });
    auto* deletion = new QShortcut(QKeySequence::Delete, view_);
    deletion->setContext(Qt::WidgetShortcut);
    connect(deletion, &QShortcut::activated, this, &TextTable::deletionWanted);
}

void TextTable::setRows(const QList<QStringList>& rows, const QList<QVariantList>& keys) {
    const int before = row();
    model_->setRows(rows, keys);
    fitColumns();
    showRows();
    chooseRow(before);
}

void TextTable::fitColumns() {
    const QAbstractItemView* view = view_;
    auto* header = view_->horizontalHeader();
    const int character = fontMetrics().averageCharWidth();
    QList<int> wanted;
    for (int column = 0; column < header->count(); ++column)
        wanted.append(std::max(view->sizeHintForColumn(column), header->sectionSizeHint(column)) +
                      fontMetrics().height());
    const auto sum = [&](int limit) {
        return std::accumulate(wanted.begin(), wanted.end(), 0, [limit](int all, int width) {
            return all + std::min(width, limit);
        });
    };
    int limit = widest * character;
    while (limit > narrowest * character && sum(limit) > view_->viewport()->width())
        limit -= character;
    for (int column = 0; column < header->count() - 1; ++column)
        header->resizeSection(column, std::min(wanted[column], limit));
}

void TextTable::setFilter(const QString& text) {
    shown_->setText(text);
    showRows();
    if (row() < 0) emit chosen(-1);
}

void TextTable::makeSortable() {
    auto* header = view_->horizontalHeader();
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setSortIndicatorClearable(true);
    view_->setSortingEnabled(true);
}

void TextTable::showRows() {
    stack_->setCurrentWidget(shown_->rowCount() == 0 ? static_cast<QWidget*>(empty_) : view_);
}

QList<int> TextTable::shownRows() const {
    QList<int> rows;
    for (int i = 0; i < shown_->rowCount(); ++i)
        rows.append(shown_->mapToSource(shown_->index(i, 0)).row());
    return rows;
}

int TextTable::row() const {
    const auto rows = view_->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : shown_->mapToSource(rows.first()).row();
}

bool TextTable::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) showFocus(true);
    if (event->type() == QEvent::FocusOut) showFocus(false);
    if (event->type() == QEvent::Resize && watched == view_->viewport()) fitColumns();
    return QWidget::eventFilter(watched, event);
}

void TextTable::showFocus(bool focused) {
    QPalette palette = QApplication::palette(view_);
    palette.setColor(QPalette::Window, view_->palette().color(QPalette::Window));
    if (!focused) {
        QColor pale = palette.color(QPalette::Highlight);
        pale.setHslF(pale.hslHueF(), pale.hslSaturationF() * 0.5F, 0.85F);
        palette.setColor(QPalette::Highlight, pale);
        palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
    }
    view_->setPalette(palette);
}

void TextTable::setHeightInRows(int rows) {
    setFixedHeight(view_->horizontalHeader()->sizeHint().height() +
                   rows * view_->verticalHeader()->defaultSectionSize() + 2 * view_->frameWidth());
}

void TextTable::chooseRow(int row) {
    const QModelIndex index = shown_->mapFromSource(model_->index(row, 0));
    if (index.isValid())
        view_->selectRow(index.row());
    else
        emit chosen(-1);
}

}  // namespace melvora
