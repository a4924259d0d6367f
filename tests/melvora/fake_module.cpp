// A module that does what the variable FAKE_MODULE says: "crash" dies, "vanish" ends without a
// word, "stay" hands over and does not end, "stranger" calls the host as another user. All but the
// one that dies tell the log their arguments and what the host says of them. Ends with status 4
// when the host does not answer.
#include "hostlink/dbus_host.h"
#include "hostlink/host_address.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <unistd.h>

#include <csignal>
#include <string>

namespace {

int act(const QStringList& arguments) {
    hostlink::DbusHost host;
    core::Value result;
    host.request("APP", {}, result);
    const std::string name = "started as " + result.at(1).text();
    host.request("LOGMESS", (QStringList(name.c_str()) + arguments).join(' ').toStdString(),
                 result);
    if (qEnvironmentVariable("FAKE_MODULE") == "stay") {
        host.request("MENUE", "", result);
        std::signal(SIGTERM, SIG_IGN);
        for (;;) pause();
    }
    return 0;
}

/// Without looking whose socket it is.
int callAsStranger() {
    if (setuid(65534) != 0) return 3;
    auto call = QDBusMessage::createMethodCall({}, hostlink::objectPath, hostlink::interfaceName,
                                               hostlink::methodName);
    const auto empty = QVariant::fromValue(QDBusVariant(QString()));
    call << "LANG" << empty << empty;
    const auto host =
        QDBusConnection::connectToPeer(qEnvironmentVariable("MELVORA_HOST_ADDRESS"), "stranger");
    return host.call(call).type() == QDBusMessage::ReplyMessage ? 0 : 4;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString task = qEnvironmentVariable("FAKE_MODULE");
    if (task == "crash") raise(SIGKILL);
    if (task == "stranger") return callAsStranger();
    try {
        return act(QCoreApplication::arguments().mid(1));
    } catch (const core::HostGone&) {
        return 4;
    }
}
