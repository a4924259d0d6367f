#include "hostlink/dbus_host.h"

#include "hostlink/variant.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QUuid>

#include <sys/stat.h>
#include <unistd.h>

namespace hostlink {

namespace {

QString qt(const std::string& text) { return QString::fromStdString(text); }

QVariant carried(const core::Value& value) {
    if (depth(value) > maximumDepth)
        throw core::HostGone("the value is nested too deep for a call");
    if (byteSize(value) > maximumBytes) throw core::HostGone("the value is too big for a call");
    return QVariant::fromValue(QDBusVariant(toVariant(value)));
}

/// A stranger may serve where the user's host should.
bool belongsToAnother(const std::string& file) {
    struct stat about {};
    return lstat(file.c_str(), &about) == 0 && about.st_uid != getuid();
}

}  // namespace

DbusHost::DbusHost(std::string address, std::chrono::milliseconds timeout)
    : address_(std::move(address)),
      timeout_(timeout),
      name_(QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString()) {}

DbusHost::~DbusHost() { QDBusConnection::disconnectFromPeer(qt(name_)); }

void DbusHost::connect() {
    if (QDBusConnection(qt(name_)).isConnected()) return;
    QDBusConnection::disconnectFromPeer(qt(name_));
    if (const auto socket = socketPath(address_); socket && belongsToAnother(*socket))
        throw core::HostGone("the socket " + *socket + " belongs to another user");
    const auto connection = QDBusConnection::connectToPeer(qt(address_), qt(name_));
    if (!connection.isConnected())
        throw core::HostGone("no host at " + address_ + ": " +
                             connection.lastError().message().toStdString());
}

bool DbusHost::request(const std::string& key, const core::Value& argument, core::Value& result) {
    auto call = QDBusMessage::createMethodCall({}, objectPath, interfaceName, methodName);
    call << qt(key) << carried(argument) << carried(result);
    connect();
    const QDBusMessage reply =
        QDBusConnection(qt(name_)).call(call, QDBus::Block, static_cast<int>(timeout_.count()));
    if (reply.type() != QDBusMessage::ReplyMessage) {
        QDBusConnection::disconnectFromPeer(qt(name_));
        throw core::HostGone(key + ": " + reply.errorMessage().toStdString());
    }
    if (reply.signature() != QLatin1String("bv"))
        throw core::HostGone(key + ": the answer has an unknown form");
    auto value = fromVariant(reply.arguments().at(1));
    if (!value) throw core::HostGone(key + ": the answer holds an unknown type");
    result = std::move(*value);
    return reply.arguments().at(0).toBool();
}

}  // namespace hostlink
