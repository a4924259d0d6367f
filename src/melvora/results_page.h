#pragma once
#include "melvora/host.h"
#include "melvora/page.h"
#include "melvora/text_table.h"

#include <QTextBrowser>

namespace melvora {

/// The collected results, newest first, and a look at the chosen one.
class ResultsPage final : public Page {
    Q_OBJECT
  public:
    explicit ResultsPage(Host& host, QWidget* parent = nullptr);
    void retranslate() override;

  private:
    void fill() override;
    void showRecord(int row);

    Host& host_;
    QList<Result> results_;
    TextTable* table_;
    QTextBrowser* record_;
};

}  // namespace melvora
