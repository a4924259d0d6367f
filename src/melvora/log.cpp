#include "melvora/log.h"

namespace melvora {

namespace {

QString nameOf(LogKind kind) {
    switch (kind) {
        case LogKind::Message:
            return "message";
        case LogKind::Error:
            return "error";
    }
    return {};
}

QString shortened(const QString& text) {
    if (text.size() <= Log::longestText) return text;
    return text.left(Log::longestText) + QString(" … (%1)").arg(text.size());
}

/// Pattern for LIKE ... ESCAPE '!' that finds the text anywhere.
QString anywhere(QString text) {
    for (const char* sign : {"!", "%", "_"}) text.replace(sign, QString("!") + sign);
    return '%' + text.toLower() + '%';
}

}  // namespace

void Log::write(LogKind kind, const QString& user, const QString& text) {
    database_.run(
        "INSERT INTO log (id, logged_at, user_key, kind, content)"
        " VALUES ((SELECT COALESCE(MAX(id), 0) + 1 FROM log), ?, ?, ?, ?)",
        {QDateTime::currentDateTime().toString(Qt::ISODateWithMs), user, nameOf(kind),
         shortened(text)});
    constexpr int often = 1000;
    if (++written_ >= often) prune();
}

QList<LogLine> Log::lines(const Filter& filter) const {
    QList<LogLine> lines;
    const QString pattern = anywhere(filter.text);
    database_.run(
        "SELECT logged_at, user_key, kind, content FROM log WHERE kind LIKE ?"
        " AND (LOWER(content) LIKE ? ESCAPE '!' OR LOWER(user_key) LIKE ? ESCAPE '!')"
        " ORDER BY id DESC LIMIT ?",
        {filter.kind ? nameOf(*filter.kind) : "%", pattern, pattern, filter.most},
        [&](const QSqlQuery& row) {
            lines.append({QDateTime::fromString(row.value(0).toString(), Qt::ISODateWithMs),
                          row.value(1).toString(),
                          row.value(2).toString() == nameOf(LogKind::Error) ? LogKind::Error
                                                                            : LogKind::Message,
                          row.value(3).toString()});
        });
    return lines;
}

void Log::prune() {
    written_ = 0;
    database_.run("DELETE FROM log WHERE id <= (SELECT COALESCE(MAX(id), 0) FROM log) - ?",
                  {mostLines});
    database_.run(
        "DELETE FROM log WHERE id <= (SELECT COALESCE(MAX(id), 0) FROM"
        " (SELECT id, SUM(LENGTH(content)) OVER (ORDER BY id DESC) AS newer FROM log)"
        " WHERE newer > ?)",
        {mostText});
}

}  // namespace melvora
