#pragma once
#include "qt/binder.h"
#include "qt/window_keys.h"

#include <QWidget>

#include <optional>

namespace qt {

/// The window of a form: shown and hidden with it, its keys and close box told to it.
class FormWindow final : public QWidget {
  public:
    /// @param middle of the window that was hidden last: there a window opens first. Every window
    /// that is hidden puts its own.
    FormWindow(form::Form& form, std::optional<QPoint>& middle);
    ~FormWindow() override;

    Binder& binder() { return binder_; }
    WindowKeys& keys() { return keys_; }
    /// Called once, before the window is seen: what depends on the form's contents.
    std::function<void()> beforeOpening;
    /// What shows the form's contents without its buttons; the window itself unless said.
    QWidget& contents() const { return *contents_; }
    void setContents(QWidget& contents) { contents_ = &contents; }
    /// The size with which the window first opens, cut to the screen.
    void openWith(const QSize& size) { opening_ = size; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void follow();
    void open();
    bool keyPressed(QWidget& widget, int pressed);

    form::Form& form_;
    std::optional<QPoint>& middle_;
    WindowKeys keys_;
    Binder binder_;
    form::Connection changed_;
    QWidget* contents_ = this;
    QSize opening_{720, 520};
    bool opened_ = false;
    bool waiting_ = false;
};

}  // namespace qt
