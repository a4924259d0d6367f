#pragma once
#include "melvora/database.h"

#include <QString>

namespace melvora {

/// Choices of the host itself, by name: "language", "midi", "soundfont", "user".
class Settings {
  public:
    explicit Settings(Database& database) : database_(database) {}

    /// "" when it was never set. @throws StoreError
    QString get(const QString& name) const;
    /// @throws StoreError
    void set(const QString& name, const QString& content);

  private:
    Database& database_;
};

}  // namespace melvora
