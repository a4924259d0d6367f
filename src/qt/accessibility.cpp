#include "qt/accessibility.h"

#include "qt/bar_widget.h"
#include "qt/form_window.h"
#include "qt/group_frame.h"
#include "qt/picture_widget.h"
#include "qt/staff_widget.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace qt {

namespace {

/// A picture, which may be one that is pressed: that can be known later only.
class Picture final : public QAccessibleWidget {
  public:
    explicit Picture(PictureWidget& picture) : QAccessibleWidget(&picture), picture_(picture) {}
    QAccessible::Role role() const override {
        return picture_.clicked ? QAccessible::Button : QAccessible::Graphic;
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (picture_.clicked) names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& action) override {
        if (action != pressAction()) return QAccessibleWidget::doAction(action);
        if (picture_.isEnabled() && picture_.clicked) picture_.clicked();
    }

  private:
    PictureWidget& picture_;
};

class Bar final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit Bar(BarWidget& bar) : QAccessibleWidget(&bar, QAccessible::ProgressBar), bar_(bar) {}
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return bar_.percent(); }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

  private:
    BarWidget& bar_;
};

QAccessibleInterface* make(const QString& name, QObject* object) {
    if (name != QLatin1String("QWidget")) return nullptr;
    if (auto* bar = dynamic_cast<BarWidget*>(object)) return new Bar(*bar);
    if (auto* frame = dynamic_cast<GroupFrame*>(object))
        return new QAccessibleWidget(frame, QAccessible::Grouping);
    if (auto* window = dynamic_cast<FormWindow*>(object))
        return new QAccessibleWidget(window, QAccessible::Window);
    if (auto* staff = dynamic_cast<StaffWidget*>(object))
        return new QAccessibleWidget(staff, QAccessible::Canvas);
    if (auto* picture = dynamic_cast<PictureWidget*>(object)) return new Picture(*picture);
    return nullptr;
}

}  // namespace

void installAccessibility() { QAccessible::installFactory(make); }

}  // namespace qt
