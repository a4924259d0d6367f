#include "melvora/server.h"

#include "hostlink/host_address.h"
#include "hostlink/variant.h"

#include <QDBusConnection>
#include <QDBusError>

#include <stdexcept>

namespace melvora {

Server::Server(const QString& address, Requests& requests) : server_(address), requests_(requests) {
    if (!server_.isConnected())
        throw std::runtime_error("cannot listen at " + address.toStdString() + ": " +
                                 server_.lastError().message().toStdString());
    connect(&server_, &QDBusServer::newConnection, this, [this](QDBusConnection caller) {
        caller.registerObject(hostlink::objectPath, this, QDBusConnection::ExportAllSlots);
    });
}

bool Server::Request(const QString& key, const QDBusVariant& argument, const QDBusVariant& standard,
                     QDBusVariant& result) {
    core::Value value = hostlink::fromVariant(standard.variant()).value_or(core::Value());
    const bool answer = requests_.answer(key, hostlink::fromVariant(argument.variant()), value);
    result = QDBusVariant(hostlink::toVariant(value));
    return answer;
}

}  // namespace melvora
