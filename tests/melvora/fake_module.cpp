// A module that does what the variable FAKE_MODULE says: "crash" dies, "vanish" ends without a
// word, "stranger" goes on as another user. All but the one that dies tell the log their arguments
// and what the host says of them. Ends with status 4 when the host does not answer.
#include "hostlink/dbus_host.h"

#include <QCoreApplication>

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
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString task = qEnvironmentVariable("FAKE_MODULE");
    if (task == "crash") raise(SIGKILL);
    if (task == "stranger" && setuid(65534) != 0) return 3;
    try {
        return act(QCoreApplication::arguments().mid(1));
    } catch (const core::HostGone&) {
        return 4;
    }
}
