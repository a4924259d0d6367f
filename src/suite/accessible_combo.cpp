#include "suite/accessible_combo.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

namespace suite {

namespace {

/// The toolkit's own gives what is chosen as the name. Here it is the value, and a text that can be
/// read, and it is changed by the actions "Increase" and "Decrease" as by the arrow keys.
class AccessibleCombo final : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit AccessibleCombo(QComboBox* combo) : QAccessibleWidget(combo, QAccessible::ComboBox) {}

    QString text(QAccessible::Text what) const override {
        if (what == QAccessible::Value) return combo()->currentText();
        return QAccessibleWidget::text(what);
    }
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(combo()->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child && child->object() == combo()->view() ? 0 : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        return combo()->view()->isVisible() && combo()->view()->rect().contains(
                                                   combo()->view()->mapFromGlobal(QPoint(x, y)))
                   ? child(0)
                   : nullptr;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = combo()->view()->isVisible();
        state.collapsed = !state.expanded;
        state.hasPopup = true;
        state.editable = combo()->isEditable();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(int start, int end) const override {
        return combo()->currentText().mid(start, end - start);
    }
    int characterCount() const override { return static_cast<int>(combo()->currentText().size()); }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }
    // One may read it, but neither walk through it nor mark a part.
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    int selectionCount() const override { return 0; }
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}

    QStringList actionNames() const override {
        return QStringList{showMenuAction(), pressAction(), increaseAction(), decreaseAction()} +
               QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == increaseAction() || name == decreaseAction()) {
            QKeyEvent arrow(QEvent::KeyPress, name == increaseAction() ? Qt::Key_Down : Qt::Key_Up,
                            Qt::NoModifier);
            QApplication::sendEvent(combo(), &arrow);
            return;
        }
        if (name != showMenuAction() && name != pressAction())
            return QAccessibleWidget::doAction(name);
        if (combo()->view()->isVisible())
            combo()->hidePopup();
        else
            combo()->showPopup();
    }

  private:
    QComboBox* combo() const { return static_cast<QComboBox*>(object()); }
};

QAccessibleInterface* make(const QString& className, QObject* object) {
    if (className != QLatin1String("QComboBox")) return nullptr;
    auto* combo = qobject_cast<QComboBox*>(object);
    return combo ? new AccessibleCombo(combo) : nullptr;
}

}  // namespace

void nameCombos() { QAccessible::installFactory(make); }

}  // namespace suite
