#pragma once
#include "melvora/host.h"
#include "melvora/page.h"
#include "melvora/text_table.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace melvora {

/// The log, newest first, filtered by kind and text.
class LogPage final : public Page {
    Q_OBJECT
  public:
    explicit LogPage(Host& host, QWidget* parent = nullptr);
    void retranslate() override;

  private:
    void fill() override;

    Host& host_;
    QLabel* label_;
    QLineEdit* text_;
    QComboBox* kind_;
    TextTable* table_;
};

}  // namespace melvora
