#include "base/environment.h"
#include "core/wort.h"
#include "drill/drill.h"
#include "hostlink/dbus_host.h"
#include "qt/accessibility.h"
#include "qt/dialogs.h"
#include "qt/help.h"
#include "qt/language_files.h"
#include "qt/message_loop.h"
#include "qt/printer.h"
#include "qt/windows.h"
#include "setup/einstellungsdatei.h"
#include "suite/application.h"
#include "suite/fonts_ahead.h"
#include "suite/icon.h"
#include "suite/look.h"
#include "zepha9/lazy_output.h"

#include <QDateTime>
#include <QStandardPaths>
#include <QSysInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

/// What follows an argument, "" when it was not given.
std::string after(const QStringList& arguments, const QString& name) {
    const auto at = arguments.indexOf(name);
    return at < 0 ? std::string() : arguments.value(at + 1).toStdString();
}

core::Aufruf aufruf(const QStringList& arguments) {
    const std::string temp = base::environment("temp");
    const std::string settings = after(arguments, QStringLiteral("--settings"));
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return {.kommandozeile = arguments.mid(1).join(' ').toStdString(),
            .tempOrdner = temp.empty() ? base::environment("TEMP") : temp,
            .rechnername = QSysInfo::machineHostName().toStdString(),
            .programmOrdner =
                (QCoreApplication::applicationDirPath() + "/../share/melvora").toStdString(),
            .stueckeOrdner = documents.toStdString() + "/Melvora/Stuecke_Files",
            .startdatei = settings,
            .startTyp = settings.empty() ? core::uebung::bestimmen : setup::uebungstyp(settings),
            .pruefEdit = arguments.contains(QStringLiteral("--teacher"))};
}

/// Answers what needs neither host nor window. @return the status to end with, -1 to go on.
int commandLine(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    const auto asks = [&](std::string_view option) {
        return std::ranges::find(arguments, option) != arguments.end();
    };
    if (asks("--version")) {
        std::puts("zepha9 " MELVORA_VERSION);
        return 0;
    }
    if (!asks("--help") && !asks("-h")) return -1;
    std::puts(
        "usage: zepha9 [--settings FILE] [--teacher]\n\n"
        "The scales drill. It runs under its host: start `melvora`, which starts it.\n\n"
        "  --settings FILE  opens the exercise of a file of settings (*.mvs)\n"
        "  --teacher        lets the set-up form write such files and mark what they hold\n"
        "  --help, -h       shows this text\n"
        "  --version        shows the version");
    return 0;
}

/// Nothing goes on behind a fault that nobody caught: it is logged, told, and the program ends.
[[noreturn]] void endWith(core::Programm& program, const std::exception& fault) {
    program.host.HostFehler("uncaught.", fault);
    const std::string what = fault.what();
    program.ports.dialogs.message(
        form::Icon::Stop, "Melvora 2000",
        program.worte.hatSprache() ? core::eingesetzt(program.Wort(core::wort::programEnds), what)
                                   : what);
    std::_Exit(3);
}

}  // namespace

int main(int argc, char** argv) {
    if (const int status = commandLine(argc, argv); status >= 0) return status;
    const std::jthread fonts = suite::readFontsAhead();
    suite::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zepha9"));
    QApplication::setApplicationVersion(QStringLiteral(MELVORA_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    suite::apply();
    qt::installAccessibility();

    qt::QtMessageLoop loop;
    qt::QtDialogs dialogs;
    qt::QtHelp help;
    qt::LanguageFiles languages(suite::languageFolder());
    qt::Windows* shown = nullptr;
    qt::QtPrinter printer([&shown](const form::Form& form) {
        const qt::FormWindow* window = shown->of(form);
        return window ? &window->contents() : nullptr;
    });
    core::Programm* program = nullptr;
    zepha9::LazyOutput output(
        [&loop](std::function<void()> call) { loop.post(std::move(call)); },
        [&program](const std::string& reason) { program->host.HostMeldung(reason); });

    drill::Drill drill({.loop = loop,
                        .dialogs = dialogs,
                        .printer = printer,
                        .help = help,
                        .saat = [] { return QDateTime::currentMSecsSinceEpoch(); },
                        .host = [] { return std::make_unique<hostlink::DbusHost>(); },
                        .sprachen = &languages},
                       aufruf(QApplication::arguments()), output);
    program = &drill.programm;
    dialogs.answers = [program]() -> qt::QtDialogs::Answers {
        if (!program->worte.hatSprache()) return {};
        return {program->Wort(core::wort::ok), program->Wort(core::wort::yes),
                program->Wort(core::wort::no)};
    };
    help.texts = [program]() -> suite::HelpWindow::Texts {
        const auto word = [program](core::wort::Id id) {
            return QString::fromStdString(program->Wort(id));
        };
        return {word(core::wort::helpIndex), word(core::wort::helpBack), word(core::wort::helpFind),
                word(core::wort::helpFindNext), word(core::wort::helpNotFound)};
    };
    application.uncaught = [program](const std::exception& fault) { endWith(*program, fault); };
    qt::Windows windows(drill.programm.forms);
    shown = &windows;
    const form::Connection end = drill.programm.forms.empty.connect([] { QApplication::quit(); });
    try {
        drill.programm.forms.load("grd_einst");
    } catch (const core::ProgrammEnde& ende) {
        return ende.status;
    } catch (const std::exception& fault) {
        endWith(*program, fault);
    }
    // After the first window was painted: it need not wait for this.
    loop.post([] {
        QApplication::setWindowIcon(suite::icon());
        QGuiApplication::setDesktopFileName(QStringLiteral("melvora"));
    });
    return QApplication::exec();
}
