#pragma once
#include "melvora/requests.h"

#include <QDBusServer>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>

#include <string>

namespace melvora {

/// Offers the host's operation on its socket, to programs of the same user only.
class Server : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.melvora.Host1")
  public:
    /// @param socketPath socket that nobody serves; a file left there is replaced
    /// @throws std::runtime_error naming the path
    Server(const std::string& socketPath, Requests& requests);
    ~Server() override;
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

  public slots:
    bool Request(const QString& key, const QDBusVariant& argument, const QDBusVariant& standard,
                 QDBusVariant& result);

  private:
    /// Most callers at a time: the one module, and hosts that hand something over.
    static constexpr qsizetype mostCallers = 64;
    void takeIn(QDBusConnection caller);

    const std::string socketPath_;
    QStringList callers_;  ///< names of their connections
    QDBusServer server_;
    Requests& requests_;
};

}  // namespace melvora
