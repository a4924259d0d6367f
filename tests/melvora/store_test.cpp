#include "melvora/store.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
    for (const QString& path :
         {folder_.filePath("file"), folder_.filePath("file/below"), folder_.path()}) {
        SCOPED_TRACE(path.toStdString());
        try {
            const Store store(path);
            ADD_FAILURE() << "opened";
        } catch (const StoreError& error) {
            EXPECT_NE(std::string(error.what()).find(path.toStdString()), std::string::npos);
        }
    }
    EXPECT_EQ(damaged.size(), 8192) << "a file that is no store is left alone";
}

TEST_F(StoreTest, SettingsOutliveTheProgram) {
    Store(folder_.path()).settings.set("midi", "Klavier „Ä“");
    EXPECT_EQ(Store(folder_.path()).settings.get("midi"), QString("Klavier „Ä“"));
}

TEST_F(StoreTest, AProposedKeyIsFreeAndAllowed) {
    Store store(folder_.path());
    struct Row {
        const char* surname;
        const char* firstName;
        const char* key;
    };
    const Row rows[] = {
        {"Doe", "Jane", "jdoe"}, {"Doe", "Jörg", "jdoe2"},      {"Müller-Lü", "Änne", "amullerlu"},
        {"", "", "user"},        {"Bekannt", "Un", "ubekannt"}, {"unbekannt", "", "unbekannt2"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.key);
        const QString key = store.users.proposeKey(row.surname, row.firstName);
        EXPECT_EQ(key, QString(row.key));
        EXPECT_TRUE(isAllowedKey(key));
        store.users.put({key, row.surname, row.firstName, ""});
    }
    EXPECT_EQ(store.users.all().size(), std::ssize(rows));
    for (const char* key : {"", "UNBEKANNT", " x", "x "}) EXPECT_FALSE(isAllowedKey(key)) << key;
}

TEST_F(StoreTest, TheLogIsFilteredByKindAndText) {
    Store store(folder_.path());
    store.log.write(LogKind::Message, "anna", "100 % geübt");
    store.log.write(LogKind::Error, "anna", "grd_einst: Überlauf");
    store.log.write(LogKind::Error, "jörg", "Grdxeinst: anders");
    struct Row {
        const char* name;
        Log::Filter filter;
        QStringList texts;
    };
    const Row rows[] = {
        {"all, newest first", {}, {"Grdxeinst: anders", "grd_einst: Überlauf", "100 % geübt"}},
        {"any case", {"GRDX", {}}, {"Grdxeinst: anders"}},
        {"underscore is itself", {"grd_", {}}, {"grd_einst: Überlauf"}},
        {"percent is itself", {"0 %", {}}, {"100 % geübt"}},
        {"both", {"anna", LogKind::Message}, {"100 % geübt"}},
        {"at most", {"", {}, 1}, {"Grdxeinst: anders"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QStringList texts;
        for (const LogLine& line : store.log.lines(row.filter)) texts.append(line.text);
        EXPECT_EQ(texts, row.texts);
    }
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
