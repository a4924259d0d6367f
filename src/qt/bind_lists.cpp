// Combos, lists and sliders.
#include "qt/binder.h"
#include "qt/painter_surface.h"
#include "suite/look.h"
#include "suite/wheel.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QStylePainter>

#include <algorithm>

namespace qt {

using form::Aspect;

namespace {

/// Every row holds the number of its item: some items stand on top, and again in their place.
class ChoiceBox final : public QComboBox {
  public:
    ChoiceBox(form::Combo& control, QWidget* parent) : QComboBox(parent), control_(control) {
        setMaxVisibleItems(15);
        connect(this, &QComboBox::activated, this, [this](int row) { choose(row); });
    }

    void fill() {
        const QSignalBlocker quiet(this);
        clear();
        const auto add = [this](int i) {
            addItem(QString::fromStdString(control_.shown(i)).trimmed(), i);
        };
        for (const int i : control_.onTop()) add(i);
        if (count() > 0) insertSeparator(count());
        for (int i = 0; i < control_.count(); ++i) add(i);
        showChosen();
    }

    /// Of two rows of the item the one that the user has chosen, or else the upper one.
    void showChosen() {
        const QSignalBlocker quiet(this);
        if (!isShown()) setCurrentIndex(findData(control_.listIndex()));
    }

    /// Paints the closed list flat on this ground, as dark as it is said to be.
    void setGround(const QColor& ground) {
        ground_ = ground;
        update();
    }

    /// Open, it is as wide as its longest item.
    void showPopup() override {
        const int bar = view()->verticalScrollBar()->sizeHint().width();
        view()->setMinimumWidth(view()->sizeHintForColumn(0) + bar);
        QComboBox::showPopup();
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        if (!ground_.isValid()) return QComboBox::paintEvent(event);
        QStylePainter painter(this);
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QColor letters = palette().color(QPalette::ButtonText);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(hasFocus() ? suite::text : suite::edge(ground_), hasFocus() ? 2 : 1));
        painter.setBrush(ground_);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
        const QRectF arrow =
            style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
        painter.setPen(Qt::NoPen);
        painter.setBrush(letters);
        painter.translate(arrow.center());
        painter.drawPolygon(QPolygonF({{-4, -2}, {4, -2}, {0, 3}}));
    }
    /// Letters move to what begins with them without telling that it is chosen.
    void keyPressEvent(QKeyEvent* event) override {
        QComboBox::keyPressEvent(event);
        if (currentIndex() >= 0 && !isShown()) choose(currentIndex());
    }

  private:
    bool isShown() const {
        return currentIndex() >= 0 && currentData().toInt() == control_.listIndex();
    }
    void choose(int row) {
        if (control_.usable()) control_.setListIndex(itemData(row).toInt());
    }

    form::Combo& control_;
    QColor ground_;
};

}  // namespace

QWidget* Binder::combo(form::Combo& control) {
    auto* box = new ChoiceBox(control, &window_);
    common(control, *box);
    suite::wheelNeedsFocus(*box);
    const auto show = [&control, box](Aspect aspect) {
        if (aspect == Aspect::Items) box->fill();
        if (aspect == Aspect::Value) box->showChosen();
        if (aspect == Aspect::Colour) {
            suite::colours(*box, colour(control.foreColour()), colour(control.backColour()));
            box->setGround(colour(control.backColour()));
            box->view()->setPalette(QApplication::palette());
        }
    };
    show(Aspect::Items);
    if (control.coloured()) show(Aspect::Colour);
    follow(control, show);
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
    suite::wheelNeedsFocus(*slider);
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
