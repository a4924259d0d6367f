#include "melvora/words.h"

#include <QLocale>

#include <algorithm>

namespace melvora {

namespace {

QByteArray idOf(core::wort::Id word) { return QByteArray::number(static_cast<int>(word)) + "s"; }

}  // namespace

Words::Words(const QString& folder) : languages_(suite::languagesIn(folder)) {
    if (languages_.empty())
        throw std::runtime_error("no language file (*.qm) in " + folder.toStdString());
    const QString wanted = QLocale::system().name().section('_', 0, 0);
    const auto installed = std::ranges::find(languages_, wanted, &suite::Language::suffix);
    if (installed != languages_.end())
        choose(installed->name);
    else
        choose("Deutsch");
}

QStringList Words::languages() const {
    QStringList names;
    for (const suite::Language& language : languages_) names.append(language.name);
    return names;
}

const QString& Words::language() const { return languages_[chosen_].name; }

bool Words::choose(const QString& language) {
    const auto found = std::ranges::find(languages_, language, &suite::Language::name);
    if (found == languages_.end()) return false;
    chosen_ = static_cast<std::size_t>(found - languages_.begin());
    toolkit_.take(*found);
    return true;
}

QString Words::wort(core::wort::Id word) const {
    const QString text = languages_[chosen_].text(idOf(word));
    return text.isEmpty() ? QString("VOID") : text;
}

QString Words::today(const QString& text, std::initializer_list<core::wort::Id> words) const {
    for (const core::wort::Id word : words)
        for (const suite::Language& language : languages_)
            if (text == language.text(idOf(word))) return wort(word);
    return text;
}

QString Words::moment(const QDateTime& moment, Precision precision) const {
    if (!moment.isValid()) return "–";
    // The system knows the country, and the user's own format; without it, English is British.
    const QLocale standard(suffix() == "en" ? QString("en_GB") : suffix());
    const QLocale system = QLocale::system();
    const QLocale& locale = system.language() == standard.language() ? system : standard;
    QString format = locale.dateTimeFormat(QLocale::ShortFormat);
    if (!format.contains("yyyy")) format.replace("yy", "yyyy");
    if (precision == Precision::Seconds) format.replace("mm", "mm:ss");
    return locale.toString(moment.toLocalTime(), format);
}

}  // namespace melvora
