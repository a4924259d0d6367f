#pragma once
#include "melvora/database.h"

#include <QList>
#include <QString>

#include <optional>

namespace melvora {

/// Key under which records and results stand while nobody is logged in.
inline constexpr char nobody[] = "unbekannt";

struct User {
    QString key;
    QString surname;
    QString firstName;
    QString matriculation;

    /// "First name Surname", or the key when both are empty.
    QString fullName() const;
    friend bool operator==(const User&, const User&) = default;
};

/// The people who practise on this computer. All operations throw StoreError.
class Users {
  public:
    explicit Users(Database& database) : database_(database) {}

    /// Ordered by name.
    QList<User> all() const;
    std::optional<User> find(const QString& key) const;
    /// Adds the user or replaces the data of the one with the same key.
    void put(const User& user);
    /// Removes the user and the records kept for them; results stay.
    void remove(const QString& key);
    /// A key that is free: made of the name's letters, "ue" for "ü" and the like, and digits;
    /// numbered when it is taken.
    QString proposeKey(const QString& surname, const QString& firstName) const;

  private:
    Database& database_;
};

/// How tables show a user's key: a dash for nobody.
QString shownKey(const QString& key);

/// A key may be anything but empty, "unbekannt" in any case, or framed by blanks.
bool isAllowedKey(const QString& key);

}  // namespace melvora
