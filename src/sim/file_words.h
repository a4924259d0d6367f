#pragma once
#include "core/worte.h"

#include <map>
#include <string>

namespace sim {

/// One language, called "Deutsch": the texts of a file.
class FileWords final : public core::SprachListe {
  public:
    /// @param file in Qt Linguist's format. @throws UsageError when it cannot be read.
    explicit FileWords(const std::string& file);

    std::vector<Sprache> sprachen() override { return {{"Deutsch", "de"}}; }
    std::unique_ptr<core::SprachObjekt> erzeugen(const std::string& klasse) override;

  private:
    std::map<std::string, std::string> texts_;  ///< by key, for example "354s"
};

}  // namespace sim
