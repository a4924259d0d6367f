#include "melvora/requests.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace melvora {
namespace {

using core::Value;

class RequestsTest : public testing::Test {
  protected:
    struct Answer {
        bool carriedOut;
        Value result;
    };
    /// Nothing as long as there is no reply.
    std::shared_ptr<std::optional<Answer>> send(const QString& key,
                                                const std::optional<Value>& argument,
                                                const Value& standard = {}) {
        auto answer = std::make_shared<std::optional<Answer>>();
        requests_.answer(key, argument, standard, [answer](bool carriedOut, const Value& result) {
            EXPECT_FALSE(*answer) << "one reply";
            *answer = Answer{carriedOut, result};
        });
        return answer;
    }
    Value ask(const char* key, const Value& argument, const Value& standard = {}) {
        const auto answer = send(key, argument, standard);
        EXPECT_TRUE(*answer && (*answer)->carriedOut) << key;
        return *answer ? (*answer)->result : Value();
    }
    std::shared_ptr<std::optional<Answer>> store(const std::string& text) {
        return send("STORE", Value(Value::Array{"zepha9", "E1", Value::Array{text, 1}}));
    }

    QTemporaryDir folder_;
    Words words_{MELVORA_LANGUAGES};
    Host host_{{folder_.path(), "unix:path=/nowhere", {}}, words_};
    Requests requests_{host_};
};

TEST_F(RequestsTest, WhatCannotBeCarriedOutIsRefusedAndLogged) {
    using Array = Value::Array;
    struct Row {
        const char* name;
        QString key;
        std::optional<Value> argument;
    };
    const std::string
        folder = folder_.path().toStdString(),
        nearby = QDir::current().relativeFilePath(folder_.filePath("melvora.sqlite")).toStdString();
    const Row rows[] = {
        {"unknown key, very long", QString(1'000'000, 'x'), Value("")},
        {"unknown type", "LANG", {}},
        {"read with a number for a key", "READ", Value(Array{"zepha9", 1})},
        {"store of a text", "STORE", Value(Array{"zepha9", "E1", "text"})},
        {"store of 50 MB", "STORE",
         Value(Array{"zepha9", "E1", Array{std::string(50 << 20, 'x'), 1}})},
        {"store of too many", "STORE", Value(Array{"zepha9", "E1", Array(1'000'000, Value(1))})},
        {"error with three elements", "LOGERR", Value(Array{"a", 1, "b"})},
        {"unknown module", "RAISE", Value("/bin/sh")},
        {"relative path", "RAISE", Value(Array{"zepha9", nearby})},
        {"folder for a file", "RAISE", Value(Array{"zepha9", folder})},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const auto before = host_.store().log.lines({}).size();
        const auto answer = send(row.key, row.argument, "default");
        ASSERT_TRUE(*answer);
        EXPECT_FALSE((*answer)->carriedOut);
        EXPECT_EQ((*answer)->result == Value("default"), row.key != "STORE") << "a store says why";
        const auto lines = host_.store().log.lines({});
        ASSERT_GT(lines.size(), before);
        EXPECT_EQ(lines.first().kind, LogKind::Error);
        EXPECT_LT(lines.first().text.size(), 200);
    }
    EXPECT_EQ(ask("READ", Value::Array{"zepha9", "E1"}).at(1), Value("NIL"));
}

TEST_F(RequestsTest, RecordsBelongToWhoIsLoggedInAndTheModuleIsToldWhoThatIs) {
    EXPECT_EQ(ask("LOGIN", "", Value::Array{"x"}), Value(Value::Array{"unbekannt"}));
    ask("STORE", Value::Array{"zepha9", "E1", Value::Array{"nobody's", 1}});
    host_.putUser({"jörg", "Doe", "Jörg", "4711"});
    ASSERT_TRUE(host_.logIn("jörg"));
    EXPECT_EQ(ask("LOGIN", ""), Value(Value::Array{"jörg", "Doe", "Jörg", "4711"}));
    EXPECT_EQ(ask("READ", Value::Array{"zepha9", "E1"}).at(1), Value("NIL"));
    ask("STORE", Value::Array{"zepha9", "E1", Value::Array{"his", 1}});
    host_.logIn({});
    EXPECT_EQ(ask("READ", Value::Array{"zepha9", "E1"}).at(0), Value("nobody's"));
    EXPECT_FALSE(host_.logIn("nobody has this key"));
}

TEST_F(RequestsTest, TellsLanguageAndDeviceAndTakesMessagesAndErrors) {
    ASSERT_TRUE(host_.chooseLanguage("Français"));
    EXPECT_FALSE(host_.chooseLanguage("Klingon"));
    EXPECT_EQ(ask("LANG", "", "Deutsch"), Value("Français"));
    host_.chooseMidiDevice("a device that is not there");
    EXPECT_EQ(ask("MIDI", {}), Value("-1"));
    EXPECT_EQ(ask("APP", {}).at(1), Value("")) << "no module was started";
    ask("LOGMESS", "Übung beginnt");
    ask("LOGERR", Value::Array{"zepha9.cmdOK_click.", 6, "Überlauf", "zepha9"});
    const auto lines = host_.store().log.lines({});
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[1].text, "Übung beginnt");
    EXPECT_EQ(lines[1].kind, LogKind::Message);
    EXPECT_EQ(lines[0].text, "zepha9.cmdOK_click.: Überlauf (6, zepha9)");
    EXPECT_EQ(lines[0].kind, LogKind::Error);
}

TEST_F(RequestsTest, AFullDiskIsToldOfWithItsPathAndLosesNothing) {
    QStringList notices;
    QObject::connect(&host_, &Host::noticed, [&](const QString& text) { notices.append(text); });
    const auto kept = [&](const std::string& text) { return (*store(text))->carriedOut; };
    EXPECT_TRUE(kept("kept"));
    Database& database = host_.store().database;
    QString pages;
    database.run("PRAGMA page_count", {},
                 [&](const QSqlQuery& row) { pages = row.value(0).toString(); });
    database.run("PRAGMA max_page_count = " + pages, {}, [](const auto&) {});
    EXPECT_FALSE(kept(std::string(1 << 20, 'x')));
    ASSERT_EQ(notices.size(), 1);
    EXPECT_TRUE(notices[0].contains(database.path()));
    EXPECT_EQ(ask("READ", Value::Array{"zepha9", "E1"}).at(0), Value("kept"));
    EXPECT_TRUE(kept("small"));
}

/// While another program holds the database, everything else is answered, and what waits is done in
/// its order as soon as it can be.
TEST_F(RequestsTest, AStoreThatIsHeldMakesOnlyThoseWaitWhoNeedIt) {
    host_.begin();
    auto other = QSqlDatabase::addDatabase("QSQLITE", "other");
    other.setDatabaseName(host_.store().database.path());
    ASSERT_TRUE(other.open());
    const auto hold = [&](bool held) {
        EXPECT_TRUE(QSqlQuery(other).exec(held ? "BEGIN EXCLUSIVE" : "ROLLBACK"));
    };
    hold(true);
    const auto first = store("first"), second = store("second");
    host_.putUser({"jörg", "Doe", "Jörg", "4711"});
    EXPECT_EQ(ask("LANG", ""), Value("Deutsch"));
    EXPECT_FALSE(*first || *second);
    hold(false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return host_.store().users.find("jörg").has_value(); }));
    EXPECT_TRUE((*first)->carriedOut && (*second)->carriedOut);
    EXPECT_EQ(ask("READ", Value::Array{"zepha9", "E1"}).at(0), Value("second"));

    hold(true);
    QFile record(folder_.filePath("spool/RSX261121120000.xml"));
    ASSERT_TRUE(record.open(QIODevice::WriteOnly));
    record.write("<exercise><properties programm='ZEPHA9'/><lessons/></exercise>");
    record.close();
    const auto third = store("third");
    EXPECT_TRUE(QTest::qWaitFor([&] { return third->has_value(); }));
    EXPECT_FALSE((*third)->carriedOut);
    EXPECT_TRUE(QString::fromStdString((*third)->result.text()).contains("melvora.sqlite"));
    hold(false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return host_.store().results.all().size() == 1; }));
    EXPECT_FALSE(record.exists());
    other.close();
}

}  // namespace
}  // namespace melvora
