// A module that does what the variable FAKE_MODULE says: "run" leaves a result record in the spool
// folder and hands over to the host, "crash" dies, "vanish" ends without a word, "stranger" goes on
// as another user. All but the one that dies tell the log their arguments and what the host says of
// them. Ends with status 4 when the host does not answer.
#include "hostlink/dbus_host.h"

#include <QCoreApplication>
#include <QFile>

#include <unistd.h>

#include <csignal>
#include <string>

namespace {

int act(const QString& task, const QStringList& arguments) {
    hostlink::DbusHost host;
    core::Value result;
    host.request("APP", {}, result);
    const std::string name = "started as " + result.at(1).text();
    host.request("LOGMESS", (QStringList(name.c_str()) + arguments).join(' ').toStdString(),
                 result);
    if (task != "run") return 0;
    QFile record(qEnvironmentVariable("temp") + "/RSX261121120000.xml");
    if (!record.open(QIODevice::WriteOnly)) return 3;
    record.write("<exercise><properties programm=\"ZEPHA9\" exercise=\"bestimmen\"/></exercise>");
    record.close();
    host.request("MENUE", "", result);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString task = qEnvironmentVariable("FAKE_MODULE");
    if (task == "crash") raise(SIGKILL);
    if (task == "stranger" && setuid(65534) != 0) return 3;
    try {
        return act(task, QCoreApplication::arguments().mid(1));
    } catch (const core::HostGone&) {
        return 4;
    }
}
