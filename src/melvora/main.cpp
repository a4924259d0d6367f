#include "hostlink/dbus_host.h"
#include "hostlink/host_address.h"
#include "melvora/main_window.h"
#include "melvora/options.h"
#include "melvora/server.h"
#include "melvora/settings_file.h"
#include "melvora/socket_lock.h"
#include "settingsfile/settings_file.h"
#include "suite/application.h"
#include "suite/fonts_ahead.h"
#include "suite/icon.h"
#include "suite/look.h"
#include "synth/loader.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace {

using namespace melvora;

constexpr int failure = 2;
/// The window is painted first.
constexpr std::chrono::milliseconds untilIcon{300};

QString dataFolder(const Options& options) {
    if (options.data) return *options.data;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/melvora";
}

/// Asks the host that runs already to come forward. It may still be starting, or ending: then its
/// place is this program's. Ten seconds for that.
/// @return false when the place has become free.
bool raiseOther(SocketLock& lock, const std::string& address, const Options& options) {
    using std::chrono::milliseconds;
    constexpr milliseconds patience{10'000}, answerTime{5'000};
    core::Value wish = options.module.value_or(QString()).toStdString();
    if (options.settingsFile) wish = core::Value::Array{wish, options.settingsFile->toStdString()};
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        const milliseconds left = patience - milliseconds(clock.elapsed());
        if (left.count() <= 0)
            throw std::runtime_error(
                "the melvora that runs does not answer; end it, then start again");
        try {
            hostlink::DbusHost other(address, std::min(left, answerTime));
            core::Value result;
            if (!other.request("RAISE", wish, result))
                throw std::runtime_error("the melvora that runs refused; its log says why");
            break;
        } catch (const core::HostGone&) {
            if (lock.tryAgain()) return false;
            QThread::msleep(100);
        }
    }
    if (options.user || options.language || options.data || options.teacher)
        std::fputs(
            "melvora: already running; its window was raised, only --start and a settings file "
            "are handed on\n",
            stderr);
    return true;
}

void choose(Host& host, const Options& options) {
    if (options.language && !host.chooseLanguage(*options.language))
        throw base::UsageError(
            "--language: " + options.language->toStdString() +
            " is not installed; installed: " + host.words().languages().join(", ").toStdString());
    if (options.user && !host.logIn(*options.user))
        throw base::UsageError("--user: no user has the key " + options.user->toStdString());
    if (options.user && *options.user != nobody && host.userKey() != *options.user)
        throw std::runtime_error("--user: the choice cannot be stored in " +
                                 host.store().database.path().toStdString());
}

int serve(const std::string& socket, const Options& options, suite::Application& application) {
    const QString address = QString::fromStdString(hostlink::addressOf(socket));
    Words words(suite::languageFolder());
    const QStringList moduleArguments = options.teacher ? QStringList{"--teacher"} : QStringList();
    Host host({dataFolder(options), address, moduleArguments}, words);
    choose(host, options);
    application.uncaught = [&host](const std::exception& fault) { host.tell(fault); };
    Requests requests(host);
    Server server(socket, requests);
    MainWindow window(host);
    if (!options.module ||
        !host.startModule(*options.module, options.settingsFile.value_or(QString())))
        window.show();
    QTimer::singleShot(0, &host, &Host::begin);
    QTimer::singleShot(untilIcon, &host, [] { QApplication::setWindowIcon(suite::icon()); });
    const int status = QApplication::exec();
    application.uncaught = nullptr;
    return status;
}

/// @throws base::UsageError in the system's language when the file of settings cannot be used
void lookAt(const QString& settingsFile) {
    if (settingsfile::look(QFile::encodeName(settingsFile).toStdString()).trouble ==
        settingsfile::Trouble::None)
        return;
    throw base::UsageError(whyUnusable(Words(suite::languageFolder()), settingsFile).toStdString());
}

/// Lines on the standard output tell how far it is.
int measureFont(const Options& options) {
    constexpr int all = 128, often = 16;
    const std::string table =
        synth::measureFont(options.font->toStdString(),
                           (dataFolder(options) + "/fonts").toStdString(), [](int measured) {
                               if (measured % often != 0) return;
                               std::printf("%d of %d instruments measured\n", measured, all);
                               std::fflush(stdout);
                           });
    std::printf("kept in %s\n", table.c_str());
    return 0;
}

int run(const Options& options, suite::Application& application) {
    if (options.settingsFile) lookAt(*options.settingsFile);
    const std::string address = hostlink::hostAddress();
    const auto socket = hostlink::socketPath(address);
    if (!socket) throw base::UsageError("MELVORA_HOST_ADDRESS: not of the form unix:path=SOCKET");
    SocketLock lock(*socket,
                    hostlink::addressIsNamed() ? SocketLock::Place::Named : SocketLock::Place::Own);
    if (!lock.held() && raiseOther(lock, address, options)) return 0;
    return serve(*socket, options, application);
}

/// Started by a click on the icon or on a file, and nobody reads the standard error: there is no
/// terminal, and no program at the other end of a pipe.
bool startedFromDesktop() {
    const QStringList arguments = QApplication::arguments().mid(1);
    const bool likeIt = arguments.size() < 2 && !arguments.value(0).startsWith('-');
    struct stat about {};
    const bool isRead = fstat(STDERR_FILENO, &about) == 0 && S_ISFIFO(about.st_mode);
    const int streams[] = {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
    return likeIt && !isRead && QApplication::platformName() != "offscreen" &&
           std::ranges::none_of(streams, [](int stream) { return isatty(stream) != 0; });
}

void complain(const std::exception& error) {
    std::fprintf(stderr, "melvora: %s\n", error.what());
    if (startedFromDesktop())
        QMessageBox::critical(nullptr, "Melvora", QString::fromUtf8(error.what()));
}

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

/// Needs no screen.
std::optional<int> measuresOnly(int argc, char** argv) {
    const auto asks = [](const char* argument) {
        return std::string_view(argument).starts_with("--measure-font");
    };
    if (std::none_of(argv, argv + argc, asks)) return {};
    const QCoreApplication application(argc, argv);
    try {
        const Options options = parseOptions(QCoreApplication::arguments());
        return options.font ? measureFont(options) : failure;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "melvora: %s\n", error.what());
        return failure;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (answersAtOnce(argc, argv)) return 0;
    if (const auto status = measuresOnly(argc, argv)) return *status;
    const std::jthread fonts = suite::readFontsAhead();
    suite::Application application(argc, argv);
    QApplication::setApplicationName("melvora");
    QApplication::setApplicationDisplayName("Melvora");
    QApplication::setDesktopFileName("melvora");
    QApplication::setQuitOnLastWindowClosed(false);
    suite::apply();
    try {
        return run(parseOptions(QApplication::arguments()), application);
    } catch (const std::exception& error) {
        complain(error);
    }
    return failure;
}
