#include "drill/drill.h"
#include "hostlink/dbus_host.h"
#include "look/fonts_ahead.h"
#include "look/look.h"
#include "qt/dialogs.h"
#include "qt/help.h"
#include "qt/language_files.h"
#include "qt/message_loop.h"
#include "qt/printer.h"
#include "qt/windows.h"
#include "setup/einstellungsdatei.h"
#include "zepha9/lazy_output.h"

#include <QApplication>
#include <QDateTime>
#include <QStandardPaths>
#include <QSysInfo>

namespace {

std::string environment(const char* name) { return qEnvironmentVariable(name).toStdString(); }

/// What follows an argument, "" when it was not given.
std::string after(const QStringList& arguments, const QString& name) {
    const auto at = arguments.indexOf(name);
    return at < 0 ? std::string() : arguments.value(at + 1).toStdString();
}

core::Aufruf aufruf(const QStringList& arguments) {
    const std::string temp = environment("temp");
    const std::string settings = after(arguments, QStringLiteral("--settings"));
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return {.kommandozeile = arguments.mid(1).join(' ').toStdString(),
            .tempOrdner = temp.empty() ? environment("TEMP") : temp,
            .rechnername = QSysInfo::machineHostName().toStdString(),
            .programmOrdner =
                (QCoreApplication::applicationDirPath() + "/../share/melvora").toStdString(),
            .stueckeOrdner = documents.toStdString() + "/Melvora/Stuecke_Files",
            .startdatei = settings,
            .startTyp = settings.empty() ? core::uebung::bestimmen : setup::uebungstyp(settings),
            .pruefEdit = arguments.contains(QStringLiteral("--teacher"))};
}

}  // namespace

int main(int argc, char** argv) {
    const std::jthread fonts = look::readFontsAhead();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zepha9"));
    QApplication::setApplicationVersion(QStringLiteral(MELVORA_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    look::apply(application);

    qt::QtMessageLoop loop;
    qt::QtDialogs dialogs;
    qt::QtHelp help;
    qt::LanguageFiles languages(qt::LanguageFiles::installedFolder());
    qt::Windows* shown = nullptr;
    qt::QtPrinter printer([&shown](const form::Form& form) { return shown->of(form); });
    zepha9::LazyOutput output([&loop](std::function<void()> call) { loop.post(std::move(call)); });

    drill::Drill drill({.loop = loop,
                        .dialogs = dialogs,
                        .printer = printer,
                        .help = help,
                        .host = [] { return std::make_unique<hostlink::DbusHost>(); },
                        .sprachen = &languages},
                       aufruf(QApplication::arguments()), output,
                       QDateTime::currentMSecsSinceEpoch());
    qt::Windows windows(drill.programm.forms);
    shown = &windows;
    const form::Connection end = drill.programm.forms.empty.connect([] { QApplication::quit(); });
    try {
        drill.programm.forms.load("grd_einst");
    } catch (const core::ProgrammEnde& ende) {
        return ende.status;
    }
    return QApplication::exec();
}
