#include "melvora/options.h"

#include "melvora/module_process.h"
#include "melvora/settings_file.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace melvora {

namespace {

void takeSettingsFile(const QStringList& files, Options& options) {
    if (files.isEmpty()) return;
    if (files.size() > 1)
        throw base::UsageError("only one settings file can be opened: " +
                               files.join(", ").toStdString());
    if (files.first().isEmpty()) throw base::UsageError("the settings file's name is empty");
    if (options.module.value_or(settingsModule) != settingsModule)
        throw base::UsageError("--start " + options.module->toStdString() +
                               ": a settings file is for " + settingsModule);
    options.settingsFile = QFileInfo(files.first()).absoluteFilePath();
    options.module = settingsModule;
}

}  // namespace

Options parseOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOptions({{{"h", "help"}, ""},
                       {{"v", "version"}, ""},
                       {"start", "", "module"},
                       {"user", "", "key"},
                       {"language", "", "name"},
                       {"data", "", "folder"},
                       {"measure-font", "", "file"},
                       {"teacher", ""}});
    if (!parser.parse(arguments)) throw base::UsageError(parser.errorText().toStdString());
    const auto value = [&](const QString& name) {
        return parser.isSet(name) ? std::optional(parser.value(name)) : std::nullopt;
    };
    Options options{parser.isSet("help"), parser.isSet("version"), parser.isSet("teacher"),
                    value("start"),       value("user"),           value("language"),
                    value("data"),        value("measure-font"),   {}};
    takeSettingsFile(parser.positionalArguments(), options);
    if (options.module && !ModuleProcess::known().contains(*options.module))
        throw base::UsageError("--start: unknown module " + options.module->toStdString() +
                               "; known: " + ModuleProcess::known().join(", ").toStdString());
    if (options.data && options.data->isEmpty())
        throw base::UsageError("--data: the folder is missing");
    return options;
}

QString helpText() {
    return R"(melvora - the suite's host: users, language, MIDI device, results, log

usage: melvora [options] [FILE.mvs]

  FILE.mvs           start zepha9 with the settings in the file
  --start MODULE     start a module at once (zepha9: scales)
  --user KEY         log the user in ("unbekannt" logs out)
  --language NAME    choose the language by its own name, for example Deutsch
  --data FOLDER      keep everything there instead of $XDG_DATA_HOME/melvora
  --teacher          hand --teacher on to the modules
  --measure-font FILE   measure how the instruments of a soundfont are tuned, and keep it for the
                     modules, which play them in tune then; some ten seconds
  -h, --help         show this text
  -v, --version      show the version

Only one host runs per user. A second one raises the first one's window, hands its --start and its
FILE.mvs on and ends.

environment:
  MELVORA_HOST_ADDRESS   D-Bus address, unix:path=SOCKET
  MELVORA_MODULE_PATH    folder of the modules
  MELVORA_I18N           folder of the language files

exit status: 0, or 2 when the command line, the file, the data folder or the socket cannot be
used
)";
}

}  // namespace melvora
