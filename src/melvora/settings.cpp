#include "melvora/settings.h"

namespace melvora {

QString Settings::get(const QString& name) const {
    QString content;
    database_.run("SELECT content FROM settings WHERE setting_key = ?", {name},
                  [&](const QSqlQuery& row) { content = row.value(0).toString(); });
    return content;
}

void Settings::set(const QString& name, const QString& content) {
    database_.run(
        "INSERT INTO settings (setting_key, content) VALUES (?, ?)"
        " ON CONFLICT (setting_key) DO UPDATE SET content = excluded.content",
        {name, content});
}

}  // namespace melvora
