#pragma once
#include "melvora/requests.h"

#include <QDBusContext>
#include <QDBusServer>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>

#include <string>

namespace melvora {

/// Offers the host's operation on its socket, to programs of the same user only. What a caller can
/// make the host keep is bounded: callers, the size of a call, answers that nobody fetches.
class Server : public QObject, protected QDBusContext {
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
    /// The answer follows, at once or when the store is free.
    bool Request(const QString& key, const QDBusVariant& argument, const QDBusVariant& standard,
                 QDBusVariant& result);

  private:
    void takeIn(QDBusConnection caller);
    void letGo(const QDBusConnection& caller);

    const std::string socketPath_;
    const qsizetype mostCallers_;
    QStringList callers_;  ///< names of their connections
    QDBusServer server_;
    Requests& requests_;
};

}  // namespace melvora
