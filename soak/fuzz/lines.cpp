#include "soak/fuzz/lines.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusSignature>
#include <QDBusVariant>
#include <QPoint>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace soak {

namespace {

using ListOfLists = QList<QVariantList>;

/// As D-Bus has it, which ends a text at a NUL.
QString textOf(std::string_view content) {
    const auto bytes = QByteArray::fromPercentEncoding(
        QByteArray(content.data(), static_cast<qsizetype>(content.size())));
    return QString::fromUtf8(bytes.constData());
}

template <class Number>
QVariant number(std::string_view content) {
    Number n{};
    std::from_chars(content.data(), content.data() + content.size(), n);
    return QVariant::fromValue(n);
}

struct Described {
    std::string operator()(std::monostate) const { return "y 0\n"; }
    std::string operator()(bool truth) const { return truth ? "b 1\n" : "b 0\n"; }
    std::string operator()(std::int64_t n) const { return "x " + std::to_string(n) + "\n"; }
    std::string operator()(double n) const { return "d " + core::Value(n).text() + "\n"; }
    std::string operator()(const std::string& s) const {
        std::string line = "s ";
        for (const char c : s)
            if (c == '%')
                line += "%25";
            else if (c == '\n')
                line += "%0A";
            else
                line += c;
        return line + "\n";
    }
    std::string operator()(const core::Value::Array& items) const {
        std::string lines = "[\n";
        for (const auto& item : items) lines += described(item);
        return lines + "]\n";
    }
};

}  // namespace

std::string_view Lines::line() {
    const auto end = std::min(text_.find('\n'), text_.size());
    const auto line = text_.substr(0, end);
    text_.remove_prefix(std::min(end + 1, text_.size()));
    return line;
}

QString Lines::text() { return textOf(line()); }

/// Whether a container ends here, with its sign or with the text.
bool Lines::closed() {
    if (text_.empty()) return true;
    if (text_.front() != ']') return false;
    line();
    return true;
}

QVariantList Lines::list(int room) {
    QVariantList list;
    while (!closed()) list.append(value(room));
    return list;
}

QVariant Lines::value(int room) {
    const std::string_view whole = line();
    if (whole.empty()) return QString("");
    const char kind = whole.front();
    const std::string_view content = whole.substr(std::min<std::size_t>(2, whole.size()));
    switch (kind) {
        case 's':
            return textOf(content);
        case 'b':
            return content == "1";
        case 'y':
            return number<uchar>(content);
        case 'n':
            return number<short>(content);
        case 'q':
            return number<ushort>(content);
        case 'i':
            return number<int>(content);
        case 'u':
            return number<uint>(content);
        case 'x':
            return number<qlonglong>(content);
        case 't':
            return number<qulonglong>(content);
        case 'd':
            return number<double>(content);
        case 'o':
            return QVariant::fromValue(QDBusObjectPath("/a"));
        case 'g':
            return QVariant::fromValue(QDBusSignature("s"));
        case 'Y':
            return QByteArray(content.data(), static_cast<qsizetype>(content.size()));
        case 'P':
            return QPoint(1, 2);
        case 'I':
            return QVariant::fromValue(QList<int>{1, 2});
        default:
            break;
    }
    if (room < 4) return textOf(whole);
    switch (kind) {
        case 'v':
            return QVariant::fromValue(QDBusVariant(value(room - 1)));
        case '[':
            return list(room - 2);
        case 'S': {
            QStringList texts;
            while (!closed()) texts.append(text());
            return texts;
        }
        case '{': {
            QVariantMap map;
            while (!closed()) {
                const QString key = text();
                map.insert(key, value(room - 3));
            }
            return map;
        }
        case 'A': {
            static const QMetaType known = qDBusRegisterMetaType<ListOfLists>();
            ListOfLists lists;
            while (!closed()) lists.append(list(room - 3));
            return known.isValid() ? QVariant::fromValue(lists) : QVariant();
        }
        default:
            return textOf(whole);
    }
}

std::string described(const core::Value& value) { return value.visit(Described{}); }

bool same(const core::Value& a, const core::Value& b) {
    const auto real = [](const core::Value& value) {
        return value.visit([](const auto& held) -> const double* {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, double>) return &held;
            return nullptr;
        });
    };
    const double *x = real(a), *y = real(b);
    if (x && y && std::isnan(*x) && std::isnan(*y)) return true;
    if (!a.isArray() || !b.isArray()) return a == b;
    return std::ranges::equal(a.items(), b.items(), same);
}

}  // namespace soak
