#include "melvora/requests.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace melvora {
namespace {

using core::Value;

class RequestsTest : public testing::Test {
  protected:
    Value ask(const char* key, const Value& argument, const Value& standard = {}) {
        Value result = standard;
        EXPECT_TRUE(requests_.answer(key, argument, result)) << key;
        return result;
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
        Value result("default");
        EXPECT_FALSE(requests_.answer(row.key, row.argument, result));
        EXPECT_EQ(result == Value("default"), row.key != "STORE") << "a store says why";
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
    const auto store = [&](const std::string& text) {
        Value result;
        return requests_.answer("STORE", Value(Value::Array{"zepha9", "E1", Value::Array{text, 1}}),
                                result);
    };
    EXPECT_TRUE(store("kept"));
    Database& database = host_.store().database;
    QString pages;
    database.run("PRAGMA page_count", {},
                 [&](const QSqlQuery& row) { pages = row.value(0).toString(); });
    database.run("PRAGMA max_page_count = " + pages, {}, [](const auto&) {});
    EXPECT_FALSE(store(std::string(1 << 20, 'x')));
    ASSERT_EQ(notices.size(), 1);
    EXPECT_TRUE(notices[0].contains(database.path()));
    EXPECT_EQ(ask("READ", Value::Array{"zepha9", "E1"}).at(0), Value("kept"));
    EXPECT_TRUE(store("small"));
}

}  // namespace
}  // namespace melvora
