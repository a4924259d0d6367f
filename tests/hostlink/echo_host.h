#pragma once
#include "hostlink/host_address.h"

#include <QDBusConnection>
#include <QDBusServer>
#include <QDBusVariant>
#include <QObject>
#include <QThread>

#include <memory>

namespace hostlink {

/// A host on a thread of its own that answers by the key: "ECHO" true and the argument, "DEFAULT"
/// false and the default, "SLEEP" true after as many milliseconds as the argument says,
/// "PATH" true and a type that is no value.
class EchoHost : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.melvora.Host1")
  public:
    explicit EchoHost(const QString& address) {
        moveToThread(&thread_);
        thread_.start();
        QMetaObject::invokeMethod(this, "listen", Qt::BlockingQueuedConnection,
                                  Q_ARG(QString, address));
    }
    ~EchoHost() override {
        thread_.quit();
        thread_.wait();
    }

  public slots:
    bool Request(const QString& key, const QDBusVariant& argument, const QDBusVariant& standard,
                 QDBusVariant& result) {
        result = key == "ECHO" ? argument : standard;
        if (key == "SLEEP") QThread::msleep(argument.variant().toULongLong());
        if (key == "PATH") result = QDBusVariant(QVariant::fromValue(QDBusObjectPath("/a")));
        return key != "DEFAULT";
    }

  private:
    Q_INVOKABLE void listen(const QString& address) {
        server_ = std::make_unique<QDBusServer>(address);
        connect(server_.get(), &QDBusServer::newConnection, this, [this](QDBusConnection caller) {
            caller.registerObject(objectPath, this, QDBusConnection::ExportAllSlots);
        });
    }
    QThread thread_;
    std::unique_ptr<QDBusServer> server_;
};

}  // namespace hostlink
