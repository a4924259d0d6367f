#include "melvora/records.h"

#include "melvora/json_text.h"

#include <QDateTime>

namespace melvora {

std::optional<core::Value> Records::read(const Address& address) const {
    std::optional<core::Value> value;
    database_.run(
        "SELECT content FROM records WHERE user_key = ? AND executable = ? AND record_key = ?",
        {address.user, address.executable, address.key},
        [&](const QSqlQuery& row) { value = fromJson(row.value(0).toString()); });
    return value;
}

void Records::store(const Address& address, const core::Value& value) {
    database_.run(
        "INSERT INTO records (user_key, executable, record_key, content, stored_at)"
        " VALUES (?, ?, ?, ?, ?) ON CONFLICT (user_key, executable, record_key)"
        " DO UPDATE SET content = excluded.content, stored_at = excluded.stored_at",
        {address.user, address.executable, address.key, toJson(value),
         QDateTime::currentDateTimeUtc().toString(Qt::ISODate)});
}

}  // namespace melvora
