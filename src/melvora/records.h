#pragma once
#include "core/value.h"
#include "melvora/database.h"

#include <QString>

#include <optional>

namespace melvora {

/// What the modules keep with the host: one value per user, executable and record key.
/// A stored record is on the disk when store() returns. All operations throw StoreError.
class Records {
  public:
    struct Address {
        QString user;
        QString executable;
        QString key;
    };

    explicit Records(Database& database) : database_(database) {}

    /// Nothing when there is no such record.
    std::optional<core::Value> read(const Address& address) const;
    /// Replaces the record of the same address, and notes when.
    void store(const Address& address, const core::Value& value);

  private:
    Database& database_;
};

}  // namespace melvora
