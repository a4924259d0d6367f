// The laws of a run, without form, sound or time.
#include "engine/run.h"

#include "engine/bare_run.h"
#include "engine/scoring.h"

#include <gtest/gtest.h>

#include <cmath>

namespace engine {
namespace {

using core::modus::pruefung;
using core::modus::training;

TEST(Draw, NeverTheSameScaleOnTheSameFirstNoteTwiceRunning) {
    for (const int mode : {0, 1, 3, 4})
        for (int final = 0; final <= 2; ++final)
            for (const int octaves : {0, 2}) {
                SCOPED_TRACE(testing::Message() << mode << ' ' << final << ' ' << octaves);
                BareRun bare(hearing, mode * 10 + final);
                bare.z.final = final;
                bare.z.oktAnz = octaves;
                bare.choose({1, -1, 2});
                engine::Run& run = bare.begin(mode);
                for (int n = 0; n < 120; ++n) {
                    const int scale = run.task().skala_nr, first = run.task().noten[0];
                    run.draw();
                    ASSERT_FALSE(run.task().skala_nr == scale && run.task().noten[0] == first);
                    ASSERT_EQ(std::ranges::count(bare.codes(), bare.code()), 1);
                    if (bare.answer(true) != TaskState::Closed) bare.begin(mode);
                }
            }
}

TEST(Draw, ARunThatCouldOnlyRepeatItselfIsRefused) {
    struct Row {
        const char* name;
        std::vector<int> codes;
        int final, octaves;
        bool refused;
    };
    for (const Row& row : {Row{"one scale, one key, one octave", {3}, 0, 0, true},
                           {"one final", {3}, 1, 0, true},
                           {"both directions of one scale", {3, -3}, 0, 0, true},
                           {"the same one twice", {3, 3}, 1, 0, true},
                           {"keys change", {3}, 2, 0, false},
                           {"octaves change", {3}, 0, 1, false},
                           {"two scales", {3, 4}, 1, 0, false}}) {
        SCOPED_TRACE(row.name);
        BareRun bare;
        bare.choose(row.codes);
        bare.z.final = row.final;
        bare.z.oktAnz = row.octaves;
        if (row.refused) {
            EXPECT_THROW(bare.begin(), base::RuntimeError);
            continue;
        }
        bare.begin();
        for (int n = 0; n < 50; ++n) bare.run->draw();
    }
}

TEST(Draw, OnlyAnExamWithANumberRepeatsItsTasksAndNoRunGoesOnWithItsChance) {
    BareRun one(hearing, 1), other(hearing, 2), again(hearing, 1);
    for (const int mode : {pruefung, core::modus::test, 0}) {
        SCOPED_TRACE(mode);
        const auto tasks = [&](BareRun& bare, int number) {
            bare.z.zufallsNr = number;
            bare.begin(mode);
            std::vector<int> all;
            for (int n = 0; n < 8; ++n) {
                all.push_back(bare.run->draw().noten[0]);
                all.push_back(bare.code());
            }
            return all;
        };
        const auto numbered = tasks(one, 5);
        EXPECT_EQ(numbered == tasks(other, 5), mode == pruefung);
        EXPECT_EQ(numbered != tasks(again, 6), mode == pruefung);
        EXPECT_EQ(numbered, tasks(one, 5));
    }
}

TEST(TryingOut, DrawsEvenlyAndACodeEnteredTwiceDoubly) {
    BareRun bare;
    bare.choose({1, -2, -2});
    bare.z.oktAnz = 3;
    bare.begin();
    std::map<int, int> drawn;
    for (int n = 0; n < 6000; ++n) {
        bare.run->draw();
        ++drawn[bare.code()];
    }
    EXPECT_NEAR(drawn[-2], 4000, 150);
    EXPECT_NEAR(drawn[1], 2000, 150);
}

TEST(Penalty, GrowsByATenthForEveryTwoTenthsOver) {
    for (const auto& [took, penalty] :
         {std::pair{20.0F, 0.0F}, {20.5F, 1.0F}, {21.9F, 1.0F}, {22.0F, 1.1F}, {40.0F, 2.0F}})
        EXPECT_FLOAT_EQ(ZeitStrafeBerechnen(took, 20), penalty) << took;
}

TEST(Task, BooksAndWeighsWhatTheLearnerDid) {
    struct Row {
        const char* name;
        int wrong, repeats;
        float seconds, booked;
        int weight;
    };
    for (const Row& row : {Row{"right at once", 0, 0, 1, -16, 0},
                           {"right, one repetition", 0, 1, 1, -14, 1},
                           {"right, slow and repeated", 0, 1, 2.2F, -11.8F, 2},
                           {"right, half a point left", 0, 0, 7, -9, 4},
                           {"right, more than used up", 0, 9, 1, -8, 4},
                           {"one wrong", 1, 0, 1, -6, 6},
                           {"two wrong, one repetition", 2, 1, 1, -3, 9},
                           {"lost", 4, 0, 1, 0, 12},
                           {"lost, many repetitions", 4, 9, 1, 0, 12}}) {
        for (const int mode : {training, pruefung}) {
            SCOPED_TRACE(testing::Message() << row.name << " in mode " << mode);
            BareRun bare;
            engine::Run& run = bare.begin(mode);
            const int code = (run.draw(), bare.code());
            run.answerOpen(0);
            for (int n = 0; n < row.repeats; ++n) run.repeated(0);
            for (int n = 0; n < row.wrong; ++n) bare.answer(false);
            if (row.wrong < 4) bare.answer(true, row.seconds);
            EXPECT_EQ(run.standing().counters.wrong, row.wrong);
            EXPECT_EQ(run.standing().counters.right, row.wrong < 4 ? 1 : 0);
            EXPECT_EQ(run.standing().counters.repetitions, row.repeats);
            const int slot = core::skalaSlot(code, 6);
            if (mode == pruefung) {
                EXPECT_FLOAT_EQ(bare.wertung.auswertung.read(slot, 1), row.booked);
                continue;
            }
            EXPECT_EQ(bare.wertung.auswertung.read(slot, 0), 1);
            EXPECT_FLOAT_EQ(bare.wertung.auswertung.read(slot, 1), row.booked);
            EXPECT_EQ(bare.weights().at(code), row.weight);
            EXPECT_EQ(bare.weights().at(-code), 4);
            const int confused = (run.task().skala_nr + 1) % 7 + 1;
            EXPECT_EQ(bare.weights().at(code > 0 ? confused : -confused), 4 + row.wrong);
        }
    }
}

/// Everything that a learner of any kind can do, in every mode, leads to its end and replays
/// itself.
TEST(Run, IsReplayedByItsSeedAndItsAnswers) {
    for (const Exercise& exercise : exercises)
        for (const int mode : {training, pruefung})
            for (const int percent : {100, 80, 0}) {
                SCOPED_TRACE(testing::Message() << exercise.worksheet << mode << percent);
                std::vector<std::vector<int>> told;
                for (int again = 0; again < 2; ++again) {
                    BareRun bare(exercise, percent);
                    engine::Run& run = bare.begin(mode);
                    base::Rnd pupil(percent);
                    std::vector<int> all;
                    while (!run.ended() && all.size() < 4000) {
                        bare.task(pupil.below(100) < percent);
                        all.insert(all.end(), {bare.code(), int(run.task().noten[0]),
                                               run.pool().percent(), run.standing().restAufgaben});
                    }
                    told.push_back(all);
                    if (mode == pruefung) {
                        EXPECT_EQ(run.aufgZustand(), TaskState::ExamOver);
                        EXPECT_EQ(all.size(), 4U * run.standing().pruefAufgaben);
                    } else if (percent != 80) {
                        EXPECT_EQ(run.aufgZustand(), TaskState::TrainingOver);
                        EXPECT_EQ(run.goalReached(), percent == 100);
                        EXPECT_EQ(run.pool().percent(), 100 - percent);
                    }
                }
                EXPECT_EQ(told[0], told[1]);
            }
}

TEST(Run, IsTakenUpWhereItWasLeft) {
    for (const Exercise& exercise : exercises) {
        SCOPED_TRACE(exercise.worksheet);
        BareRun left(exercise), again(exercise, 2);
        left.begin(training);
        for (int n = 0; n < 9; ++n) left.task(n % 3 != 0);
        const core::Value saved = left.run->save();
        engine::Run& run = again.begin(core::modus::fortsetzung);
        run.resume(saved);
        EXPECT_EQ(run.save(), saved.items());
        EXPECT_EQ(again.weights(), left.weights());
        EXPECT_EQ(run.pool().percent(), left.run->pool().percent());
    }
}

TEST(Run, ARecordThatDoesNotFitIsRefusedAsAWhole) {
    using core::Value;
    struct Row {
        const char* name;
        std::function<void(Value::Array&)> spoil;
    };
    BareRun bare;
    bare.category(2);
    bare.choose({5, -5, 2, -2, 7, -7});
    engine::Run& run = bare.begin(training);
    for (int n = 0; n < 9; ++n) bare.task(n % 3 != 0);
    const Value::Array saved = run.save();
    for (const Row& row :
         {Row{"too short", [](auto& a) { a.pop_back(); }},
          {"too long", [](auto& a) { a.resize(a.size() + 6, "1"); }},
          {"no such scale", [](auto& a) { a[1] = "9"; }},
          {"scale 0", [](auto& a) { a[1] = "0"; }},
          {"a scale twice", [](auto& a) { a[1] = a[2], a[13] = a[17]; }},
          {"no number", [](auto& a) { a[8] = "x"; }},
          {"beyond 16 bits", [](auto& a) { a[8] = "70000"; }},
          {"nothing left to train", [](auto& a) { std::fill_n(a.begin() + 7, 6, "-3"); }},
          {"long failed", [](auto& a) { a[7] = "30000"; }},
          {"foreign slot", [](auto& a) { a[13] = "15"; }},
          {"score is no number", [](auto& a) { a[15] = "nan"; }},
          {"counter below zero", [](auto& a) { a.back() = "-1"; }},
          {"an array inside", [](auto& a) { a[3] = Value::Array{"1"}; }}}) {
        SCOPED_TRACE(row.name);
        Value::Array broken = saved;
        row.spoil(broken);
        EXPECT_THROW(run.resume(broken), base::RuntimeError);
        EXPECT_EQ(run.save(), saved) << "nothing is changed";
    }
}

TEST(Judgement, ComparesTheInnerNotesInSoundAndSpellingInTheOrderOfTheTask) {
    for (const int melody : {0, 1})
        for (int seed = 0; seed < 20; ++seed) {
            BareRun bare(writing, seed);
            bare.z.abfolge = melody;
            const Task& a = bare.begin().draw();
            const auto written = [&](int place, core::Pitch instead) {
                return writtenAnswer(a, [&](int c) { return c == place ? instead : a.pitchAt(c); });
            };
            EXPECT_TRUE(written(0, {1, 1}).right && written(7, {1, 1}).right);
            const core::Pitch third = a.pitchAt(3);
            EXPECT_EQ(written(3, {third.midi + 12, third.qz}).index, 1) << "another octave";
            EXPECT_EQ(written(3, {third.midi, third.qz + 12}).index, 1) << "another letter";
            int missing = 0;
            for (int c = 1; c < 7; ++c) {
                missing += core::accidental(a.pitchAt(c).qz) != 0 ? 1 : 0;
                EXPECT_EQ(core::accidental(a.shown(c).qz), 0);
                EXPECT_EQ(core::letter(a.shown(c).qz), core::letter(a.pitch(c).qz));
            }
            EXPECT_EQ(a.shown(0), a.pitch(0));
            const int first = TonalityChoice::stufenQz(0, a.skala_nr);
            EXPECT_EQ(accidentalCount(a.quintLage, first), std::max(missing, 1));
        }
}

}  // namespace
}  // namespace engine
