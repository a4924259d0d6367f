#include "melvora/results.h"

#include <QCryptographicHash>

namespace melvora {

bool Results::add(const Result& result, const QString& fileName, const QString& text) {
    const QByteArray digest =
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex();
    return database_.run(
               "INSERT INTO results (id, started_at, user_key, exercise, right_first, answered,"
               " file_name, digest, content)"
               " VALUES ((SELECT COALESCE(MAX(id), 0) + 1 FROM results), ?, ?, ?, ?, ?, ?, ?, ?)"
               " ON CONFLICT (file_name, digest) DO NOTHING",
               {result.started.toString(Qt::ISODate), result.user, result.exercise,
                result.rightFirst, result.answered, fileName, QString::fromLatin1(digest), text}) >
           0;
}

QList<Result> Results::all() const {
    QList<Result> results;
    database_.run(
        "SELECT id, started_at, user_key, exercise, right_first, answered FROM results"
        " ORDER BY started_at DESC, id DESC",
        {}, [&](const QSqlQuery& row) {
            results.append({row.value(0).toInt(),
                            QDateTime::fromString(row.value(1).toString(), Qt::ISODate),
                            row.value(2).toString(), row.value(3).toString(), row.value(4).toInt(),
                            row.value(5).toInt()});
        });
    return results;
}

QString Results::text(int id) const {
    QString text;
    database_.run("SELECT content FROM results WHERE id = ?", {id},
                  [&](const QSqlQuery& row) { text = row.value(0).toString(); });
    return text;
}

}  // namespace melvora
