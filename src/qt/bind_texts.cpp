// Labels and read-only texts.
#include "qt/binder.h"
#include "qt/painter_surface.h"
#include "suite/look.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

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
            const bool inArea = control.container() && control.container()->coloured();
            const QColor ground =
                colour(inArea ? control.container()->backColour() : control.backColour());
            suite::colours(*label, suite::readable(colour(control.foreColour()), ground),
                           colour(control.backColour()));
            label->setAutoFillBackground(control.backColour() != base::colours::white);
        }
    };
    show(Aspect::Caption);
    if (control.coloured()) show(Aspect::Colour);
    follow(control, show);
    return label;
}

template <class W>
QWidget* Binder::textPage(W* text, form::TextBox& control, void (W::*setText)(const QString&)) {
    common(control, *text);
    text->setReadOnly(true);
    const auto show = [&control, text, setText](Aspect aspect) {
        if (aspect == Aspect::Value) (text->*setText)(QString::fromStdString(control.text()));
    };
    show(Aspect::Value);
    follow(control, show);
    return text;
}

QWidget* Binder::textBox(form::TextBox& control) {
    switch (control.size()) {
        case form::TextBox::Size::Line:
            return textLine(control);
        case form::TextBox::Size::Page:
            return textPage(new QPlainTextEdit(&window_), control, &QPlainTextEdit::setPlainText);
        case form::TextBox::Size::Rich:
            return textPage(new QTextEdit(&window_), control, &QTextEdit::setHtml);
    }
    return nullptr;
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

}  // namespace qt
