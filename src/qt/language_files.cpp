#include "qt/language_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

#include <stdexcept>

namespace qt {

namespace {

class LanguageFile final : public core::SprachObjekt {
  public:
    explicit LanguageFile(const QString& path) {
        if (!texts_.load(path)) throw std::runtime_error("no language file " + path.toStdString());
    }
    std::string Wort(const std::string& key) override {
        const QString text = texts_.translate("", key.c_str());
        if (text.isNull()) throw std::out_of_range(key);
        return text.toStdString();
    }

  private:
    QTranslator texts_;
};

const QString prefix = QStringLiteral("melvoralang.");

}  // namespace

QString LanguageFiles::installedFolder() {
    const QString set = qEnvironmentVariable("MELVORA_I18N");
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
    const QString file =
        QDir(folder_).filePath(QString::fromStdString(klasse) + QStringLiteral(".qm"));
    try {
        return std::make_unique<LanguageFile>(file);
    } catch (const std::runtime_error&) {
        return nullptr;
    }
}

}  // namespace qt
