#include "melvora/users.h"

namespace melvora {

namespace {

User userOf(const QSqlQuery& row) {
    return {row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
            row.value(3).toString()};
}

QString lettersOf(const QString& name) {
    static const std::pair<QString, QString> spelled[] = {
        {"ä", "ae"}, {"ö", "oe"}, {"ü", "ue"}, {"ß", "ss"}, {"æ", "ae"}, {"œ", "oe"}, {"ø", "oe"}};
    QString lower = name.normalized(QString::NormalizationForm_C).toLower();
    for (const auto& [sign, letters] : spelled) lower.replace(sign, letters);
    QString letters;
    for (const QChar c : lower.normalized(QString::NormalizationForm_KD))
        if (c.isLetterOrNumber()) letters += c;
    return letters;
}

}  // namespace

QString User::fullName() const {
    const QString name = (firstName + ' ' + surname).trimmed();
    return name.isEmpty() ? key : name;
}

QList<User> Users::all() const {
    QList<User> users;
    database_.run(
        "SELECT user_key, surname, first_name, matriculation FROM users"
        " ORDER BY surname, first_name, user_key",
        {}, [&](const QSqlQuery& row) { users.append(userOf(row)); });
    return users;
}

std::optional<User> Users::find(const QString& key) const {
    std::optional<User> user;
    database_.run(
        "SELECT user_key, surname, first_name, matriculation FROM users WHERE user_key = ?", {key},
        [&](const QSqlQuery& row) { user = userOf(row); });
    return user;
}

void Users::put(const User& user) {
    database_.run(
        "INSERT INTO users (user_key, surname, first_name, matriculation) VALUES (?, ?, ?, ?)"
        " ON CONFLICT (user_key) DO UPDATE SET surname = excluded.surname,"
        " first_name = excluded.first_name, matriculation = excluded.matriculation",
        {user.key, user.surname, user.firstName, user.matriculation});
}

void Users::remove(const QString& key) {
    Transaction transaction(database_);
    database_.run("DELETE FROM records WHERE user_key = ?", {key});
    database_.run("DELETE FROM users WHERE user_key = ?", {key});
    transaction.commit();
}

QString Users::proposeKey(const QString& surname, const QString& firstName) const {
    QString stem = lettersOf(firstName).left(1) + lettersOf(surname);
    if (stem.isEmpty()) stem = "user";
    QString key = stem;
    for (int number = 2; !isAllowedKey(key) || find(key); ++number)
        key = stem + QString::number(number);
    return key;
}

QString shownKey(const QString& key) { return key == nobody ? QString("–") : key; }

bool isAllowedKey(const QString& key) {
    return !key.isEmpty() && key.trimmed() == key && key.compare(nobody, Qt::CaseInsensitive) != 0;
}

}  // namespace melvora
