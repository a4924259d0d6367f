// Combos, lists and sliders.
#include "look/look.h"
#include "qt/binder.h"
#include "qt/painter_surface.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QSignalBlocker>
#include <QSlider>

namespace qt {

using form::Aspect;

QWidget* Binder::combo(form::Combo& control) {
    auto* box = new QComboBox(&window_);
    common(control, *box);
    box->setMaxVisibleItems(16);
    const auto show = [&control, box](Aspect aspect) {
        const QSignalBlocker quiet(box);
        if (aspect == Aspect::Items) {
            box->clear();
            for (const auto& item : control.items())
                box->addItem(QString::fromStdString(item.text).trimmed());
        }
        if (aspect == Aspect::Items || aspect == Aspect::Value)
            box->setCurrentIndex(control.listIndex());
        if (aspect == Aspect::Colour) {
            look::colours(*box, colour(control.foreColour()), colour(control.backColour()));
            box->view()->setPalette(QApplication::palette());
        }
    };
    show(Aspect::Items);
    if (control.coloured()) show(Aspect::Colour);
    follow(control, show);
    QObject::connect(box, &QComboBox::activated, box, [&control](int i) {
        if (control.usable()) control.setListIndex(i);
    });
    return box;
}

QWidget* Binder::listBox(form::ListBox& control) {
    auto* list = new QListWidget(&window_);
    common(control, *list);
    const auto show = [&control, list](Aspect aspect) {
        if (aspect != Aspect::Items) return;
        const QSignalBlocker quiet(list);
        list->clear();
        for (const auto& item : control.items()) list->addItem(QString::fromStdString(item.text));
    };
    show(Aspect::Items);
    follow(control, show);
    QObject::connect(list, &QListWidget::itemClicked, list,
                     [&control, list](QListWidgetItem* item) {
                         if (control.usable()) control.click(list->row(item));
                     });
    return list;
}

QWidget* Binder::slider(form::Slider& control) {
    auto* slider = new QSlider(Qt::Horizontal, &window_);
    common(control, *slider);
    slider->setRange(control.minimum(), control.maximum());
    const auto show = [&control, slider](Aspect aspect) {
        const QSignalBlocker quiet(slider);
        if (aspect == Aspect::Value) slider->setValue(control.value());
    };
    show(Aspect::Value);
    follow(control, show);
    QObject::connect(slider, &QSlider::valueChanged, slider, [&control](int value) {
        if (control.usable()) control.setValue(value);
    });
    return slider;
}

}  // namespace qt
