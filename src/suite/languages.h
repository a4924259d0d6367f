#pragma once
#include <QString>
#include <QTranslator>

#include <memory>
#include <vector>

namespace suite {

/// A language that is installed.
struct Language {
    QString name;    ///< in the language itself, for example "Deutsch"
    QString suffix;  ///< for example "de"
    std::unique_ptr<QTranslator> texts;

    /// Null when the language lacks it. @param key the text's number in plain decimal, then "s".
    QString text(const char* key) const { return texts->translate("", key); }
};

/// Folder of the language files: MELVORA_I18N, else share/melvora/i18n beside the programs' folder.
QString languageFolder();

/// The languages that stand in a folder as compiled files melvoralang.<suffix>.qm, ordered by name.
/// A file that cannot be read, or bears no name, is left out.
std::vector<Language> languagesIn(const QString& folder);

/// The toolkit's own texts, as in file dialogs and the menus of text fields, in the language of the
/// program for as long as this lives. Without the toolkit's translations they stay English.
class ToolkitTexts {
  public:
    void take(const Language& language);

  private:
    QTranslator texts_;
};

}  // namespace suite
