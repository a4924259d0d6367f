#pragma once
#include "melvora/combo.h"
#include "melvora/host.h"
#include "melvora/page.h"
#include "melvora/text_table.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace melvora {

/// The log, newest first, filtered by kind and text.
class LogPage final : public Page {
    Q_OBJECT
  public:
    explicit LogPage(Host& host, QWidget* parent = nullptr);
    void retranslate() override;
    QString helpPage() const override { return "melvora"; }

  private:
    void fill() override;

    Host& host_;
    QLabel* label_;
    QLineEdit* text_;
    QLabel* kindLabel_;
    Combo* kind_;
    QPushButton* help_;
    TextTable* table_;
};

}  // namespace melvora
