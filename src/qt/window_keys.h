#pragma once
#include <QObject>
#include <QPointer>

#include <vector>

class QWidget;

namespace qt {

/// Gives the buttons of a window, and what a label names, a letter of their own to be pressed with
/// Alt: none twice, kept while their text has it. Controls with the property `ownKey` are left out.
void giveLetters(QWidget& window);

/// What keys do in a window beyond what its form says: which control Enter and Space press, and
/// where the focus goes when the control that has it can no longer be used.
class WindowKeys final : public QObject {
  public:
    explicit WindowKeys(QWidget& window);

    /// What a user does next, in that order: there the focus goes.
    void setSteps(std::vector<QWidget*> steps) { steps_ = std::move(steps); }
    /// The focus goes to the first step as soon as there is one that can be used.
    void begin();
    /// Presses a control that was reached by Tab or by its letter. @return whether it is such a
    /// one.
    bool press(QWidget& widget);
    /// A control gets the focus.
    void focused(QWidget& widget, Qt::FocusReason reason);
    /// A control is about to be disabled or hidden.
    void leaving(const QWidget& widget);
    /// A control can be used again, or has another text.
    void changed();

  private:
    void settle();

    QWidget& window_;
    std::vector<QWidget*> steps_;
    QPointer<QWidget> byTab_;  ///< the control that was reached by Tab, while it has the focus
    QPointer<QWidget> left_;   ///< the control that had the focus before it could not be used
    bool leftByTab_ = false;
    bool seeking_ = false;  ///< the focus waits for a control that can be used
    bool settling_ = false;
};

}  // namespace qt
