#include "melvora/store.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace melvora {
namespace {

class StoreTest : public testing::Test {
  protected:
    QTemporaryDir folder_;
};

TEST_F(StoreTest, AFolderThatCannotBeUsedIsNamed) {
    QFile file(folder_.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QFile damaged(folder_.filePath("melvora.sqlite"));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write(QByteArray(8192, 'x'));
    damaged.close();
    for (const QString& path : {folder_.filePath("file"), folder_.path()}) try {
            const Store store(path);
            ADD_FAILURE() << "opened " << path.toStdString();
        } catch (const StoreError& error) {
            EXPECT_TRUE(QString(error.what()).contains(path)) << error.what();
        }
    EXPECT_EQ(damaged.size(), 8192) << "a file that is no store is left alone";
}

TEST_F(StoreTest, ADatabaseThatIsNotTheOneItWasIsToldBeforeItCounts) {
    const QString path = folder_.filePath("melvora.sqlite");
    {
        Store store(folder_.path());
        EXPECT_FALSE(QFileInfo(path).permission(QFile::ReadGroup | QFile::ReadOther));
        ASSERT_TRUE(QFile::rename(path, path + ".old"));
        EXPECT_THROW(store.settings.set("midi", "x"), StoreError) << "removed";
        QFile(path).open(QIODevice::WriteOnly);
        EXPECT_THROW(store.settings.set("midi", "x"), StoreError) << "replaced";
    }
    Store(folder_.path()).database.run("ALTER TABLE users RENAME COLUMN surname TO name");
    EXPECT_THROW(Store(folder_.path()), StoreError) << "a column is missing";
    QFile::remove(path);
    Store(folder_.path()).database.run("PRAGMA user_version = 2");
    EXPECT_THROW(Store(folder_.path()), StoreError) << "of a newer program";
}

TEST_F(StoreTest, OfManyThatMakeANewDatabaseAtOnceNoneFails) {
    for (int round = 0; round < 10; ++round) {
        const QString folder = folder_.filePath(QString::number(round));
        std::atomic<int> waiting = 4;
        std::vector<std::jthread> programs;
        programs.reserve(4);
        for (int program = 0; program < 4; ++program)
            programs.emplace_back([&] {
                for (--waiting; waiting > 0;) std::this_thread::yield();
                EXPECT_NO_THROW(Store(folder).log.write(LogKind::Message, nobody, "x"));
            });
        programs.clear();
        EXPECT_EQ(Store(folder).log.lines({}).size(), 4);
    }
}

TEST_F(StoreTest, AListThatBreaksOffInTheMiddleIsNoShorterList) {
    {
        Store store(folder_.path());
        Transaction all(store.database);
        for (int i = 0; i < 500; ++i) store.log.write(LogKind::Message, nobody, QString(500, 'x'));
        all.commit();
    }
    QFile file(folder_.filePath("melvora.sqlite"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() / 2 / 4096 * 4096));
    file.write(QByteArray(4096, '\xff'));
    file.close();
    Store store(folder_.path());
    EXPECT_THROW(store.log.lines({}), StoreError);
}

TEST_F(StoreTest, SettingsOutliveTheProgram) {
    Store(folder_.path()).settings.set("midi", "Klavier „Ä“");
    EXPECT_EQ(Store(folder_.path()).settings.get("midi"), QString("Klavier „Ä“"));
}

TEST_F(StoreTest, AProposedKeyIsFreeAndAllowed) {
    Store store(folder_.path());
    const User expected[] = {
        {"jdoe", "Doe", "Jane", ""},
        {"jdoe2", "Doe", "Jörg", ""},
        {"amuellerlue", "Müller-Lü", "Änne", ""},
        {"estrassenoe", "Straßenø", "Édith", ""},
        {"user", "", "", ""},
        {"ubekannt", "Bekannt", "Un", ""},
        {"unbekannt2", "unbekannt", "", ""},
    };
    for (const User& user : expected) {
        const QString key = store.users.proposeKey(user.surname, user.firstName);
        EXPECT_EQ(key, user.key);
        EXPECT_TRUE(isAllowedKey(key));
        store.users.put(user);
    }
    EXPECT_EQ(store.users.all().size(), std::ssize(expected));
    for (const char* key : {"", "UNBEKANNT", " x", "x "}) EXPECT_FALSE(isAllowedKey(key)) << key;
}

TEST_F(StoreTest, TheLogIsFilteredByKindAndText) {
    Store store(folder_.path());
    store.log.write(LogKind::Message, "anna", "100 % geübt");
    store.log.write(LogKind::Error, "anna", "grd_einst: Überlauf");
    store.log.write(LogKind::Error, "jörg", "Grdxeinst: anders");
    const auto found = [&](const Log::Filter& filter) {
        QStringList texts;
        for (const LogLine& line : store.log.lines(filter)) texts.append(line.text);
        return texts;
    };
    EXPECT_EQ(found({}), QStringList({"Grdxeinst: anders", "grd_einst: Überlauf", "100 % geübt"}));
    EXPECT_EQ(found({"GRDX", {}}), QStringList{"Grdxeinst: anders"}) << "any case";
    EXPECT_EQ(found({"grd_", {}}), QStringList{"grd_einst: Überlauf"}) << "itself, no pattern";
    EXPECT_EQ(found({"0 %", {}}), QStringList{"100 % geübt"});
    EXPECT_EQ(found({"anna", LogKind::Message}), QStringList{"100 % geübt"});
    EXPECT_EQ(found({"", {}, 1}), QStringList{"Grdxeinst: anders"});
}

TEST_F(StoreTest, TheLogKeepsTheLatestLinesAndOfLongOnesTheBeginning) {
    Store store(folder_.path());
    store.log.write(LogKind::Error, nobody, QString(50'000, 'x'));
    const QString text = store.log.lines({}).first().text;
    EXPECT_LT(text.size(), Log::longestText + 20);
    EXPECT_TRUE(text.endsWith("(50000)"));
    Transaction transaction(store.database);
    for (int i = 0; i < Log::mostLines + 3; ++i)
        store.log.write(LogKind::Message, nobody, QString::number(i));
    transaction.commit();
    store.log.prune();
    const auto lines = store.log.lines({"", {}, 2 * Log::mostLines});
    EXPECT_EQ(lines.size(), Log::mostLines);
    EXPECT_EQ(lines.last().text, "3");
}

}  // namespace
}  // namespace melvora
