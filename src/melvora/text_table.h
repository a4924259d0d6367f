#pragma once
#include <QAbstractTableModel>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QStackedLayout>
#include <QTableView>

namespace melvora {

/// Rows of texts under headings. A row may have keys, which decide in place of its texts how a
/// column is sorted.
class TextModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    using QAbstractTableModel::QAbstractTableModel;
    static constexpr int sortRole = Qt::UserRole;
    void setHeadings(const QStringList& headings);
    void setRows(const QList<QStringList>& rows, const QList<QVariantList>& keys);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QStringList headings_;
    QList<QStringList> rows_;
    QList<QVariantList> keys_;
};

/// The rows that contain each word of a text, in any case and column.
class RowFilter final : public QSortFilterProxyModel {
    Q_OBJECT
  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
    void setText(const QString& text);

  protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

  private:
    QStringList words_;
};

/// A table of texts whose rows can be chosen, and a line in its place while it is empty. Rows are
/// numbered as they were set, however they are shown.
class TextTable final : public QWidget {
    Q_OBJECT
  public:
    explicit TextTable(QWidget* parent = nullptr);
    void setHeadings(const QStringList& headings) { model_->setHeadings(headings); }
    void setEmptyText(const QString& text) { empty_->setText(text); }
    /// Keeps the chosen row's number where it still exists.
    void setRows(const QList<QStringList>& rows, const QList<QVariantList>& keys = {});
    /// Shows only the rows that contain each word of the text.
    void setFilter(const QString& text);
    /// From here on a click on a heading sorts by it: rising, falling, as set.
    void makeSortable();
    /// Number of the chosen row, -1 when there is none.
    int row() const;
    void chooseRow(int row);
    /// Numbers of the rows that are shown, from top to bottom.
    QList<int> shownRows() const;
    /// Makes it as high as that many rows and the headings, which must be set.
    void setHeightInRows(int rows);
    QTableView* view() const { return view_; }

  signals:
    void chosen(int row);
    void opened(int row);
    /// The Delete key was pressed.
    void deletionWanted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// The chosen row is pale while the keyboard is elsewhere.
    void showFocus(bool focused);

    void showRows();
    /// Gives each column the width of its texts; where they do not fit side by side, the widest are
    /// cut.
    void fitColumns();

    TextModel* model_;
    RowFilter* shown_;
    QTableView* view_;
    QLabel* empty_;
    QStackedLayout* stack_;
};

}  // namespace melvora
