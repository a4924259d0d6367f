#pragma once
#include <QAbstractTableModel>
#include <QLabel>
#include <QStackedLayout>
#include <QTableView>

namespace melvora {

/// Rows of texts under headings.
class TextModel final : public QAbstractTableModel {
    Q_OBJECT
  public:
    using QAbstractTableModel::QAbstractTableModel;
    void setHeadings(const QStringList& headings);
    void setRows(const QList<QStringList>& rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QStringList headings_;
    QList<QStringList> rows_;
};

/// A table of texts whose rows can be chosen, and a line in its place while it is empty.
class TextTable final : public QWidget {
    Q_OBJECT
  public:
    explicit TextTable(QWidget* parent = nullptr);
    void setHeadings(const QStringList& headings) { model_->setHeadings(headings); }
    void setEmptyText(const QString& text) { empty_->setText(text); }
    /// Keeps the chosen row's number where it still exists.
    void setRows(const QList<QStringList>& rows);
    /// Number of the chosen row, -1 when there is none.
    int row() const;
    void chooseRow(int row);
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

    TextModel* model_;
    QTableView* view_;
    QLabel* empty_;
    QStackedLayout* stack_;
};

}  // namespace melvora
