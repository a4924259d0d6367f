#include "suite/languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

#include <algorithm>

namespace suite {

QString languageFolder() {
    QString given = qEnvironmentVariable("MELVORA_I18N");
    if (!given.isEmpty()) return given;
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/melvora/i18n");
}

std::vector<Language> languagesIn(const QString& folder) {
    std::vector<Language> all;
    const QDir files(folder);
    for (const QString& file : files.entryList({"melvoralang.*.qm"}, QDir::Files)) {
        auto texts = std::make_unique<QTranslator>();
        if (!texts->load(files.absoluteFilePath(file))) continue;
        const QString name = texts->translate("", "name");
        if (!name.isEmpty()) all.push_back({name, file.section('.', -2, -2), std::move(texts)});
    }
    std::ranges::sort(all, {}, &Language::name);
    return all;
}

void ToolkitTexts::take(const Language& language) {
    QCoreApplication::removeTranslator(&texts_);
    if (texts_.load("qtbase_" + language.suffix,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts_);
}

}  // namespace suite
