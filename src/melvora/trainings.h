#pragma once
#include "melvora/database.h"
#include "melvora/result_record.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace melvora {

/// A training that a user has left and can continue.
struct Training {
    QString user;      ///< user key, or "unbekannt"
    QString exercise;  ///< what its two record keys end in, one of Trainings::exercises
    QDateTime saved;   ///< UTC; invalid when the time was not kept
};

/// What a training is about. @param exercise one of Trainings::exercises
Exercise exerciseOf(const QString& exercise);

/// The trainings among the records of the module zepha9. Each is two records: "E" and the exercise
/// are its settings, "A" and the exercise its state. All operations throw StoreError.
class Trainings {
  public:
    /// Ear training: name, write; music theory: name, write.
    static constexpr const char* exercises[] = {"1", "4", "1b", "4b"};

    explicit Trainings(Database& database) : database_(database) {}

    /// Those of one user in the order of the exercises. An ended training, whose state begins with
    /// anything but "true", and a state without settings do not count.
    QList<Training> of(const QString& user) const;
    /// Removes both records, or none.
    void remove(const Training& training);

  private:
    Database& database_;
};

}  // namespace melvora
