#pragma once
#include "core/worte.h"
#include "suite/languages.h"

namespace qt {

/// The installed languages. What it makes must not outlive it.
class LanguageFiles final : public core::SprachListe {
  public:
    explicit LanguageFiles(const QString& folder) : languages_(suite::languagesIn(folder)) {}
    std::vector<Sprache> sprachen() override;
    std::unique_ptr<core::SprachObjekt> erzeugen(const std::string& klasse) override;

  private:
    const std::vector<suite::Language> languages_;
};

}  // namespace qt
