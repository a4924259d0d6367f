#include "suite/look.h"

#include "suite/accessible_combo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleOption>
#include <QTableView>
#include <QTextEdit>

#include <algorithm>
#include <cmath>

namespace suite {

namespace {

const QColor disabledText{0x5A, 0x5D, 0x62};

/// What the style draws a frame around, somewhat darker than the window that it takes to be there.
bool isFramed(const QWidget& widget) {
    return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QTableView*>(&widget) || qobject_cast<const QTextEdit*>(&widget);
}

/// The list of a combo opens below it and scrolls, as many rows high as the combo says; the line
/// between its parts, which is a tool bar's to the toolkit, can be seen.
class Look final : public QProxyStyle {
  public:
    Look() : QProxyStyle(QStringLiteral("Fusion")) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_ComboBox_Popup) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element == PE_IndicatorToolBarSeparator) return painter->fillRect(option->rect, muted);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

}  // namespace

void apply() {
    QApplication::setStyle(new Look);
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
        palette.setColor(QPalette::Disabled, role, disabledText);
    palette.setColor(QPalette::PlaceholderText, muted);
    QApplication::setPalette(palette);
    nameCombos();
    QFont font = QApplication::font();
    font.setPointSizeF(std::max(10.0, font.pointSizeF()) * scale());
    QApplication::setFont(font);
}

namespace {

double luminance(const QColor& colour) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor darkened(QColor colour, const QColor& ground, double wanted) {
    for (int i = 0; i < 40 && contrast(colour, ground) < wanted; ++i) colour = colour.darker(106);
    return colour;
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor readable(QColor letters, const QColor& ground) {
    constexpr double onAShade = 5;  // the style shades what is to be pressed
    return luminance(ground) < 0.3 ? letters : darkened(letters, ground, onAShade);
}

QColor edge(QColor area) { return darkened(area, page, 3); }

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
    if (background.isValid()) {
        for (const auto role : {QPalette::Button, QPalette::Base})
            palette.setColor(role, background);
        if (!isFramed(widget)) palette.setColor(QPalette::Window, background);
        for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
            palette.setColor(QPalette::Disabled, role, readable(disabledText, background));
    }
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

void darkenFrames(QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!isFramed(*widget)) continue;
        QPalette palette = widget->palette();
        palette.setColor(QPalette::Window, QColor(0xB0, 0xAE, 0xA8));
        widget->setPalette(palette);
    }
}

}  // namespace suite
