#include "melvora/requests.h"

#include "hostlink/variant.h"

#include <QDir>

#include <algorithm>
#include <climits>

namespace melvora {

namespace {

QString qt(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

const Requests::Row* Requests::rowOf(const QString& key) {
    static constexpr Row rows[] = {
        {"APP", &Requests::app},
        {"MIDI", &Requests::midi},
        {"LANG", &Requests::lang},
        {"LOGIN", &Requests::login},
        {"READ", &Requests::read, true},
        {"STORE", &Requests::store, true},
        {"LOGMESS", &Requests::logMessage},
        {"LOGERR", &Requests::logError},
        {"MENUE", &Requests::menue},
        {"RAISE", &Requests::raise},
    };
    const auto row = std::ranges::find_if(rows, [&](const Row& r) { return key == r.key; });
    return row == std::end(rows) ? nullptr : row;
}

void Requests::answer(const QString& key, std::optional<core::Value> argument,
                      const core::Value& standard, const Reply& reply) {
    const Row* const row = rowOf(key);
    // A store that fails says why.
    const auto refused = [=, this](const std::exception& fault) {
        tell(key, fault);
        reply(false, key == "STORE" ? core::Value(fault.what()) : standard);
    };
    const auto carryOut = [=, this, argument = std::move(argument)] {
        if (!row) throw Refusal("no such key");
        if (!argument) throw Refusal("the argument is of an unknown type");
        core::Value result = standard;
        (this->*row->handler)(*argument, result);
        reply(true, result);
    };
    if (row && row->usesStore)
        return host_.inTurn(carryOut, [=](const std::exception* fault) {
            if (fault) refused(*fault);
        });
    try {
        carryOut();
    } catch (const std::exception& fault) {
        refused(fault);
    }
}

void Requests::tell(const QString& key, const std::exception& fault) {
    if (dynamic_cast<const Refusal*>(&fault))
        refuse(key, QString::fromUtf8(fault.what()));
    else
        host_.tell(fault);
}

/// Told the first, the tenth, the hundredth time ...: a caller that repeats itself fills no log.
void Requests::refuse(const QString& key, const QString& cause) {
    const QString what = "refused: " + key.left(40) + ": " + cause;
    times_ = what == refused_ ? times_ + 1 : 1;
    refused_ = what;
    int power = 1;
    while (power < times_ && power < 1'000'000'000) power *= 10;
    if (times_ > 1 && times_ != power) return;
    host_.log(LogKind::Error, times_ == 1 ? what : what + QString(" (%1 times)").arg(times_));
}

void Requests::app(const core::Value&, core::Value& result) {
    result = core::Value::Array{"melvora.exe", host_.module().executable().toStdString()};
}

void Requests::midi(const core::Value&, core::Value& result) {
    result = std::to_string(host_.midiNumber());
}

void Requests::lang(const core::Value&, core::Value& result) {
    result = host_.words().language().toStdString();
}

void Requests::login(const core::Value&, core::Value& result) {
    core::Value::Array data{host_.userKey().toStdString()};
    if (const auto& user = host_.user())
        for (const QString& field : {user->surname, user->firstName, user->matriculation})
            data.emplace_back(field.toStdString());
    result = std::move(data);
}

Records::Address Requests::addressIn(const core::Value& argument) const {
    for (std::size_t i : {0u, 1u})
        if (!argument.at(i).isText() || argument.at(i).text().empty())
            throw Refusal("executable and key must be texts");
    return {host_.userKey(), qt(argument.at(0).text()), qt(argument.at(1).text())};
}

void Requests::read(const core::Value& argument, core::Value& result) {
    auto record = host_.store().records.read(addressIn(argument));
    result = record ? std::move(*record) : core::Value(core::Value::Array{"", "NIL"});
}

void Requests::store(const core::Value& argument, core::Value&) {
    const auto address = addressIn(argument);
    const core::Value& record = argument.at(2);
    if (!record.isArray()) throw Refusal("a record must be an array");
    if (const auto size = hostlink::byteSize(argument); size > largestRecord)
        throw Refusal(QString("the record is too big: %1 bytes").arg(size));
    host_.store().records.store(address, record);
    emit host_.recordsChanged();
}

void Requests::logMessage(const core::Value& argument, core::Value&) {
    if (!argument.isText()) throw Refusal("the message must be a text");
    host_.log(LogKind::Message, qt(argument.text()));
}

void Requests::logError(const core::Value& argument, core::Value&) {
    if (argument.items().size() != 4) throw Refusal("an error has four elements");
    host_.log(LogKind::Error, QString("%1: %2 (%3, %4)")
                                  .arg(qt(argument.at(0).text()), qt(argument.at(2).text()),
                                       qt(argument.at(1).text()), qt(argument.at(3).text())));
}

void Requests::menue(const core::Value&, core::Value&) { host_.takeOver(); }

void Requests::raise(const core::Value& argument, core::Value&) {
    const QString module = qt(argument.isArray() ? argument.at(0).text() : argument.text());
    const QString file = qt(argument.at(1).text());
    if (!(module.isEmpty() && file.isEmpty()) && !ModuleProcess::known().contains(module))
        throw Refusal("no such module");
    if (!file.isEmpty() && !QDir::isAbsolutePath(file))
        throw Refusal("the file's path must be absolute");
    if (file.size() >= PATH_MAX) throw Refusal("the file's path is too long");
    emit host_.raiseWanted();
    if (!module.isEmpty() && !host_.startModule(module, file))
        throw Refusal("the file cannot be used");
}

}  // namespace melvora
