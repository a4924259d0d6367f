#include "qt/window_keys.h"

#include "qt/picture_widget.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QTimer>

#include <algorithm>

namespace qt {

namespace {

constexpr char16_t none = 0;

/// A text without the marks of letters.
QString plain(const QString& text) {
    QString out;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && ++i == text.size()) break;
        out += text[i];
    }
    return out;
}

/// The letter that is marked in a text, small.
QChar letterOf(const QString& text) {
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[++i] != '&') return text[i].toLower();
    }
    return none;
}

QString marked(const QString& text, QChar letter) {
    QString out;
    bool done = letter == QChar(none);
    for (const QChar c : text) {
        if (c == '&' || (!done && c.toLower() == letter)) out += '&';
        done = done || c.toLower() == letter;
        out += c;
    }
    return out;
}

/// The first letter of a word if one is free, any other if not.
QChar freeLetter(const QString& text, const QSet<QChar>& taken) {
    const auto usable = [&](QChar c) {
        return c.isLetter() && c.unicode() < 128 && !taken.contains(c.toLower());
    };
    for (int i = 0; i < text.size(); ++i)
        if (usable(text[i]) && (i == 0 || text[i - 1].isSpace())) return text[i].toLower();
    for (const QChar c : text)
        if (usable(c)) return c.toLower();
    return none;
}

/// A text that may bear a letter.
struct Bearer {
    QString text;
    std::function<void(const QString&)> set;
};

/// What bears a letter in a window: buttons first, then what labels name.
std::vector<Bearer> bearers(const QWidget& window) {
    std::vector<Bearer> buttons, labels;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isHidden() || widget->property("ownKey").toBool()) continue;
        if (auto* button = qobject_cast<QPushButton*>(widget))
            buttons.push_back({button->text(), [button](const QString& t) { button->setText(t); }});
        auto* label = qobject_cast<QLabel*>(widget);
        if (label && label->buddy())
            labels.push_back({label->text(), [label](const QString& t) { label->setText(t); }});
    }
    buttons.insert(buttons.end(), labels.begin(), labels.end());
    return buttons;
}

bool isUsable(const QWidget* widget) {
    return widget && widget->isVisible() && widget->isEnabled();
}

}  // namespace

void giveLetters(QWidget& window) {
    const std::vector<Bearer> all = bearers(window);
    QSet<QChar> taken;
    std::vector<QChar> letters;
    for (const Bearer& b : all) {
        QChar letter = letterOf(b.text);
        if (taken.contains(letter)) letter = none;
        if (letter != QChar(none)) taken.insert(letter);
        letters.push_back(letter);
    }
    for (std::size_t i = 0; i < all.size(); ++i) {
        const QString text = plain(all[i].text);
        if (letters[i] == QChar(none)) {
            letters[i] = freeLetter(text, taken);
            taken.insert(letters[i]);
        }
        if (const QString now = marked(text, letters[i]); now != all[i].text) all[i].set(now);
    }
}

WindowKeys::WindowKeys(QWidget& window) : QObject(&window), window_(window) {}

bool WindowKeys::press(QWidget& widget) {
    if (byTab_ != &widget) return false;
    if (auto* button = qobject_cast<QPushButton*>(&widget)) {
        button->click();
        return true;
    }
    auto* picture = dynamic_cast<PictureWidget*>(&widget);
    if (!picture || !picture->clicked) return false;
    picture->clicked();
    return true;
}

void WindowKeys::focused(QWidget& widget, Qt::FocusReason reason) {
    switch (reason) {
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            byTab_ = &widget;
            break;
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            break;
        default:
            byTab_ = nullptr;
    }
}

void WindowKeys::begin() {
    seeking_ = true;
    window_.setFocus(Qt::OtherFocusReason);
    changed();
}

/// The toolkit would go to the next control in line, whatever that does.
void WindowKeys::leaving(const QWidget& widget) {
    QWidget* here = window_.focusWidget();
    if (!here || here == &window_ || (here != &widget && !widget.isAncestorOf(here))) return;
    left_ = here;
    leftByTab_ = byTab_ == here;
    seeking_ = true;
    window_.setFocus(Qt::OtherFocusReason);
    changed();
}

void WindowKeys::changed() {
    if (settling_) return;
    settling_ = true;
    QTimer::singleShot(0, this, [this] { settle(); });
}

void WindowKeys::settle() {
    settling_ = false;
    if (!window_.isVisible()) return;
    giveLetters(window_);
    if (!seeking_) return;
    if (window_.focusWidget() != &window_) {
        seeking_ = false;
        return;
    }
    const auto step = std::ranges::find_if(steps_, isUsable);
    QWidget* next = isUsable(left_) ? left_.data() : step != steps_.end() ? *step : nullptr;
    if (!next) return;
    seeking_ = false;
    next->setFocus(next == left_ && leftByTab_ ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

}  // namespace qt
