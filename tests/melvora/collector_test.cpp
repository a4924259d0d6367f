#include "melvora/collector.h"

#include "melvora/store.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace melvora {
namespace {

const QByteArray record = R"(<?xml version="1.0" encoding="utf-8"?>
<exercise>
 <properties programm="ZEPHA9" ukey="jörg" exercise="bestimmen" timestamp="21.11.2026 12:00:09"
  description="Untersuchung: bestimmen"/>
 <settings><setting key="Tempo" value="90"/></settings>
 <lessons>
  <lesson><properties><property key="Tonskala" value="C dorisch"/></properties><answers>
   <answer lfd="1"><property key="Antwort" value="false"/><property key="Skala" value="Dur"/></answer>
   <answer lfd="2"><property key="Antwort" value="true"/></answer>
  </answers></lesson>
  <lesson><properties/><answers><answer lfd="1"><property key="Antwort" value="true"/></answer></answers></lesson>
  <lesson><properties/><answers/></lesson>
 </lessons>
</exercise>)";

class CollectorTest : public testing::Test {
  protected:
    CollectorTest() { EXPECT_EQ(collector_.trouble(), ""); }

    void put(const QString& name, const QByteArray& text) {
        QFile file(spool(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QString spool(const QString& name) const { return folder_.filePath("spool/" + name); }

    Collector::Harvest collect() { return collector_.collect(Collector::When::AfterRun); }

    QTemporaryDir folder_;
    Store store_{folder_.path()};
    Collector collector_{folder_.filePath("spool"), store_.results};
};

TEST_F(CollectorTest, TakesARecordWhenItIsWholeOnceAndClearsItAway) {
    put("RSX261121120000.xml", record.left(100));
    const auto early = collector_.collect(Collector::When::DuringRun);
    EXPECT_EQ(early.taken, 0);
    EXPECT_TRUE(early.unreadable.isEmpty());
    for (const int taken : {1, 0}) {  // the second time it was left behind
        put("RSX261121120000.xml", record);
        EXPECT_EQ(collect().taken, taken);
    }
    EXPECT_FALSE(QFile::exists(spool("RSX261121120000.xml")));
    const auto results = store_.results.all();
    ASSERT_EQ(results.size(), 1);
    EXPECT_EQ(results[0].started, QDateTime({2026, 11, 21}, {12, 0, 0}));
    EXPECT_EQ(results[0].user, "jörg");
    const Exercise& about = results[0].exercise;
    EXPECT_EQ(about.name, "bestimmen");
    EXPECT_EQ(about.kind, Kind::Identify);
    EXPECT_EQ(about.branch, Branch::Unknown) << "the settings do not say";
    EXPECT_EQ(results[0].rightFirst, 1);
    EXPECT_EQ(results[0].answered, 2);
    EXPECT_EQ(store_.results.text(results[0].id), QString::fromUtf8(record));
    put("RSX261121120000.xml", QByteArray(record).replace("dorisch", "lydisch"));
    EXPECT_EQ(collect().taken, 1) << "another run of the same second";
    EXPECT_EQ(store_.results.all().size(), 2);
}

/// What a record does not say by itself is told by what was set and how it was answered.
TEST_F(CollectorTest, WhatWasPractisedIsDerivedAlsoForResultsOfOlderVersions) {
    const QByteArray settings = R"(<settings><setting key="Übungsmodus" value="Test"/>
  <setting key="Klangfarbe" value="Violin"/><setting key="Skalentyp" value="Church modes"/></settings>)";
    const QByteArray sounding = QByteArray(record).replace(
        record.indexOf("<settings>"),
        record.indexOf("</settings>") + 11 - record.indexOf("<settings>"), settings);
    const QByteArray seen =
        QByteArray(sounding).replace(R"(<setting key="Klangfarbe" value="Violin"/>)", "");
    const QByteArray written =
        QByteArray(seen)
            .replace(R"(<property key="Skala" value="Dur"/>)",
                     R"(<property key="FalschSkala" value="3"/>)")
            .replace(R"(<answer lfd="2">)", R"(<answer lfd="2"><property key="Skala" value="1"/>)");
    const QByteArray untouched =
        "<exercise><properties programm='ZEPHA9' exercise='write'/></exercise>";
    const QByteArray texts[] = {sounding, seen, written, untouched};
    for (qsizetype i = 0; i < std::ssize(texts); ++i)
        put(QString("RSX26112112000%1.xml").arg(i), texts[i]);
    ASSERT_EQ(collect().taken, std::ssize(texts));
    for (const char* reading : {"as taken", "as an older version left it"}) {
        SCOPED_TRACE(reading);
        const auto results = store_.results.all();  // newest first
        const std::pair<Branch, Kind> expected[] = {{Branch::Unknown, Kind::Unknown},
                                                    {Branch::Theory, Kind::Write},
                                                    {Branch::Theory, Kind::Identify},
                                                    {Branch::Ear, Kind::Identify}};
        ASSERT_EQ(results.size(), std::ssize(expected));
        for (qsizetype i = 0; i < results.size(); ++i) {
            const Exercise& about = results[i].exercise;
            EXPECT_EQ(std::pair(about.branch, about.kind), expected[i]) << i;
            EXPECT_EQ(about.mode, i == 0 ? "" : "Test");
            EXPECT_EQ(about.scaleType, i == 0 ? "" : "Church modes");
        }
        store_.database.run(
            "UPDATE results SET branch = '', kind = '', mode = '', scale_type = ''");
    }
    const auto named = parseResultRecord(written);
    ASSERT_TRUE(named);
    for (const auto& answer : named->lessons[0].answers) EXPECT_EQ(answer.scale, "");
}

TEST_F(CollectorTest, KeepsWhatIsNoRecordAndTellsOfItOnce) {
    const QByteArray texts[] = {"",
                                "no xml",
                                record.left(record.size() / 2),
                                "<test><properties programm='ZEPHA9'/></test>",
                                QString::fromUtf8(record).toLatin1(),
                                QByteArray(record).replace("utf-8", "ISO-8859-1"),
                                QByteArray("\xff\xfe") + record};
    const auto name = [](qsizetype i) { return QString("RSX%1.xml").arg(i); };
    for (qsizetype i = 0; i < std::ssize(texts); ++i) put(name(i), texts[i]);
    put("RSX261121120000.xml", record);
    put("other.xml", record);
    const auto first = collect();
    EXPECT_EQ(first.taken, 1);
    EXPECT_EQ(first.unreadable.size(), std::ssize(texts));
    EXPECT_TRUE(collect().unreadable.isEmpty());
    for (qsizetype i = 0; i < std::ssize(texts); ++i) EXPECT_TRUE(QFile::exists(spool(name(i))));
    EXPECT_TRUE(QFile::exists(spool("other.xml")));
}

/// Whatever lies in the folder, looking at it neither waits nor follows, and nothing is lost.
TEST_F(CollectorTest, OddThingsAreToldOnceAndStay) {
    const QByteArray pipe = QFile::encodeName(spool("RSX1.xml"));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    put("elsewhere", record);
    QFile::link(spool("RSX1.xml"), spool("RSX2.xml"));
    QFile::link("/dev/zero", spool("RSX3.xml"));
    QFile::link(spool("elsewhere"), spool("RSX4.xml"));
    QDir().mkdir(spool("RSX5.xml"));
    QFile huge(spool("RSX6.xml"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(qint64{65} << 20));
    put("RSX261121120000.xml.part", record.left(200));
    EXPECT_EQ(collector_.collect(Collector::When::DuringRun).unreadable.size(), 0);
    const auto first = collect();
    EXPECT_EQ(first.taken, 0);
    EXPECT_EQ(first.unreadable.size(), 7);
    EXPECT_TRUE(QFile::exists(spool("unfinished-RSX261121120000.xml"))) << "kept aside";
    EXPECT_TRUE(collect().unreadable.isEmpty());
    EXPECT_TRUE(QFile::exists(spool("RSX4.xml")));
    EXPECT_FALSE(QFileInfo(spool("")).permission(QFile::ReadGroup | QFile::ReadOther));
}

TEST_F(CollectorTest, AFolderThatIsNoneIsToldAndOneThatIsMissingIsMade) {
    QDir(spool("")).removeRecursively();
    EXPECT_EQ(collector_.trouble(), "");
    put("RSX261121120000.xml", record);
    EXPECT_EQ(collect().taken, 1);
    QDir(spool("")).removeRecursively();
    QFile file(folder_.filePath("spool"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(collector_.trouble().startsWith(folder_.filePath("spool")));
}

TEST_F(CollectorTest, AFileStaysWhenTheStoreCannotTakeIt) {
    put("RSX261121120000.xml", record);
    store_.database.run("PRAGMA query_only = 1", {}, [](const auto&) {});
    EXPECT_THROW(collect(), StoreError);
    EXPECT_TRUE(QFile::exists(spool("RSX261121120000.xml")));
    store_.database.run("PRAGMA query_only = 0", {}, [](const auto&) {});
    EXPECT_EQ(collect().taken, 1);
}

}  // namespace
}  // namespace melvora
