#include "hostlink/dbus_host.h"
#include "look/look.h"
#include "melvora/main_window.h"
#include "melvora/options.h"
#include "melvora/server.h"
#include "melvora/socket_lock.h"

#include <QApplication>
#include <QMessageBox>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <cstdio>

namespace {

using namespace melvora;

constexpr int failure = 2;

QString dataFolder(const Options& options) {
    if (options.data) return *options.data;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/melvora";
}

/// Asks the host that runs already to come forward. It may still be starting: five seconds for
/// that.
int raiseOther(const std::string& address, const Options& options) {
    const std::string module = options.module.value_or(QString()).toStdString();
    for (int attempt = 0;; ++attempt) {
        try {
            hostlink::DbusHost other(address);
            core::Value result;
            other.request("RAISE", module, result);
            break;
        } catch (const core::HostGone&) {
            if (attempt == 50) throw;
            QThread::msleep(100);
        }
    }
    if (options.user || options.language || options.data || options.teacher)
        std::fputs("melvora: already running; its window was raised, only --start is handed on\n",
                   stderr);
    return 0;
}

void choose(Host& host, const Options& options) {
    if (options.language && !host.chooseLanguage(*options.language))
        throw UsageError(
            "--language: " + options.language->toStdString() +
            " is not installed; installed: " + host.words().languages().join(", ").toStdString());
    if (options.user && !host.logIn(*options.user))
        throw UsageError("--user: no user has the key " + options.user->toStdString());
}

int serve(const std::string& socket, const Options& options) {
    const QString address = QString::fromStdString(hostlink::addressOf(socket));
    Words words(Words::installedFolder());
    const QStringList moduleArguments = options.teacher ? QStringList{"--teacher"} : QStringList();
    Host host({dataFolder(options), address, moduleArguments}, words);
    choose(host, options);
    Requests requests(host);
    Server server(socket, requests);
    MainWindow window(host);
    if (options.module)
        host.startModule(*options.module);
    else
        window.show();
    QTimer::singleShot(0, &host, [&host] {
        host.guarded([&host] { host.store().log.prune(); });
        host.collect();
    });
    return QApplication::exec();
}

int run(const Options& options) {
    const std::string address = hostlink::hostAddress();
    const auto socket = hostlink::socketPath(address);
    if (!socket) throw UsageError("MELVORA_HOST_ADDRESS: not of the form unix:path=SOCKET");
    const SocketLock lock(*socket);
    return lock.held() ? serve(*socket, options) : raiseOther(address, options);
}

/// A user who clicked on an icon sees no standard error.
bool hasScreen() { return QApplication::platformName() != "offscreen"; }

/// True when --help or --version was given; both need no screen.
bool answersAtOnce(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const QString argument = argv[i];
        if (argument == "--help" || argument == "-h")
            std::fputs(helpText().toUtf8().constData(), stdout);
        else if (argument == "--version" || argument == "-v")
            std::puts("melvora " MELVORA_VERSION);
        else
            continue;
        return true;
    }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (answersAtOnce(argc, argv)) return 0;
    QApplication application(argc, argv);
    QApplication::setApplicationName("melvora");
    QApplication::setApplicationDisplayName("Melvora");
    QApplication::setQuitOnLastWindowClosed(false);
    look::apply(application);
    Options options;
    try {
        options = parseOptions(QApplication::arguments());
        return run(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "melvora: %s\n", error.what());
        if (argc == 1 && hasScreen())
            QMessageBox::critical(nullptr, "Melvora", QString::fromUtf8(error.what()));
        return failure;
    }
}
