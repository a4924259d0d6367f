#include "melvora/collector.h"

#include "melvora/permissions.h"
#include "melvora/plain_file.h"
#include "melvora/result_record.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <utility>

namespace melvora {

namespace {

constexpr qint64 largestRecord = qint64{64} << 20;
/// Behind the name of a record that is being written.
const QString unfinished = QStringLiteral(".part");

/// Moment in the file's name, RSXyymmddhhmmss.xml; the file's own time when the name has none.
QDateTime startOf(const QFileInfo& file) {
    const QDateTime start =
        QDateTime::fromString("20" + file.completeBaseName().mid(3), "yyyyMMddHHmmss");
    return start.isValid() ? start : file.lastModified();
}

/// Tells one state of a file from another; of what is no plain file only the path.
QString fingerprint(const QString& path) {
    const QFileInfo file(path);
    if (file.isSymLink() || !file.isFile()) return path;
    return QString("%1|%2|%3")
        .arg(path)
        .arg(file.size())
        .arg(file.lastModified().toMSecsSinceEpoch());
}

/// Where a file is to lie that a module was writing when it died.
QString placeAside(const QDir& spool, const QString& name) {
    const QString kept = name.chopped(unfinished.size());
    QString path = spool.absoluteFilePath("unfinished-" + kept);
    for (int i = 2; QFileInfo::exists(path); ++i)
        path = spool.absoluteFilePath(QString("unfinished-%1-%2").arg(i).arg(kept));
    return path;
}

}  // namespace

Collector::Collector(QString folder, Results& results)
    : folder_(std::move(folder)), results_(results) {}

QString Collector::trouble() const {
    QDir().mkpath(folder_);
    if (!QFileInfo(folder_).isDir()) return folder_ + ": is no folder";
    closeToOthers(folder_);
    QTemporaryFile probe(folder_ + "/probeXXXXXX");
    if (!probe.open() || !probe.remove()) return folder_ + ": " + probe.errorString();
    return QDir(folder_).isReadable() ? QString() : folder_ + ": cannot be read";
}

Collector::Harvest Collector::collect(When when, const std::function<void(const QString&)>& tell) {
    Harvest harvest;
    const auto unreadable = [&](const QString& path) {
        if (tell) tell(path);
        harvest.unreadable.append(path);
    };
    const QDir spool(folder_);
    // Also what is no file, or leads nowhere: it is told.
    const auto all = QDir::AllEntries | QDir::System | QDir::Hidden;
    for (const QString& name : spool.entryList({"RSX*.xml"}, all, QDir::Name)) {
        const QString path = spool.absoluteFilePath(name);
        const QString state = fingerprint(path);
        if (told_.contains(state) || take(path) || when == When::DuringRun) continue;
        unreadable(path);
        told_.insert(state);
    }
    if (when == When::AfterRun)
        for (const QString& name : spool.entryList({"RSX*.xml" + unfinished}, QDir::Files)) {
            const QString path = spool.absoluteFilePath(name), aside = placeAside(spool, name);
            const QString state = fingerprint(path);
            // First, so that nothing lies there untold.
            if (!told_.contains(state)) unreadable(aside);
            told_.insert(state);
            QFile::rename(path, aside);
        }
    harvest.taken = std::exchange(taken_, 0);
    harvest.left = std::exchange(left_, false);
    return harvest;
}

bool Collector::take(const QString& path) {
    const auto xml = readPlainFile(path, largestRecord);
    if (!xml) return false;
    const auto record = parseResultRecord(*xml);
    if (!record) return false;
    const QFileInfo info(path);
    const Result result{
        0, startOf(info), record->user, record->about(), record->rightFirst(), record->answered()};
    if (results_.add(result, info.fileName(), QString::fromUtf8(*xml))) ++taken_;
    if (!QFile::remove(path)) left_ = true;
    return true;
}

}  // namespace melvora
