#include "sim/traced_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace sim::test {

namespace {

TEST(Trace, EveryLineIsAnObjectWithItsFields) {
    const std::map<QString, QStringList> fields{
        {"run", {"skal_typ", "richtung", "uebungsmodus", "n", "tonAnz", "restZeit"}},
        {"task", {"t", "skala_nr", "akt_richtung", "transp", "noten", "ton_abfolg", "matbox"}},
        {"midi", {"t", "status", "data1", "data2", "time"}},
        {"answer", {"t", "index", "right", "punkte", "AntwDau", "aufgZustand"}},
        {"closed", {"booked", "matbox_zahl", "FloodPercent", "weights", "restAufgaben"}},
        {"clock", {"restZeit"}},
        {"result", {"rows", "total"}},
        {"end", {"reason"}},
    };
    std::map<QString, int> seen;
    for (const char* line : {"--set uebungsmodus=4 --learner random:0.5", "--set uebungsmodus=1",
                             "--tasks 3 --learner wrong"})
        for (const QJsonObject& object : TracedRun(line).lines()) {
            const QString event = object["e"].toString();
            ASSERT_TRUE(fields.contains(event)) << event.toStdString();
            ++seen[event];
            for (const QString& field : fields.at(event))
                EXPECT_TRUE(object.contains(field)) << (event + ' ' + field).toStdString();
        }
    EXPECT_EQ(seen.size(), fields.size());
}

TEST(Trace, TheBarIsTheShareOfThePositiveWeights) {
    const TracedRun run("--set uebungsmodus=1 --set einzel_wahl=1,-1,2,-5 --learner random:0.6");
    const int n = run.lines("run")[0]["n"].toInt();
    ASSERT_EQ(n, 4);
    const auto closed = run.lines("closed");
    ASSERT_FALSE(closed.empty());
    constexpr int start = 7;  // weight of each of four scales
    for (std::size_t i = 0; i + 1 < closed.size(); ++i) {
        int sum = 0;
        for (const auto& weight : closed[i]["weights"].toArray())
            sum += std::max(0, weight.toArray()[1].toInt());
        EXPECT_EQ(closed[i]["matbox_zahl"].toInt(), sum);
        EXPECT_NEAR(closed[i]["FloodPercent"].toInt(), 100.0 * sum / (start * n * 2), 0.51);
    }
    EXPECT_TRUE(closed.back()["FloodPercent"].toInt() % 100 == 0);
}

TEST(Trace, AConfusedLearnerNamesTheOtherScaleFirst) {
    const TracedRun run("--tasks 60 --learner confuse:2:5");
    int scale = -1, confused = 0;
    bool first = false;
    for (const QJsonObject& line : run.lines()) {
        if (line["e"].toString() == "task") {
            scale = line["skala_nr"].toInt();
            first = true;
        }
        if (line["e"].toString() != "answer") continue;
        const bool mixes = (scale == 2 || scale == 5) && std::exchange(first, false);
        confused += mixes;
        EXPECT_EQ(line["index"].toInt(), mixes ? 7 - scale : scale);
        EXPECT_EQ(line["right"].toBool(), !mixes);
    }
    EXPECT_GT(confused, 5);
}

}  // namespace

}  // namespace sim::test
