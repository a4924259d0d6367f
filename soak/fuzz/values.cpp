// What a damaged database or a foreign variable of the environment holds.
#include "hostlink/host_address.h"
#include "melvora/json_text.h"
#include "soak/fuzz/law.h"
#include "soak/fuzz/lines.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace soak {

namespace {

/// Whether a value says what the text does.
struct Says {
    QJsonValue json;
    bool operator()(std::monostate) const { return json.isNull(); }
    bool operator()(bool truth) const { return json.isBool() && json.toBool() == truth; }
    bool operator()(std::int64_t number) const {
        return json.isDouble() && json.toDouble() == static_cast<double>(number);
    }
    bool operator()(double number) const {
        bool isNumber = false;
        const double said = json["real"].toString().toDouble(&isNumber);
        return json.isObject() && isNumber && same(said, number);
    }
    bool operator()(const std::string& text) const {
        return json.isString() && json.toString().toUtf8() == QByteArray::fromStdString(text);
    }
    bool operator()(const core::Value::Array& items) const {
        const QJsonArray array = json.toArray();
        if (!json.isArray() || array.size() != static_cast<qsizetype>(items.size())) return false;
        for (std::size_t i = 0; i < items.size(); ++i)
            if (!items[i].visit(Says{array.at(static_cast<qsizetype>(i))})) return false;
        return true;
    }
};

void tryJson(const QString& text) {
    const auto value = melvora::fromJson(text);
    if (!value) return;
    const auto document = QJsonDocument::fromJson(("[" + text + "]").toUtf8());
    law(value->visit(Says{document.array().first()}), "the value is what the text says");
    const auto again = melvora::fromJson(melvora::toJson(*value));
    law(again && same(*again, *value), "a value that was read can be kept");
}

/// setenv() would keep every text that it was ever given.
void setVariable(const std::string& text) {
    static char variable[8192] = "MELVORA_HOST_ADDRESS=";
    static char* const value = variable + std::strlen(variable);
    static const bool known = putenv(variable) == 0;
    law(known && text.size() < 8000, "the variable can be set");
    std::memcpy(value, text.c_str(), text.size() + 1);
}

void tryAddress(const std::string& text) {
    hostlink::socketPath(text);
    const std::string path = text.substr(0, text.find('\0'));
    const std::string address = hostlink::addressOf(path);
    law(address.find_first_of(",;") == address.npos, "one address");
    law(hostlink::socketPath(address) == path, "the socket it was made of");
    setVariable(path);
    law(hostlink::addressIsNamed() == !path.empty(), "named when it is there");
    law(!hostlink::hostAddress().empty(), "there is always an address");
}

}  // namespace

}  // namespace soak

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    soak::tryJson(QString::fromStdString(text));
    soak::tryAddress(text);
    return 0;
}
