#pragma once
#include "melvora/database.h"
#include "melvora/log.h"
#include "melvora/records.h"
#include "melvora/results.h"
#include "melvora/settings.h"
#include "melvora/trainings.h"
#include "melvora/users.h"

#include <QString>

namespace melvora {

/// All that the host keeps, in one database in one folder.
class Store {
  public:
    /// @throws StoreError
    explicit Store(const QString& folder) : database(folder) {}

    Database database;
    Settings settings{database};
    Users users{database};
    Records records{database};
    Trainings trainings{database};
    Log log{database};
    Results results{database};
};

}  // namespace melvora
