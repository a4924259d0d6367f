#include "melvora/database.h"

#include "melvora/permissions.h"

#include <QDir>
#include <QSqlRecord>
#include <QThread>
#include <QUuid>

#include <sys/stat.h>

namespace melvora {

namespace {

constexpr const char* tables[] = {
    "CREATE TABLE IF NOT EXISTS settings (setting_key TEXT PRIMARY KEY, content TEXT NOT NULL)",
    "CREATE TABLE IF NOT EXISTS users (user_key TEXT PRIMARY KEY, surname TEXT NOT NULL,"
    " first_name TEXT NOT NULL, matriculation TEXT NOT NULL)",
    "CREATE TABLE IF NOT EXISTS records (user_key TEXT NOT NULL, executable TEXT NOT NULL,"
    " record_key TEXT NOT NULL, content TEXT NOT NULL, stored_at TEXT NOT NULL DEFAULT '',"
    " PRIMARY KEY (user_key, executable, record_key))",
    "CREATE TABLE IF NOT EXISTS log (id INTEGER PRIMARY KEY, logged_at TEXT NOT NULL,"
    " user_key TEXT NOT NULL, kind TEXT NOT NULL, content TEXT NOT NULL)",
    "CREATE TABLE IF NOT EXISTS results (id INTEGER PRIMARY KEY, started_at TEXT NOT NULL,"
    " user_key TEXT NOT NULL, exercise TEXT NOT NULL, right_first INTEGER NOT NULL,"
    " answered INTEGER NOT NULL, file_name TEXT NOT NULL, digest TEXT NOT NULL,"
    " content TEXT NOT NULL, branch TEXT NOT NULL DEFAULT '', kind TEXT NOT NULL DEFAULT '',"
    " mode TEXT NOT NULL DEFAULT '', scale_type TEXT NOT NULL DEFAULT '',"
    " UNIQUE (file_name, digest))",
};

/// What a database must answer to be usable.
constexpr const char* uses[] = {
    "SELECT setting_key, content FROM settings LIMIT 0",
    "SELECT user_key, surname, first_name, matriculation FROM users LIMIT 0",
    "SELECT user_key, executable, record_key, content, stored_at FROM records LIMIT 0",
    "SELECT id, logged_at, user_key, kind, content FROM log LIMIT 0",
    "SELECT id, started_at, user_key, exercise, right_first, answered FROM results LIMIT 0",
    "SELECT file_name, digest, content, branch, kind, mode, scale_type FROM results LIMIT 0",
};
/// Grows when a program of this version could not use the tables of the next.
constexpr int schema = 1;

struct Column {
    const char* table;
    const char* name;
    const char* type;
};

/// What tables made by older versions lack.
constexpr Column addedColumns[] = {
    {"records", "stored_at", "TEXT NOT NULL DEFAULT ''"},
    {"results", "branch", "TEXT NOT NULL DEFAULT ''"},
    {"results", "kind", "TEXT NOT NULL DEFAULT ''"},
    {"results", "mode", "TEXT NOT NULL DEFAULT ''"},
    {"results", "scale_type", "TEXT NOT NULL DEFAULT ''"},
};

/// A null text means an empty one here; the database would take it for NULL.
QVariant bound(const QVariant& value) {
    const bool isNullText = value.typeId() == QMetaType::QString && value.toString().isNull();
    return isNullText ? QVariant(QString("")) : value;
}

}  // namespace

Database::Database(const QString& folder)
    : path_(QDir(folder).absoluteFilePath("melvora.sqlite")),
      name_(QUuid::createUuid().toString(QUuid::WithoutBraces)) {
    const bool isNew = !QDir(folder).exists();
    if (!QDir().mkpath(folder)) fail("the folder cannot be made");
    if (isNew) closeToOthers(folder);
    // The database gives its permissions to the files that it keeps beside it.
    if (QFile file(path_); file.open(QIODevice::ReadWrite)) closeToOthers(path_);
    identity_ = identity();
    QElapsedTimer since;
    since.start();
    while (!prepared(since)) QThread::msleep(20);
}

/// False when another program prepares the same database: what it holds then it gives back soon,
/// but the database does not wait for that by itself.
bool Database::prepared(const QElapsedTimer& since) {
    try {
        open();
        checkSchema();
        makeTables();
        return true;
    } catch (const StoreBusy&) {
        QSqlDatabase::removeDatabase(name_);
        if (since.hasExpired(patience_.count())) throw;
        return false;
    } catch (...) {
        QSqlDatabase::removeDatabase(name_);
        throw;
    }
}

Database::~Database() {
    statements_.clear();
    QSqlDatabase::removeDatabase(name_);
}

void Database::open() {
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", name_);
    database.setDatabaseName(path_);
    if (!database.open()) fail(database.lastError());
    setPatience(patience_);
    for (const char* pragma : {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL"}) {
        QSqlQuery query(database);
        if (!query.exec(pragma)) fail(query.lastError());
    }
}

/// A file that could only be read when it was opened stays so until it is opened again.
void Database::openAgainToWrite() {
    if (!onlyRead_) return;
    statements_.clear();
    QSqlDatabase::removeDatabase(name_);
    open();
    onlyRead_ = false;
}

void Database::makeTables() {
    const QSqlDatabase database = QSqlDatabase::database(name_);
    const auto execute = [&](const QString& sql) {
        QSqlQuery query(database);
        if (!query.exec(sql)) fail(query.lastError());
    };
    for (const char* table : tables) execute(table);
    for (const Column& column : addedColumns)
        if (!database.record(column.table).contains(column.name))
            execute(QString("ALTER TABLE %1 ADD COLUMN %2 %3")
                        .arg(column.table, column.name, column.type));
    for (const char* use : uses) execute(use);
}

/// A database of a newer program is left alone.
void Database::checkSchema() {
    QSqlQuery query(QSqlDatabase::database(name_));
    if (!query.exec("PRAGMA user_version") || !query.next()) fail(query.lastError());
    const int found = query.value(0).toInt();
    query.finish();
    if (found > schema) fail("was written by a newer Melvora; install that one");
    if (found < schema && !query.exec(QString("PRAGMA user_version = %1").arg(schema)))
        fail(query.lastError());
}

int Database::run(const QString& sql, const QVariantList& values, const Row& row) {
    openAgainToWrite();
    auto found = statements_.find(sql);
    if (found == statements_.end()) {
        QSqlQuery fresh(QSqlDatabase::database(name_));
        fresh.setForwardOnly(true);
        if (!fresh.prepare(sql)) fail(fresh.lastError());
        found = statements_.emplace(sql, std::move(fresh)).first;
    }
    QSqlQuery& query = found->second;
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(static_cast<int>(i), bound(values[i]));
    if (!query.exec()) {
        const QSqlError error = query.lastError();
        query.finish();
        fail(error);
    }
    while (row && query.next()) row(query);
    // A list that breaks off in the middle is no shorter list.
    const QSqlError broken = query.lastError();
    const int changed = query.numRowsAffected();
    query.finish();
    if (broken.isValid()) fail(broken);
    if (!query.isSelect() && identity() != identity_)
        fail(
            "the file was removed or replaced while Melvora runs; quit Melvora and start it again");
    return changed;
}

Database::Identity Database::identity() const {
    struct stat about {};
    if (stat(QFile::encodeName(path_).constData(), &about) != 0) return {};
    return {about.st_dev, about.st_ino};
}

void Database::setPatience(std::chrono::milliseconds patience) {
    patience_ = patience;
    QSqlQuery query(QSqlDatabase::database(name_));
    if (!query.exec(QString("PRAGMA busy_timeout = %1").arg(patience.count())))
        fail(query.lastError());
}

void Database::fail(const QString& cause) {
    throw StoreError((path_ + ": " + cause).toStdString());
}

void Database::fail(const QSqlError& error) {
    // The lower eight bits of an error are its kind; the others say more about it.
    constexpr int kind = 0xff, busy = 5, readOnly = 8;
    const int found = error.nativeErrorCode().toInt() & kind;
    onlyRead_ |= found == readOnly;
    if (found != busy) fail(error.databaseText());
    throw StoreBusy((path_ + ": another program holds the database").toStdString());
}

Transaction::Transaction(Database& database) : database_(database) {
    database.openAgainToWrite();
    auto connection = QSqlDatabase::database(database.name_);
    if (!connection.transaction()) database.fail(connection.lastError());
}

Transaction::~Transaction() {
    if (open_) QSqlDatabase::database(database_.name_).rollback();
}

void Transaction::commit() {
    auto connection = QSqlDatabase::database(database_.name_);
    if (!connection.commit()) database_.fail(connection.lastError());
    open_ = false;
}

}  // namespace melvora
