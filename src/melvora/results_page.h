#pragma once
#include "melvora/host.h"
#include "melvora/page.h"
#include "melvora/text_table.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>

namespace melvora {

/// The collected results, newest first, and a look at the chosen one. Those of others, and runs in
/// which nothing was answered, are shown only when they are asked for.
class ResultsPage final : public Page {
    Q_OBJECT
  public:
    explicit ResultsPage(Host& host, QWidget* parent = nullptr);
    void retranslate() override;
    QString helpPage() const override { return "melvora_results"; }
    void chooseNewest() { table_->chooseRow(0); }
    /// Writes the results that are shown, as they are sorted, to a file of answers and one of runs,
    /// and tells what became of it.
    void exportTo(const QString& path);

  private:
    void layOut();
    void fill() override;
    void showRows();
    void showEmptyText();
    void showRecord(int row);
    void askAndExport();
    /// Name of a user, or the key of one who is not there any more.
    QString nameOf(const QString& key) const;

    Host& host_;
    QList<Result> results_;  ///< all
    QList<Result> listed_;   ///< by the rows of the table
    QHash<QString, QString> names_;
    QLabel* filterLabel_;
    QLineEdit* filter_;
    QCheckBox* allUsers_;
    QCheckBox* emptyRuns_;
    QPushButton* export_;
    TextTable* table_;
    QTextBrowser* record_;
};

}  // namespace melvora
