#include "hostlink/variant.h"

#include <QDBusArgument>
#include <QDBusVariant>

#include <algorithm>
#include <limits>

namespace hostlink {

namespace {

struct AsVariant {
    QVariant operator()(std::monostate) const { return QVariant::fromValue<uchar>(0); }
    QVariant operator()(bool truth) const { return truth; }
    QVariant operator()(std::int64_t number) const {
        return QVariant::fromValue<qlonglong>(number);
    }
    QVariant operator()(double number) const { return number; }
    QVariant operator()(const std::string& text) const { return QString::fromUtf8(text.c_str()); }
    QVariant operator()(const core::Value::Array& items) const {
        if (!items.empty() && std::ranges::all_of(items, &core::Value::isText)) return texts(items);
        QVariantList list;
        list.reserve(static_cast<qsizetype>(items.size()));
        for (const auto& item : items) list.append(toVariant(item));
        return list;
    }

  private:
    static QStringList texts(const core::Value::Array& items) {
        QStringList list;
        list.reserve(static_cast<qsizetype>(items.size()));
        for (const auto& item : items) list.append(QString::fromUtf8(item.text().c_str()));
        return list;
    }
};

core::Value fromTexts(const QStringList& list) {
    core::Value::Array items;
    items.reserve(static_cast<std::size_t>(list.size()));
    for (const QString& text : list) items.emplace_back(text.toStdString());
    return core::Value(std::move(items));
}

std::optional<core::Value> fromList(const QVariantList& list) {
    core::Value::Array items;
    items.reserve(static_cast<std::size_t>(list.size()));
    for (const QVariant& element : list) {
        auto item = fromVariant(element);
        if (!item) return {};
        items.push_back(std::move(*item));
    }
    return core::Value(std::move(items));
}

std::optional<core::Value> fromArgument(const QDBusArgument& argument) {
    if (argument.currentSignature() == QLatin1String("as"))
        return fromTexts(qdbus_cast<QStringList>(argument));
    if (argument.currentSignature() != QLatin1String("av")) return {};
    return fromList(qdbus_cast<QVariantList>(argument));
}

std::optional<core::Value> fromUnsigned(qulonglong number) {
    if (number > static_cast<qulonglong>(std::numeric_limits<std::int64_t>::max())) return {};
    return std::make_optional<core::Value>(static_cast<std::int64_t>(number));
}

}  // namespace

QVariant toVariant(const core::Value& value) { return value.visit(AsVariant{}); }

std::optional<core::Value> fromVariant(const QVariant& variant) {
    const QMetaType type = variant.metaType();
    if (type == QMetaType::fromType<QDBusVariant>())
        return fromVariant(variant.value<QDBusVariant>().variant());
    if (type == QMetaType::fromType<QDBusArgument>())
        return fromArgument(variant.value<QDBusArgument>());
    switch (type.id()) {
        case QMetaType::Bool:
            return std::make_optional<core::Value>(variant.toBool());
        case QMetaType::UChar:
            if (variant.value<uchar>() == 0) return std::make_optional<core::Value>();
            return std::make_optional<core::Value>(
                static_cast<std::int64_t>(variant.value<uchar>()));
        case QMetaType::Short:
        case QMetaType::Int:
        case QMetaType::LongLong:
            return std::make_optional<core::Value>(static_cast<std::int64_t>(variant.toLongLong()));
        case QMetaType::UShort:
        case QMetaType::UInt:
        case QMetaType::ULongLong:
            return fromUnsigned(variant.toULongLong());
        case QMetaType::Double:
            return std::make_optional<core::Value>(variant.toDouble());
        case QMetaType::QString:
            return std::make_optional<core::Value>(variant.toString().toStdString());
        case QMetaType::QStringList:
            return fromTexts(variant.toStringList());
        case QMetaType::QVariantList:
            return fromList(variant.toList());
        default:
            return {};
    }
}

int depth(const core::Value& value) {
    if (!value.isArray()) return 0;
    int deepest = 0;
    for (const auto& item : value.items()) deepest = std::max(deepest, depth(item));
    return deepest + 1;
}

std::size_t byteSize(const core::Value& value) {
    struct Size {
        std::size_t operator()(const std::string& text) const { return text.size(); }
        std::size_t operator()(const core::Value::Array& items) const {
            std::size_t sum = 0;
            for (const auto& item : items) sum += byteSize(item);
            return sum;
        }
        std::size_t operator()(std::monostate) const { return 0; }
        std::size_t operator()(bool) const { return 0; }
        std::size_t operator()(std::int64_t) const { return 0; }
        std::size_t operator()(double) const { return 0; }
    };
    return 16 + value.visit(Size{});
}

}  // namespace hostlink
