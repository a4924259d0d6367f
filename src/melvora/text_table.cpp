#include "melvora/text_table.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QShortcut>

namespace melvora {

void TextModel::setHeadings(const QStringList& headings) {
    beginResetModel();
    headings_ = headings;
    endResetModel();
}

void TextModel::setRows(const QList<QStringList>& rows) {
    beginResetModel();
    rows_ = rows;
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
    // What came from elsewhere is shown as it is, never as a page with pictures.
    if (role == Qt::ToolTipRole) return "<span>" + text.toHtmlEscaped() + "</span>";
    return {};
}

QVariant TextModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? headings_.value(section) : QVariant();
}

TextTable::TextTable(QWidget* parent)
    : QWidget(parent),
      model_(new TextModel(this)),
      view_(new QTableView(this)),
      empty_(new QLabel(this)),
      stack_(new QStackedLayout(this)) {
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setWordWrap(true);
    empty_->setForegroundRole(QPalette::PlaceholderText);
    view_->setModel(model_);
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
    showFocus(false);
    stack_->addWidget(empty_);
    stack_->addWidget(view_);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { emit chosen(row()); });
    connect(view_, &QTableView::activated, this,
            [this](const QModelIndex& index) { emit opened(index.row()); });
    auto* deletion = new QShortcut(QKeySequence::Delete, view_);
    deletion->setContext(Qt::WidgetShortcut);
    connect(deletion, &QShortcut::activated, this, &TextTable::deletionWanted);
}

void TextTable::setRows(const QList<QStringList>& rows) {
    const int before = row();
    model_->setRows(rows);
    stack_->setCurrentWidget(rows.isEmpty() ? static_cast<QWidget*>(empty_) : view_);
    view_->resizeColumnsToContents();
    auto* header = view_->horizontalHeader();
    for (int column = 0; column < header->count() - 1; ++column)
        header->resizeSection(column, header->sectionSize(column) + fontMetrics().height());
    chooseRow(before);
}

int TextTable::row() const {
    const auto rows = view_->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

bool TextTable::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) showFocus(true);
    if (event->type() == QEvent::FocusOut) showFocus(false);
    return QWidget::eventFilter(watched, event);
}

void TextTable::showFocus(bool focused) {
    QPalette palette = QApplication::palette(view_);
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
    if (row >= 0 && row < model_->rowCount())
        view_->selectRow(row);
    else
        emit chosen(-1);
}

}  // namespace melvora
