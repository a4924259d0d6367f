#include "melvora/server.h"

#include "hostlink/host_address.h"
#include "hostlink/variant.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>

#include <dbus/dbus.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace melvora {

namespace {

/// The server listens before it can take a caller in, and would lose one who comes in between. So
/// it listens under this name and takes the known one when it is ready.
std::string provisional(const std::string& socketPath) { return socketPath + ".new"; }

/// The largest record, with what a call adds to it.
constexpr long longestCall = long{16} << 20;
/// A caller that fetches none of so many bytes of answers is let go.
constexpr long mostUnread = long{16} << 20;

DBusConnection* handle(const QDBusConnection& connection) {
    return static_cast<DBusConnection*>(connection.internalPointer());
}

/// The one module, and hosts that hand something over, are a few. Never so many that descriptors
/// run out: then the server could not even turn a caller away, and would try without end.
qsizetype mostCallersHere() {
    constexpr rlim_t most = 64;
    rlimit descriptors{};
    if (getrlimit(RLIMIT_NOFILE, &descriptors) != 0) return most;
    return static_cast<qsizetype>(std::clamp<rlim_t>(descriptors.rlim_cur / 4, 2, most));
}

}  // namespace

Server::Server(const std::string& socketPath, Requests& requests)
    : socketPath_(socketPath),
      mostCallers_(mostCallersHere()),
      server_(QString::fromStdString(hostlink::addressOf(provisional(socketPath)))),
      requests_(requests) {
    if (!server_.isConnected())
        throw std::runtime_error(socketPath +
                                 ": cannot listen: " + server_.lastError().message().toStdString());
    connect(&server_, &QDBusServer::newConnection, this, &Server::takeIn);
    using std::filesystem::perms;
    std::filesystem::permissions(provisional(socketPath), perms::owner_read | perms::owner_write);
    std::filesystem::rename(provisional(socketPath), socketPath);
}

Server::~Server() {
    std::error_code ignored;
    std::filesystem::remove(socketPath_, ignored);
}

/// The library keeps a connection that has ended until it is told to let go.
void Server::takeIn(QDBusConnection caller) {
    callers_.removeIf([](const QString& name) {
        if (QDBusConnection(name).isConnected()) return false;
        QDBusConnection::disconnectFromPeer(name);
        return true;
    });
    if (callers_.size() >= mostCallers_) return letGo(caller);
    if (DBusConnection* open = handle(caller))
        dbus_connection_set_max_message_size(open, longestCall);
    callers_.append(caller.name());
    caller.registerObject(hostlink::objectPath, this, QDBusConnection::ExportAllSlots);
}

/// The library would wait until the last call has been answered; so the socket ends at once, and
/// the library's own thread finds it ended.
void Server::letGo(const QDBusConnection& caller) {
    int file = -1;
    if (DBusConnection* open = handle(caller); open && dbus_connection_get_socket(open, &file) != 0)
        shutdown(file, SHUT_RDWR);
    callers_.removeOne(caller.name());
    QDBusConnection::disconnectFromPeer(caller.name());
}

bool Server::Request(const QString& key, const QDBusVariant& argument, const QDBusVariant& standard,
                     QDBusVariant& /*result*/) {
    setDelayedReply(true);
    if (!callers_.contains(connection().name())) return {};
    if (DBusConnection* open = handle(connection());
        open && dbus_connection_get_outgoing_size(open) > mostUnread) {
        letGo(connection());
        return {};
    }
    core::Value value;
    if (auto given = hostlink::fromVariant(standard.variant())) value = std::move(*given);
    requests_.answer(
        key, hostlink::fromVariant(argument.variant()), value,
        [caller = connection(), call = message()](bool carriedOut, const core::Value& result) {
            const QDBusVariant variant(hostlink::toVariant(result));
            caller.send(call.createReply({carriedOut, QVariant::fromValue(variant)}));
        });
    return {};
}

}  // namespace melvora
