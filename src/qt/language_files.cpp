#include "qt/language_files.h"

#include "look/toolkit_texts.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

#include <stdexcept>

namespace qt {

namespace {

class LanguageFile final : public core::SprachObjekt {
  public:
    LanguageFile(const QString& path, const QString& suffix) {
        if (!texts_.load(path)) throw std::runtime_error("no language file " + path.toStdString());
        toolkit_.take(suffix);
    }
    std::string Wort(const std::string& key) override {
        const QString text = texts_.translate("", key.c_str());
        if (text.isNull()) throw std::out_of_range(key);
        return text.toStdString();
    }

  private:
    QTranslator texts_;
    look::ToolkitTexts toolkit_;
};

const QString prefix = QStringLiteral("melvoralang.");

}  // namespace

QString LanguageFiles::installedFolder() {
    QString set = qEnvironmentVariable("MELVORA_I18N");
    if (!set.isEmpty()) return set;
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/melvora/i18n");
}

std::vector<core::SprachListe::Sprache> LanguageFiles::sprachen() {
    std::vector<Sprache> all;
    const QDir folder(folder_);
    for (const QString& file :
         folder.entryList({prefix + QStringLiteral("*.qm")}, QDir::Files, QDir::Name)) {
        QTranslator texts;
        if (!texts.load(folder.filePath(file))) continue;
        const QString suffix = file.mid(prefix.size()).chopped(3);
        all.push_back({texts.translate("", "name").toStdString(), suffix.toStdString()});
    }
    return all;
}

std::unique_ptr<core::SprachObjekt> LanguageFiles::erzeugen(const std::string& klasse) {
    const QString name = QString::fromStdString(klasse);
    try {
        return std::make_unique<LanguageFile>(QDir(folder_).filePath(name + QStringLiteral(".qm")),
                                              name.mid(prefix.size()));
    } catch (const std::runtime_error&) {
        return nullptr;
    }
}

}  // namespace qt
