#include "melvora/trainings.h"

#include "melvora/store.h"

#include <QDir>
#include <QSqlDatabase>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace melvora {
namespace {

using core::Value;

const Value left = Value::Array{"true", 1};
const Value settings = Value::Array{"settings", 1};

class TrainingsTest : public testing::Test {
  protected:
    static void leave(Store& store, const QString& user, const QString& exercise) {
        store.records.store({user, "zepha9", 'E' + exercise}, settings);
        store.records.store({user, "zepha9", 'A' + exercise}, left);
    }
    static QStringList saved(const Store& store, const QString& user) {
        QStringList exercises;
        for (const Training& training : store.trainings.of(user)) exercises << training.exercise;
        return exercises;
    }

    QTemporaryDir folder_;
};

TEST_F(TrainingsTest, ADatabaseOfAnOlderVersionKeepsItsRecordsAndGetsTimes) {
    {
        auto old = QSqlDatabase::addDatabase("QSQLITE", "old");
        old.setDatabaseName(folder_.filePath("melvora.sqlite"));
        ASSERT_TRUE(old.open());
        QSqlQuery query(old);
        for (const char* sql :
             {"CREATE TABLE records (user_key TEXT NOT NULL, executable TEXT NOT NULL,"
              " record_key TEXT NOT NULL, content TEXT NOT NULL,"
              " PRIMARY KEY (user_key, executable, record_key))",
              "INSERT INTO records VALUES ('anna', 'zepha9', 'E4b', '[\"settings\",1]')",
              "INSERT INTO records VALUES ('anna', 'zepha9', 'A4b', '[\"true\",1]')"})
            ASSERT_TRUE(query.exec(sql)) << sql;
    }
    QSqlDatabase::removeDatabase("old");
    for (const char* opening : {"first", "second"}) {
        SCOPED_TRACE(opening);
        Store store(folder_.path());
        EXPECT_EQ(store.records.read({"anna", "zepha9", "E4b"}), settings);
        ASSERT_EQ(saved(store, "anna"), QStringList{"4b"});
        EXPECT_FALSE(store.trainings.of("anna")[0].saved.isValid());
    }
    Store store(folder_.path());
    leave(store, "anna", "4b");
    const QDateTime time = store.trainings.of("anna").at(0).saved;
    EXPECT_LT(std::abs(time.secsTo(QDateTime::currentDateTime())), 60);
}

TEST_F(TrainingsTest, OnlyAStateThatWasLeftWithItsSettingsCounts) {
    Store store(folder_.path());
    for (const Value& state :
         {Value(Value::Array{"False"}), Value("true"), Value(Value::Array{1, "true"}), left}) {
        store.records.store({"eva", "zepha9", "A1b"}, state);
        EXPECT_TRUE(saved(store, "eva").isEmpty()) << "without settings";
        store.records.store({"jan", "zepha9", "E1b"}, settings);
        store.records.store({"jan", "zepha9", "A1b"}, state);
        EXPECT_EQ(saved(store, "jan").size(), state == left ? 1 : 0);
    }
    for (const char* exercise : {"4b", "1b", "4", "1", "2"}) leave(store, "anna", exercise);
    EXPECT_EQ(saved(store, "anna"), (QStringList{"1", "4", "1b", "4b"}));
}

TEST_F(TrainingsTest, DeletionTakesBothRecordsOrNoneAndNothingElse) {
    Store store(folder_.path());
    for (const char* user : {"anna", nobody})
        for (const char* exercise : {"1", "1b"}) leave(store, user, exercise);
    const Training training = store.trainings.of("anna").at(0);
    for (const char* key : {"E1", "A1"}) {
        SCOPED_TRACE(key);
        store.database.run(QString("CREATE TRIGGER guard BEFORE DELETE ON records"
                                   " WHEN old.record_key = '%1'"
                                   " BEGIN SELECT RAISE(ABORT, 'guarded'); END")
                               .arg(key));
        EXPECT_THROW(store.trainings.remove(training), StoreError);
        EXPECT_EQ(saved(store, "anna"), (QStringList{"1", "1b"}));
        store.database.run("DROP TRIGGER guard");
    }
    store.trainings.remove(training);
    for (const char* key : {"E1", "A1"})
        EXPECT_FALSE(store.records.read({"anna", "zepha9", key})) << key;
    EXPECT_EQ(saved(store, "anna"), QStringList{"1b"});
    EXPECT_EQ(saved(store, nobody), (QStringList{"1", "1b"}));
}

}  // namespace
}  // namespace melvora
