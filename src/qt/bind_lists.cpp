// Combos, lists and sliders.
#include "qt/binder.h"
#include "qt/painter_surface.h"
#include "suite/look.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>

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
                box->addItem(QString::fromStdString(item.caption()).trimmed());
        }
        if (aspect == Aspect::Items || aspect == Aspect::Value)
            box->setCurrentIndex(control.listIndex());
        if (aspect == Aspect::Colour) {
            suite::colours(*box, colour(control.foreColour()), colour(control.backColour()));
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

namespace {

/// A list whose item is chosen by a click, by Enter or by Space. When an item has left, the one
/// that took its place is the current one.
class ChoiceList final : public QListWidget {
  public:
    ChoiceList(form::ListBox& control, QWidget* parent) : QListWidget(parent), control_(control) {
        connect(this, &QListWidget::itemClicked, this,
                [this](QListWidgetItem* item) { choose(row(item)); });
    }

    void fill() {
        const int current = currentRow();
        const QSignalBlocker quiet(this);
        clear();
        for (const auto& item : control_.items()) addItem(QString::fromStdString(item.caption()));
        setCurrentRow(std::min(current, count() - 1));
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Return:
            case Qt::Key_Enter:
            case Qt::Key_Space:
                return choose(currentRow());
            default:
                return QListWidget::keyPressEvent(event);
        }
    }
    void focusInEvent(QFocusEvent* event) override {
        QListWidget::focusInEvent(event);
        if (currentRow() < 0 && count() > 0) setCurrentRow(0);
    }

  private:
    void choose(int row) {
        if (row >= 0 && control_.usable()) control_.click(row);
    }

    form::ListBox& control_;
};

}  // namespace

QWidget* Binder::listBox(form::ListBox& control) {
    auto* list = new ChoiceList(control, &window_);
    common(control, *list);
    list->fill();
    follow(control, [list](Aspect aspect) {
        if (aspect == Aspect::Items) list->fill();
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
