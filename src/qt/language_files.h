#pragma once
#include "core/worte.h"

#include <QString>

namespace qt {

/// The languages that stand as compiled files in a folder: melvoralang.<suffix>.qm.
class LanguageFiles final : public core::SprachListe {
  public:
    explicit LanguageFiles(QString folder) : folder_(std::move(folder)) {}
    std::vector<Sprache> sprachen() override;
    std::unique_ptr<core::SprachObjekt> erzeugen(const std::string& klasse) override;

    /// MELVORA_I18N, else share/melvora/i18n beside the program's folder.
    static QString installedFolder();

  private:
    QString folder_;
};

}  // namespace qt
