#include "melvora/collector.h"

#include "melvora/permissions.h"
#include "melvora/result_record.h"

#include <QDir>
#include <QFileInfo>

namespace melvora {

namespace {

/// Moment in the file's name, RSXyymmddhhmmss.xml; the file's own time when the name has none.
QDateTime startOf(const QFileInfo& file) {
    const QDateTime start =
        QDateTime::fromString("20" + file.completeBaseName().mid(3), "yyyyMMddHHmmss");
    return start.isValid() ? start : file.lastModified();
}

/// Tells one state of a file from another.
QString fingerprint(const QString& path) {
    const QFileInfo file(path);
    return QString("%1|%2|%3")
        .arg(path)
        .arg(file.size())
        .arg(file.lastModified().toMSecsSinceEpoch());
}

}  // namespace

Collector::Collector(QString folder, Results& results)
    : folder_(std::move(folder)), results_(results) {
    QDir().mkpath(folder_);
    closeToOthers(folder_);
}

Collector::Harvest Collector::collect(When when) {
    Harvest harvest;
    const QDir spool(folder_);
    taken_ = 0;
    for (const QString& name : spool.entryList({"RSX*.xml"}, QDir::Files, QDir::Name)) {
        const QString path = spool.absoluteFilePath(name);
        const QString state = fingerprint(path);
        if (take(path) || when == When::DuringRun || told_.contains(state)) continue;
        told_.insert(state);
        harvest.unreadable.append(path);
    }
    harvest.taken = taken_;
    return harvest;
}

bool Collector::take(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QByteArray xml = file.readAll();
    const auto record = parseResultRecord(xml);
    if (!record) return false;
    const QFileInfo info(path);
    const Result result{0,
                        startOf(info),
                        record->user,
                        record->exercise.isEmpty() ? record->description : record->exercise,
                        record->rightFirst(),
                        record->answered()};
    if (results_.add(result, info.fileName(), QString::fromUtf8(xml))) ++taken_;
    file.remove();
    return true;
}

}  // namespace melvora
