#include "support/painted.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QSlider>
#include <QTableView>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int ratio = 2;  ///< pixels to one of the window: thin strokes reach their colour

double lightness(QRgb colour) {
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) +
           0.0722 * part(qBlue(colour));
}

double contrast(QRgb a, QRgb b) {
    const auto [dark, light] = std::minmax({lightness(a), lightness(b)});
    return (light + 0.05) / (dark + 0.05);
}

QImage painted(QWidget& window) {
    QImage image(window.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    window.render(&image);
    return image;
}

/// Where a control writes; nothing where it has no letters.
QRect lettersOf(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return label->text().isEmpty() ? QRect() : label->rect();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        return button->text().isEmpty()
                   ? QRect()
                   : button->rect().adjusted(button->isCheckable() ? 24 : 6, 5, -6, -5);
    if (const auto* combo = qobject_cast<const QComboBox*>(&control))
        return combo->currentText().isEmpty() ? QRect() : combo->rect().adjusted(6, 5, -26, -5);
    return {};
}

/// Greatest contrast with the colour that fills most of an area.
double contrastWithin(const QImage& image, const QRect& area) {
    QMap<QRgb, int> count;
    for (int y = area.top() * ratio; y <= area.bottom() * ratio; ++y)
        for (int x = area.left() * ratio; x <= area.right() * ratio; ++x)
            ++count[image.pixel(x, y)];
    const auto ground = std::ranges::max_element(count);
    double greatest = 1;
    for (auto found = count.keyBegin(); found != count.keyEnd(); ++found)
        greatest = std::max(greatest, contrast(*found, ground.key()));
    return greatest;
}

bool isFramed(const QWidget& control) {
    if (const auto* tool = qobject_cast<const QToolButton*>(&control)) return !tool->autoRaise();
    return qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QComboBox*>(&control) ||
           qobject_cast<const QAbstractButton*>(&control) ||
           qobject_cast<const QTableView*>(&control) || qobject_cast<const QSlider*>(&control);
}

/// Greatest contrast along a line from outside a control into it, at half its height.
double contrastOfFrame(const QImage& image, const QRect& area) {
    const int y = area.center().y() * ratio;
    const QRgb outside = image.pixel(std::max(0, area.left() - 2) * ratio, y);
    double greatest = 1;
    for (int x = std::max(0, area.left() - 1) * ratio; x < (area.left() + 5) * ratio; ++x)
        greatest = std::max(greatest, contrast(image.pixel(x, y), outside));
    return greatest;
}

}  // namespace

void expectContrast(QWidget& window) {
    const QImage image = painted(window);
    for (const auto* control : window.findChildren<QWidget*>()) {
        if (control->window() != &window || control->visibleRegion().isEmpty()) continue;
        const auto inWindow = [&](const QRect& area) {
            return QRect(control->mapTo(&window, area.topLeft()), area.size()) & window.rect();
        };
        const auto name = [&] {
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            return control->objectName().toStdString() + " " + control->metaObject()->className() +
                   (button ? " " + button->text().toStdString() : "");
        };
        if (const QRect letters = inWindow(lettersOf(*control)); !letters.isEmpty())
            EXPECT_GE(contrastWithin(image, letters), 4.5) << "letters of " << name();
        if (isFramed(*control) && control->isEnabled())
            EXPECT_GE(contrastOfFrame(image, inWindow(control->rect())), 3)
                << "frame of " << name();
    }
}
