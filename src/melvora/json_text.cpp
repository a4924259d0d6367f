#include "melvora/json_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace melvora {

namespace {

struct AsJson {
    QJsonValue operator()(std::monostate) const { return {}; }
    QJsonValue operator()(bool truth) const { return truth; }
    QJsonValue operator()(std::int64_t number) const { return static_cast<qint64>(number); }
    QJsonValue operator()(double number) const {
        return QJsonObject{{"real", QString::number(number, 'g', 17)}};
    }
    QJsonValue operator()(const std::string& text) const { return QString::fromStdString(text); }
    QJsonValue operator()(const core::Value::Array& items) const {
        QJsonArray array;
        for (const auto& item : items) array.append(item.visit(*this));
        return array;
    }
};

std::optional<core::Value> valueOf(const QJsonValue& json) {
    switch (json.type()) {
        case QJsonValue::Null:
            return std::make_optional<core::Value>();
        case QJsonValue::Bool:
            return std::make_optional<core::Value>(json.toBool());
        case QJsonValue::Double:
            // A fraction that stands alone was not written by toJson.
            if (json.toVariant().typeId() != QMetaType::LongLong) return {};
            return std::make_optional<core::Value>(static_cast<std::int64_t>(json.toInteger()));
        case QJsonValue::String:
            return std::make_optional<core::Value>(json.toString().toStdString());
        case QJsonValue::Object: {
            bool isNumber = false;
            const double number = json["real"].toString().toDouble(&isNumber);
            if (!isNumber) return {};
            return std::make_optional<core::Value>(number);
        }
        case QJsonValue::Array: {
            core::Value::Array items;
            for (const auto& element : json.toArray()) {
                auto item = valueOf(element);
                if (!item) return {};
                items.push_back(std::move(*item));
            }
            return core::Value(std::move(items));
        }
        case QJsonValue::Undefined:
            break;
    }
    return {};
}

}  // namespace

QString toJson(const core::Value& value) {
    const QJsonArray wrapped{value.visit(AsJson{})};
    const QByteArray text = QJsonDocument(wrapped).toJson(QJsonDocument::Compact);
    QString json = QString::fromUtf8(text.mid(1, text.size() - 2));
    // The database gives these two back as U+FFFD; outside of texts they cannot stand.
    return json.replace(QChar(0xFFFE), "\\ufffe").replace(QChar(0xFFFF), "\\uffff");
}

std::optional<core::Value> fromJson(const QString& text) {
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson("[" + text.toUtf8() + "]", &error);
    if (error.error != QJsonParseError::NoError || document.array().size() != 1) return {};
    return valueOf(document.array().first());
}

}  // namespace melvora
