// Calls of the host's one operation as any program of the user's may make them: the key in the
// first line, then the argument and the default, as soak/fuzz/lines.h reads them.
#include "hostlink/host_address.h"
#include "hostlink/variant.h"
#include "melvora/json_text.h"
#include "melvora/server.h"
#include "settingsfile/settings_file.h"
#include "soak/fuzz/law.h"
#include "soak/fuzz/lines.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

namespace soak {

namespace {

using core::Value;

/// A host that serves a caller in the same process, over a socket as any other.
class Stage {
  public:
    Stage() {
        law(caller_.isConnected(), "a caller can come");
        // Until it is taken in there is no object.
        while (!ask("LANG", "", "")) QCoreApplication::processEvents();
    }

    struct Reply {
        bool carriedOut;
        Value result;
    };
    std::optional<Reply> ask(const QString& key, const QVariant& argument,
                             const QVariant& standard) {
        auto call = QDBusMessage::createMethodCall({}, hostlink::objectPath,
                                                   hostlink::interfaceName, hostlink::methodName);
        call << key;
        for (const QVariant& value : {argument, standard})
            call << QVariant::fromValue(QDBusVariant(value));
        QDBusPendingCallWatcher pending(caller_.asyncCall(call));
        QEventLoop loop;
        QObject::connect(&pending, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        loop.exec();
        const QDBusMessage reply = pending.reply();
        if (reply.type() != QDBusMessage::ReplyMessage) return {};
        const auto result = hostlink::fromVariant(reply.arguments().at(1));
        law(reply.signature() == QLatin1String("bv") && result, "the result is a value");
        return Reply{reply.arguments().at(0).toBool(), *result};
    }

    /// As if it had just been set up.
    void clear() {
        for (const char* table : {"records", "log"})
            host_.store().database.run(QString("DELETE FROM %1").arg(table));
    }

  private:
    QTemporaryDir folder_;
    melvora::Words words_{suite::languageFolder()};
    melvora::Host host_{{folder_.path(), "unix:path=/nowhere", {}}, words_};
    melvora::Requests requests_{host_};
    std::string socket_ = folder_.filePath("host").toStdString();
    melvora::Server server_{socket_, requests_};
    QDBusConnection caller_ = QDBusConnection::connectToPeer(
        QString::fromStdString(hostlink::addressOf(socket_)), "caller");
};

/// Starting the module is not for here.
bool startsModule(const QString& key, const Value& argument) {
    const std::string module = argument.isArray() ? argument.at(0).text() : argument.text();
    const QString file = QString::fromStdString(argument.at(1).text());
    return key == "RAISE" && melvora::ModuleProcess::known().contains(QString(module.c_str())) &&
           (file.isEmpty() ||
            settingsfile::look(file.toStdString()).trouble == settingsfile::Trouble::None);
}

/// Whether the host leaves the result alone.
bool silent(const QString& key, bool carriedOut) {
    static const QStringList telling{"APP", "MIDI", "LANG", "LOGIN", "READ"};
    return carriedOut ? !telling.contains(key) : key != "STORE";
}

void expectCarried(const Value& value) {
    const auto back = hostlink::fromVariant(hostlink::toVariant(value));
    law(back && same(*back, value), "a value comes back from a variant");
    const auto read = melvora::fromJson(melvora::toJson(value));
    law(read && same(*read, value), "a value comes back from the store's text");
    law(hostlink::depth(value) <= hostlink::maximumDepth, "no deeper than a call may be");
}

void tryCall(Stage& stage, std::string_view text) {
    Lines lines(text);
    const QString key = lines.text();
    const QVariant argument = lines.value(), standard = lines.value();
    const auto given = hostlink::fromVariant(argument), kept = hostlink::fromVariant(standard);
    for (const auto& value : {given, kept})
        if (value) expectCarried(*value);
    if (startsModule(key, given.value_or(Value()))) return;

    const auto reply = stage.ask(key, argument, standard);
    law(reply.has_value(), "there is an answer");
    expectCarried(reply->result);
    if (silent(key, reply->carriedOut))
        law(same(reply->result, kept.value_or(Value())), "the default stands");
    if (key != "STORE") return;
    const QVariant address = hostlink::toVariant(
        Value::Array{given.value_or(Value()).at(0), given.value_or(Value()).at(1)});
    const auto read = stage.ask("READ", address, "");
    law(read.has_value(), "there is a second answer");
    if (reply->carriedOut)
        law(read->carriedOut && same(read->result, given->at(2)), "what is stored can be read");
    else
        law(!reply->result.text().empty(), "why it was refused is said");
    stage.clear();
}

Stage* stage = nullptr;

}  // namespace

}  // namespace soak

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    // Both live to the end of the process.
    new QCoreApplication(*argc, *argv);
    soak::stage = new soak::Stage;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    soak::tryCall(*soak::stage, {reinterpret_cast<const char*>(data), size});
    static int runs = 0;
    if (++runs % 500 == 0) soak::stage->clear();
    return 0;
}
