// Push buttons, panels that are buttons or bars, and options.
#include "qt/bar_widget.h"
#include "qt/binder.h"
#include "qt/painter_surface.h"
#include "qt/play_mark.h"
#include "qt/sign.h"
#include "qt/window_keys.h"
#include "suite/look.h"

#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

namespace qt {

using form::Aspect;

namespace {

/// Room beside the text of a button, in addition to the style's.
constexpr int air = 14;

/// An ampersand in a caption is a letter, not a mark for a key.
QString captionOf(const form::Control& control) {
    return QString::fromStdString(control.caption()).trimmed().replace('&', QStringLiteral("&&"));
}

}  // namespace

template <class C>
QPushButton* Binder::pushButton(C& control) {
    auto* button = new QPushButton(&window_);
    common(control, *button);
    button->setMinimumHeight(32);
    button->setAutoDefault(false);
    const auto show = [this, &control, button](Aspect aspect) {
        if (aspect == Aspect::Caption) {
            button->setText(captionOf(control));
            keys_.changed();
            button->setMinimumWidth(button->sizeHint().width() + air);
        }
        if (aspect == Aspect::Colour)
            suite::colours(
                *button,
                suite::readable(colour(control.foreColour()), colour(control.backColour())),
                colour(control.backColour()));
    };
    show(Aspect::Caption);
    if (control.coloured()) show(Aspect::Colour);
    follow(control, show);
    QObject::connect(button, &QPushButton::clicked, button, [&control] { control.click(); });
    return button;
}

QWidget* Binder::button(form::Button& control) { return pushButton(control); }

/// A button that stands for an answer shows what became of it.
QWidget* Binder::judged(QPushButton& button, form::Panel& control) {
    follow(control, [&control, &button](Aspect aspect) {
        if (aspect != Aspect::Value) return;
        const form::Verdict verdict = control.verdict();
        QIcon icon;
        if (verdict != form::Verdict::None) {
            const double ratio = button.devicePixelRatioF();
            QPixmap picture(button.iconSize() * ratio);
            picture.setDevicePixelRatio(ratio);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            paintSign(painter, QRectF(QPointF(), QSizeF(button.iconSize())).adjusted(1, 1, -1, -1),
                      verdict);
            for (const auto mode : {QIcon::Normal, QIcon::Disabled}) icon.addPixmap(picture, mode);
        }
        button.setIcon(icon);
    });
    return &button;
}

QWidget* Binder::playMark(form::Panel& control) {
    auto* mark = new PlayMark(&window_);
    common(control, *mark);
    follow(control, [&control, mark](Aspect aspect) {
        if (aspect == Aspect::Value) mark->setFlow(control.flow());
    });
    return mark;
}

QWidget* Binder::panel(form::Panel& control) {
    if (control.onClick.run) return judged(*pushButton(control), control);
    auto* bar = new BarWidget(&window_);
    common(control, *bar);
    const auto show = [&control, bar](Aspect aspect) {
        if (aspect == Aspect::Value) bar->setPercent(control.floodPercent());
        if (aspect == Aspect::Caption) bar->setMeaning(QString::fromStdString(control.hint()));
    };
    show(Aspect::Value);
    show(Aspect::Caption);
    follow(control, show);
    return bar;
}

QWidget* Binder::option(form::Option& control) {
    auto* radio = new QRadioButton(&window_);
    common(control, *radio);
    const auto show = [&control, radio](Aspect aspect) {
        if (aspect == Aspect::Caption) radio->setText(captionOf(control));
        if (aspect == Aspect::Value) radio->setChecked(control.value());
    };
    show(Aspect::Caption);
    show(Aspect::Value);
    follow(control, show);
    QObject::connect(radio, &QRadioButton::clicked, radio, [&control] { control.click(); });
    return radio;
}

}  // namespace qt
