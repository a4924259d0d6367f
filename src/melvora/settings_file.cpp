#include "melvora/settings_file.h"

#include "core/wort.h"
#include "settingsfile/settings_file.h"

#include <QFile>

namespace melvora {

namespace wort = core::wort;

QString whyUnusable(const Words& words, const QString& path) {
    using settingsfile::Trouble;
    const auto [trouble, line, cause] = settingsfile::look(QFile::encodeName(path).toStdString());
    switch (trouble) {
        case Trouble::None:
            return {};
        case Trouble::Missing:
            return words.wort(wort::settingsMissing).arg(path);
        case Trouble::NoPlainFile:
            return words.wort(wort::settingsNoPlainFile).arg(path);
        case Trouble::TooBig:
            return words.wort(wort::settingsTooBig).arg(path);
        case Trouble::Unreadable:
            return words.wort(wort::settingsUnreadable)
                .arg(path + ": " + QString::fromStdString(cause));
        case Trouble::NotWellFormed:
            return words.wort(wort::settingsDamaged).arg(path, QString::number(line));
        case Trouble::NoSettings:
            return words.wort(wort::settingsNone).arg(path);
    }
    return {};
}

}  // namespace melvora
