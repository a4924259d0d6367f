#pragma once
#include "melvora/database.h"
#include "melvora/result_record.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace melvora {

/// What the list of results shows of one run.
struct Result {
    int id = 0;         ///< set by the store
    QDateTime started;  ///< local time
    QString user;       ///< user key, or "unbekannt"
    Exercise exercise;
    int rightFirst = 0;  ///< tasks whose first answer was right
    int answered = 0;    ///< tasks with an answer
};

/// The collected results. All operations throw StoreError.
class Results {
  public:
    explicit Results(Database& database) : database_(database) {}

    /// Adds the result with the whole text of its file. The same text under the same file name is
    /// kept once.
    /// @return whether it was new
    bool add(const Result& result, const QString& fileName, const QString& text);
    /// Newest first. What older versions did not derive from a record is derived and kept.
    QList<Result> all();
    /// Those that came into the store after that one, oldest first.
    QList<Result> since(int id);
    /// Number of the one that came last; 0 when there is none.
    int newest() const;
    /// Text of the file that the result was read from; "" when there is no such result.
    QString text(int id) const;

  private:
    void derive();
    /// @param order and conditions behind the name of the table
    QList<Result> list(const QString& which, const QVariantList& values = {});

    Database& database_;
};

}  // namespace melvora
