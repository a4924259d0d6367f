// Labels and read-only texts.
#include "look/look.h"
#include "qt/binder.h"
#include "qt/painter_surface.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace qt {

using form::Aspect;

QWidget* Binder::label(form::Label& control) {
    auto* label = new QLabel(&window_);
    common(control, *label);
    label->setTextFormat(Qt::PlainText);
    const auto show = [&control, label](Aspect aspect) {
        if (aspect == Aspect::Caption)
            label->setText(QString::fromStdString(control.caption()).trimmed());
        if (aspect == Aspect::Colour) {
            look::colours(*label, colour(control.foreColour()), colour(control.backColour()));
            label->setAutoFillBackground(control.backColour() != base::colours::white);
        }
    };
    show(Aspect::Caption);
    if (control.coloured()) show(Aspect::Colour);
    follow(control, show);
    return label;
}

QWidget* Binder::textBox(form::TextBox& control) {
    return control.size() == form::TextBox::Size::Line ? textLine(control) : textPage(control);
}

QWidget* Binder::textLine(form::TextBox& control) {
    auto* text = new QLineEdit(&window_);
    common(control, *text);
    const auto show = [&control, text](Aspect aspect) {
        const QString wanted = QString::fromStdString(control.text());
        if (aspect == Aspect::Value && text->text() != wanted) text->setText(wanted);
    };
    show(Aspect::Value);
    follow(control, show);
    QObject::connect(text, &QLineEdit::textEdited, text,
                     [&control](const QString& written) { control.text = written.toStdString(); });
    return text;
}

QWidget* Binder::textPage(form::TextBox& control) {
    auto* text = new QPlainTextEdit(&window_);
    common(control, *text);
    text->setReadOnly(true);
    const auto show = [&control, text](Aspect aspect) {
        if (aspect == Aspect::Value) text->setPlainText(QString::fromStdString(control.text()));
    };
    show(Aspect::Value);
    follow(control, show);
    return text;
}

}  // namespace qt
