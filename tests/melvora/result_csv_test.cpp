#include "melvora/result_csv.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace melvora {
namespace {

QString contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

const QByteArray record = R"(<exercise><properties programm="ZEPHA9" ukey="a"
timestamp="02.01.2026 10:05:00"/><settings><setting key="Übungsmodus" value="Test"/>
<setting key="Stimmung" value="rein"/></settings><lessons><lesson><properties>
<property key="Tonskala" value="Dur, &quot;natürlich&quot;"/></properties><answers>
<answer lfd="1"><property key="Antwort" value="false"/><property key="Skala" value="Moll"/></answer>
<answer lfd="2"><property key="Antwort" value="true"/><property key="Skala" value="Dur"/>
<property key="Dauer Antwort" value="2.5"/></answer></answers></lesson></lessons></exercise>)";

TEST(ResultCsv, HasALineForEachAnswerAndOneForEachRun) {
    const QTemporaryDir folder;
    ResultCsv csv(folder.filePath("r.csv"));
    Result result{7,   QDateTime({2026, 1, 2}, {10, 0}),
                  "a", {Branch::Theory, Kind::Identify, "x", "Test", "Dur"},
                  0,   1};
    csv.add(result, "Ann, A.", parseResultRecord(record));
    result.id = 8;
    csv.add(result, "line\nbreak", {});
    csv.finish();
    EXPECT_EQ(csv.answers(), 2);
    EXPECT_EQ(csv.unreadable(), 1);
    EXPECT_EQ(contentOf(csv.answersFile()),
              "run,task,scale,attempt,named,right,seconds\r\n"
              "7,1,\"Dur, \"\"natürlich\"\"\",1,Moll,0,\r\n"
              "7,1,\"Dur, \"\"natürlich\"\"\",2,Dur,1,2.5\r\n");
    EXPECT_EQ(
        contentOf(csv.runsFile()),
        "run,started,ended,user,branch,exercise,mode,scale_type,tuning,timbre,tasks,answered,"
        "right_first,readable\r\n"
        "7,2026-01-02T10:00:00,2026-01-02T10:05:00,\"Ann, A.\",theory,identify,Test,Dur,rein,,"
        "1,1,0,1\r\n"
        "8,2026-01-02T10:00:00,,\"line\nbreak\",theory,identify,Test,Dur,,,,1,0,0\r\n");
}

TEST(ResultCsv, AFileThatCannotBeWrittenIsNamedAndOneThatIsNotFinishedChangesNothing) {
    const QTemporaryDir folder;
    EXPECT_THROW(ResultCsv(folder.filePath("missing/r.csv")), CsvError);
    QDir(folder.path()).mkdir("r-runs.csv");
    EXPECT_THROW(ResultCsv(folder.filePath("r.csv")), CsvError) << "one of the two";
    { const ResultCsv broken(folder.filePath("other.csv")); }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

}  // namespace
}  // namespace melvora
