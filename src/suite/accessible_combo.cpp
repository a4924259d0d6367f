#include "suite/accessible_combo.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>

namespace suite {

namespace {

/// The toolkit's own gives what is chosen as the name.
class AccessibleCombo final : public QAccessibleWidget {
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
    QStringList actionNames() const override {
        return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
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
