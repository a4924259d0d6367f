#include "melvora/trainings.h"

#include "melvora/json_text.h"

namespace melvora {

namespace {

constexpr char executable[] = "zepha9";

QString settingsKey(const QString& exercise) { return 'E' + exercise; }
QString stateKey(const QString& exercise) { return 'A' + exercise; }

bool canBeContinued(const QString& content) {
    const auto state = fromJson(content);
    if (!state) return false;
    const std::string mark = state->at(0).text();
    return mark == "true" || mark == "True";
}

}  // namespace

Exercise exerciseOf(const QString& exercise) {
    return {exercise.endsWith('b') ? Branch::Theory : Branch::Ear,
            exercise.startsWith('4') ? Kind::Write : Kind::Identify,
            exercise,
            {},
            {}};
}

QList<Training> Trainings::of(const QString& user) const {
    QList<Training> trainings;
    for (const QString exercise : exercises)
        database_.run(
            "SELECT state.content, state.stored_at FROM records state"
            " JOIN records settings ON settings.user_key = state.user_key"
            " AND settings.executable = state.executable"
            " WHERE state.user_key = ? AND state.executable = ? AND state.record_key = ?"
            " AND settings.record_key = ?",
            {user, executable, stateKey(exercise), settingsKey(exercise)},
            [&](const QSqlQuery& row) {
                if (canBeContinued(row.value(0).toString()))
                    trainings.append({user, exercise,
                                      QDateTime::fromString(row.value(1).toString(), Qt::ISODate)});
            });
    return trainings;
}

void Trainings::remove(const Training& training) {
    Transaction transaction(database_);
    for (const QString& key : {stateKey(training.exercise), settingsKey(training.exercise)})
        database_.run(
            "DELETE FROM records WHERE user_key = ? AND executable = ? AND record_key = ?",
            {training.user, executable, key});
    transaction.commit();
}

}  // namespace melvora
