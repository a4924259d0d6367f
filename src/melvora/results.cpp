#include "melvora/results.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cstddef>

namespace melvora {

namespace {

/// How a value stands in the store; the first of its row also for what nobody knows.
template <class Value>
struct Word {
    Value value;
    const char* text;
};

template <class Value, std::size_t size>
QString kept(const Word<Value> (&words)[size], Value value) {
    return std::ranges::find(words, value, &Word<Value>::value)->text;
}

template <class Value, std::size_t size>
Value meant(const Word<Value> (&words)[size], const QString& text) {
    const auto* const found =
        std::ranges::find_if(words, [&](const auto& word) { return text == word.text; });
    return (found == std::end(words) ? words : found)->value;
}

constexpr Word<Branch> branches[] = {
    {Branch::Unknown, "?"}, {Branch::Ear, "ear"}, {Branch::Theory, "theory"}};
constexpr Word<Kind> kinds[] = {
    {Kind::Unknown, "?"}, {Kind::Identify, "identify"}, {Kind::Write, "write"}};

}  // namespace

bool Results::add(const Result& result, const QString& fileName, const QString& text) {
    const QByteArray digest =
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex();
    const Exercise& exercise = result.exercise;
    return database_.run(
               "INSERT INTO results (id, started_at, user_key, exercise, right_first, answered,"
               " file_name, digest, content, branch, kind, mode, scale_type)"
               " VALUES ((SELECT COALESCE(MAX(id), 0) + 1 FROM results),"
               " ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"
               " ON CONFLICT (file_name, digest) DO NOTHING",
               {result.started.toString(Qt::ISODate), result.user, exercise.name, result.rightFirst,
                result.answered, fileName, QString::fromLatin1(digest), text,
                kept(branches, exercise.branch), kept(kinds, exercise.kind), exercise.mode,
                exercise.scaleType}) > 0;
}

void Results::derive() {
    QList<int> plain;
    database_.run("SELECT id FROM results WHERE branch = ''", {},
                  [&](const QSqlQuery& row) { plain.append(row.value(0).toInt()); });
    if (plain.isEmpty()) return;
    Transaction transaction(database_);
    for (const int id : plain) {
        const auto record = parseResultRecord(text(id).toUtf8());
        const Exercise exercise = record ? record->about() : Exercise();
        database_.run(
            "UPDATE results SET branch = ?, kind = ?, mode = ?, scale_type = ? WHERE id = ?",
            {kept(branches, exercise.branch), kept(kinds, exercise.kind), exercise.mode,
             exercise.scaleType, id});
    }
    transaction.commit();
}

QList<Result> Results::list(const QString& which, const QVariantList& values) {
    QList<Result> results;
    database_.run(
        "SELECT id, started_at, user_key, exercise, right_first, answered, branch, kind, mode,"
        " scale_type FROM results " +
            which,
        values, [&](const QSqlQuery& row) {
            const auto at = [&](int column) { return row.value(column).toString(); };
            results.append({row.value(0).toInt(),
                            QDateTime::fromString(at(1), Qt::ISODate),
                            at(2),
                            {meant(branches, at(6)), meant(kinds, at(7)), at(3), at(8), at(9)},
                            row.value(4).toInt(),
                            row.value(5).toInt()});
        });
    return results;
}

QList<Result> Results::all() {
    derive();
    return list("ORDER BY started_at DESC, id DESC");
}

QList<Result> Results::since(int id) { return list("WHERE id > ? ORDER BY id", {id}); }

int Results::newest() const {
    int id = 0;
    database_.run("SELECT COALESCE(MAX(id), 0) FROM results", {},
                  [&](const QSqlQuery& row) { id = row.value(0).toInt(); });
    return id;
}

QString Results::text(int id) const {
    QString text;
    database_.run("SELECT content FROM results WHERE id = ?", {id},
                  [&](const QSqlQuery& row) { text = row.value(0).toString(); });
    return text;
}

}  // namespace melvora
