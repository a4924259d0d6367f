#include "melvora/words.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <algorithm>

namespace melvora {

QString Words::installedFolder() {
    QString given = qEnvironmentVariable("MELVORA_I18N");
    if (!given.isEmpty()) return given;
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/melvora/i18n");
}

Words::Words(const QString& folder) {
    const QDir files(folder);
    for (const QString& file : files.entryList({"*.qm"}, QDir::Files)) {
        auto texts = std::make_unique<QTranslator>();
        if (!texts->load(files.absoluteFilePath(file))) continue;
        const QString name = texts->translate("", "name");
        if (name.isEmpty()) continue;
        languages_.push_back({name, file.section('.', -2, -2), std::move(texts)});
    }
    if (languages_.empty())
        throw std::runtime_error("no language file (*.qm) in " + folder.toStdString());
    std::ranges::sort(languages_, {}, &Language::name);

    const QString wanted = QLocale::system().name().section('_', 0, 0);
    const auto installed = std::ranges::find(languages_, wanted, &Language::suffix);
    if (installed != languages_.end())
        choose(installed->name);
    else
        choose("Deutsch");
}

QStringList Words::languages() const {
    QStringList names;
    for (const Language& language : languages_) names.append(language.name);
    return names;
}

const QString& Words::language() const { return languages_[chosen_].name; }

bool Words::choose(const QString& language) {
    const auto found = std::ranges::find(languages_, language, &Language::name);
    if (found == languages_.end()) return false;
    chosen_ = static_cast<std::size_t>(found - languages_.begin());
    toolkit_.take(found->suffix);
    return true;
}

QString Words::wort(int number) const {
    const QByteArray id = QByteArray::number(number) + "s";
    const QString text = languages_[chosen_].texts->translate("", id);
    return text.isEmpty() ? QString("VOID") : text;
}

QString Words::moment(const QDateTime& moment) const {
    if (!moment.isValid()) return "–";
    // The system knows the country, and the user's own format; without it, English is British.
    const QString& suffix = languages_[chosen_].suffix;
    const QLocale standard(suffix == "en" ? QString("en_GB") : suffix);
    const QLocale system = QLocale::system();
    const QLocale& locale = system.language() == standard.language() ? system : standard;
    QString format = locale.dateTimeFormat(QLocale::ShortFormat);
    if (!format.contains("yyyy")) format.replace("yy", "yyyy");
    return locale.toString(moment.toLocalTime(), format);
}

}  // namespace melvora
