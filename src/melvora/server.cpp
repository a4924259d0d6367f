#include "melvora/server.h"

#include "hostlink/host_address.h"
#include "hostlink/variant.h"

#include <QDBusConnection>
#include <QDBusError>

#include <filesystem>
#include <stdexcept>

namespace melvora {

namespace {

/// The server listens before it can take a caller in, and would lose one who comes in between. So
/// it listens under this name and takes the known one when it is ready.
std::string provisional(const std::string& socketPath) { return socketPath + ".new"; }

}  // namespace

Server::Server(const std::string& socketPath, Requests& requests)
    : socketPath_(socketPath),
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
    if (callers_.size() >= mostCallers) return QDBusConnection::disconnectFromPeer(caller.name());
    callers_.append(caller.name());
    caller.registerObject(hostlink::objectPath, this, QDBusConnection::ExportAllSlots);
}

bool Server::Request(const QString& key, const QDBusVariant& argument, const QDBusVariant& standard,
                     QDBusVariant& result) {
    core::Value value;
    if (auto given = hostlink::fromVariant(standard.variant())) value = std::move(*given);
    const bool answer = requests_.answer(key, hostlink::fromVariant(argument.variant()), value);
    result = QDBusVariant(hostlink::toVariant(value));
    return answer;
}

}  // namespace melvora
