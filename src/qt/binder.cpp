#include "qt/binder.h"

#include "qt/bar_widget.h"
#include "qt/group_frame.h"
#include "qt/painter_surface.h"
#include "qt/picture_widget.h"
#include "qt/staff_widget.h"
#include "qt/window_keys.h"
#include "suite/look.h"

#include <QAction>
#include <QCursor>
#include <QMenu>

#include <stdexcept>

namespace qt {

using form::Aspect;
using form::Kind;

form::Control& Binder::found(const std::string& name, int index) const {
    form::Control* control = form_.find(name, index);
    if (!control) throw std::out_of_range(form_.name() + " has no control " + name);
    return *control;
}

QWidget* Binder::operator()(const std::string& name, int index) {
    form::Control& control = found(name, index);
    switch (control.kind()) {
        case Kind::Label:
            return label(static_cast<form::Label&>(control));
        case Kind::Button:
            return button(static_cast<form::Button&>(control));
        case Kind::Panel:
            return panel(static_cast<form::Panel&>(control));
        case Kind::Option:
            return option(static_cast<form::Option&>(control));
        case Kind::Combo:
            return combo(static_cast<form::Combo&>(control));
        case Kind::ListBox:
            return listBox(static_cast<form::ListBox&>(control));
        case Kind::Slider:
            return slider(static_cast<form::Slider&>(control));
        case Kind::Picture:
            return picture(static_cast<form::Picture&>(control));
        case Kind::Group:
            return group(static_cast<form::Group&>(control));
        case Kind::Canvas:
            return canvas(static_cast<staff::Canvas&>(control));
        case Kind::TextBox:
            return textBox(static_cast<form::TextBox&>(control));
        case Kind::Menu:
            return menu(static_cast<form::Menu&>(control));
        case Kind::MenuEntry:
        case Kind::Timer:
            break;
    }
    throw std::out_of_range(name + " is not shown");
}

void Binder::follow(form::Control& control, std::function<void(Aspect)> listener) {
    connections_.push_back(control.changed.connect(std::move(listener)));
}

void Binder::common(form::Control& control, QWidget& widget) {
    widget.setObjectName(QString::fromStdString(control.id()));
    const auto show = [this, &control, &widget](Aspect aspect) {
        if (aspect == Aspect::Visible || aspect == Aspect::Enabled) {
            if (!control.visible() || !control.enabled()) keys_.leaving(widget);
            keys_.changed();
        }
        if (aspect == Aspect::Visible) widget.setVisible(control.visible());
        if (aspect == Aspect::Enabled) widget.setEnabled(control.enabled());
        if (aspect == Aspect::Caption) {
            const std::string& own = control.accessibleName();
            widget.setAccessibleName(
                QString::fromStdString(own.empty() ? control.caption() : own).trimmed());
            const QString hint = QString::fromStdString(control.hint());
            widget.setToolTip(hint);
            widget.setAccessibleDescription(hint);
        }
    };
    // A widget that will be shown with its parent must not be shown before it has one.
    if (!control.visible()) widget.setVisible(false);
    show(Aspect::Enabled);
    show(Aspect::Caption);
    follow(control, show);
}

QWidget* Binder::picture(form::Picture& control) {
    auto* widget = new PictureWidget(&window_);
    common(control, *widget);
    if (control.onClick.run) {
        widget->setFocusPolicy(Qt::TabFocus);
        widget->clicked = [&control] { control.click(); };
    }
    const auto show = [&control, widget](Aspect aspect) {
        if (aspect == Aspect::Picture) widget->setPicture(control.picture());
        if (aspect == Aspect::Colour) widget->setColour(colour(control.backColour()));
    };
    show(Aspect::Picture);
    show(Aspect::Colour);
    follow(control, show);
    return widget;
}

QWidget* Binder::canvas(staff::Canvas& control) {
    auto* widget = new StaffWidget(control, &window_);
    common(control, *widget);
    return widget;
}

QWidget* Binder::group(form::Group& control) {
    auto* frame = new GroupFrame(&window_);
    common(control, *frame);
    const auto show = [&control, frame](Aspect aspect) {
        if (aspect == Aspect::Colour) frame->setColour(colour(control.backColour()));
    };
    if (control.coloured()) show(Aspect::Colour);
    follow(control, show);
    if (control.onContext.run) {
        frame->setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(frame, &QWidget::customContextMenuRequested, frame,
                         [&control] { control.context(); });
    }
    return frame;
}

QWidget* Binder::menu(form::Menu& control) {
    auto* menu = new QMenu(&window_);
    menu->setObjectName(QString::fromStdString(control.id()));
    for (form::Control* c : form_.controls()) {
        if (c->container() != &control) continue;
        auto& entry = static_cast<form::MenuEntry&>(*c);
        auto* action = menu->addAction(QString::fromStdString(entry.caption()));
        action->setCheckable(true);
        const auto show = [&entry, action](Aspect) {
            action->setText(QString::fromStdString(entry.caption()));
            action->setChecked(entry.checked());
        };
        follow(entry, show);
        QObject::connect(action, &QAction::triggered, menu, [&entry, show] {
            entry.click();
            show(Aspect::Value);
        });
    }
    connections_.push_back(control.opened.connect([menu] { menu->popup(QCursor::pos()); }));
    return menu;
}

}  // namespace qt
