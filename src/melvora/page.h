#pragma once
#include <QWidget>

#include <utility>

namespace melvora {

/// One tab of the window. It is made when it is first looked at.
class Page : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;
    /// Shows its texts in the language in force.
    virtual void retranslate() = 0;
    /// The page of the help that tells of this one.
    virtual QString helpPage() const = 0;

  protected:
    /// Fills the page anew, at once when it is seen, else when it will be.
    void refresh() {
        stale_ = !isVisible();
        if (!stale_) fill();
    }
    virtual void fill() {}
    void showEvent(QShowEvent* event) override {
        QWidget::showEvent(event);
        if (std::exchange(stale_, false)) fill();
    }

  private:
    bool stale_ = false;
};

}  // namespace melvora
