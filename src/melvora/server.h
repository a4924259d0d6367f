#pragma once
#include "melvora/requests.h"

#include <QDBusServer>
#include <QDBusVariant>
#include <QObject>

namespace melvora {

/// Offers the host's operation on its socket, to programs of the same user only.
class Server : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.melvora.Host1")
  public:
    /// @param address a `unix:path=` address whose socket nobody serves
    /// @throws std::runtime_error naming the address
    Server(const QString& address, Requests& requests);

  public slots:
    bool Request(const QString& key, const QDBusVariant& argument, const QDBusVariant& standard,
                 QDBusVariant& result);

  private:
    QDBusServer server_;
    Requests& requests_;
};

}  // namespace melvora
