#include "melvora/result_csv.h"

#include "core/recap_label.h"

#include <QFileInfo>

#include <algorithm>

namespace melvora {

namespace {

QString runsPath(const QString& answers) {
    const QFileInfo file(answers);
    return file.path() + "/" + file.completeBaseName() + "-runs.csv";
}

/// A field as it stands in a line: in quotes where it holds what divides fields or lines.
QString field(QString text) {
    const bool plain = std::ranges::none_of(
        text, [](QChar c) { return c == ',' || c == '"' || c == '\n' || c == '\r'; });
    return plain ? text : '"' + text.replace('"', "\"\"") + '"';
}

void writeLine(QTextStream& lines, const QStringList& fields) {
    for (qsizetype i = 0; i < fields.size(); ++i) lines << (i == 0 ? "" : ",") << field(fields[i]);
    lines << "\r\n";
}

QString moment(const QDateTime& at) { return at.isValid() ? at.toString(Qt::ISODate) : QString(); }

QString setting(const std::optional<ResultRecord>& record, const core::RecapLabel& label) {
    if (!record) return {};
    const QString key =
        QString::fromUtf8(label.german.data(), static_cast<qsizetype>(label.german.size()));
    const auto found = std::ranges::find(record->settings, key, &QPair<QString, QString>::first);
    return found == record->settings.end() ? QString() : found->second;
}

QString branch(Branch branch) {
    return branch == Branch::Ear ? "ear" : branch == Branch::Theory ? "theory" : "";
}

QString kind(Kind kind) {
    return kind == Kind::Identify ? "identify" : kind == Kind::Write ? "write" : "";
}

void open(QSaveFile& file) {
    if (!file.open(QIODevice::WriteOnly))
        throw CsvError((file.fileName() + ": " + file.errorString()).toStdString());
}

void commit(QSaveFile& file) {
    if (!file.commit()) throw CsvError((file.fileName() + ": " + file.errorString()).toStdString());
}

}  // namespace

ResultCsv::ResultCsv(const QString& answers) : answers_(answers), runs_(runsPath(answers)) {
    open(answers_);
    open(runs_);
    answerLines_.setDevice(&answers_);
    runLines_.setDevice(&runs_);
    writeLine(answerLines_, {"run", "task", "scale", "attempt", "named", "right", "seconds"});
    writeLine(runLines_,
              {"run", "started", "ended", "user", "branch", "exercise", "mode", "scale_type",
               "tuning", "timbre", "tasks", "answered", "right_first", "readable"});
}

void ResultCsv::add(const Result& result, const QString& user,
                    const std::optional<ResultRecord>& record) {
    const QString run = QString::number(result.id);
    const Exercise& about = result.exercise;
    unreadable_ += record ? 0 : 1;
    writeLine(
        runLines_,
        {run, moment(result.started), record ? moment(record->ended) : QString(), user,
         branch(about.branch), kind(about.kind), about.mode, about.scaleType,
         setting(record, core::recap::tuning), setting(record, core::recap::timbre),
         record ? QString::number(record->lessons.size()) : QString(),
         QString::number(result.answered), QString::number(result.rightFirst), record ? "1" : "0"});
    if (!record) return;
    int task = 0;
    for (const auto& lesson : record->lessons) {
        ++task;
        int attempt = 0;
        for (const auto& answer : lesson.answers) {
            writeLine(answerLines_,
                      {run, QString::number(task), lesson.scale, QString::number(++attempt),
                       answer.scale, answer.right ? "1" : "0", answer.seconds});
            ++answerCount_;
        }
    }
}

void ResultCsv::finish() {
    answerLines_.flush();
    runLines_.flush();
    commit(answers_);
    commit(runs_);
}

}  // namespace melvora
