#pragma once
#include <QWidget>

namespace melvora {

/// One tab of the window. It is made when it is first looked at.
class Page : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;
    /// Shows its texts in the language in force.
    virtual void retranslate() = 0;
};

}  // namespace melvora
