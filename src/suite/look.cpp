#include "suite/look.h"

#include <QApplication>
#include <QScreen>
#include <QStyleFactory>

#include <algorithm>

namespace suite {

void apply() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette;
    palette.setColor(QPalette::Window, page);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Button, QColor(0xEC, 0xEA, 0xE5));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x93, 0x95, 0x99));
    QApplication::setPalette(palette);
    QFont font = QApplication::font();
    font.setPointSizeF(std::max(10.0, font.pointSizeF()) * scale());
    QApplication::setFont(font);
}

double scale() {
    const double height = QGuiApplication::primaryScreen()->availableGeometry().height();
    return std::clamp(height / 1030, 1.0, 1.4);
}

void font(QWidget& widget, double factor, QFont::Weight weight) {
    QFont font = widget.font();
    font.setPointSizeF(QApplication::font().pointSizeF() * factor);
    font.setWeight(weight);
    widget.setFont(font);
}

void colours(QWidget& widget, const QColor& letters, const QColor& background) {
    QPalette palette = widget.palette();
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, role, letters);
    if (background.isValid())
        for (const auto role : {QPalette::Window, QPalette::Button, QPalette::Base})
            palette.setColor(role, background);
    widget.setPalette(palette);
}

void leadingButton(QWidget& button) {
    font(button, 1, QFont::Bold);
    button.setMinimumWidth(120);
}

void quiet(QWidget& label) {
    font(label, 0.9);
    colours(label, muted);
}

}  // namespace suite
