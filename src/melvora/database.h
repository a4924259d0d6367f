#pragma once
#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include <chrono>
#include <functional>
#include <map>
#include <stdexcept>
#include <utility>

namespace melvora {

/// The store cannot be read or written; the text names the file and the cause.
class StoreError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Another program holds the database; what was wanted was not done, and may be tried again.
class StoreBusy : public StoreError {
  public:
    using StoreError::StoreError;
};

/// One connection to the store's database. A statement is prepared at its first use and kept.
/// What a statement outside a Transaction has written is on the disk when it returns.
class Database {
  public:
    using Row = std::function<void(const QSqlQuery&)>;

    /// Opens the SQLite file in `folder`, makes both when they are missing, and the tables with
    /// them. Tables of an older version get the columns that they lack. Of several programs that
    /// open the same new file at once, one waits for the other.
    /// @throws StoreError
    explicit Database(const QString& folder);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Runs a statement with its values in place of the question marks and hands each row to `row`.
    /// @return number of rows changed
    /// @throws StoreError also when the file is another one by now: what was written is lost then
    int run(const QString& sql, const QVariantList& values = {}, const Row& row = {});

    /// How long a statement waits while another program holds the database, before StoreBusy: two
    /// seconds from the start.
    void setPatience(std::chrono::milliseconds patience);

    const QString& path() const { return path_; }

  private:
    friend class Transaction;

    bool prepared(const QElapsedTimer& since);
    void open();
    void openAgainToWrite();
    void checkSchema();
    void makeTables();
    [[noreturn]] void fail(const QString& cause);
    [[noreturn]] void fail(const QSqlError& error);

    /// Tells one file from another that bears its name.
    using Identity = std::pair<quint64, quint64>;
    Identity identity() const;

    QString path_;
    QString name_;
    Identity identity_;
    std::chrono::milliseconds patience_{2000};
    bool onlyRead_ = false;  ///< a statement could not write for that since the file was opened
    std::map<QString, QSqlQuery> statements_;
};

/// All or nothing: what is run on the database during its life is undone unless it is committed.
class Transaction {
  public:
    /// @throws StoreError
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// @throws StoreError
    void commit();

  private:
    Database& database_;
    bool open_ = true;
};

}  // namespace melvora
