#include "melvora/record_html.h"

#include "core/recap_label.h"
#include "core/wort.h"

namespace melvora {

namespace wort = core::wort;

namespace {

QString cell(const QString& html) {
    return "<td style='padding: 2px 16px 2px 0'>" + html + "</td>";
}

QString pair(const QString& name, const QString& text) {
    return "<tr>" + cell(name.toHtmlEscaped()) + cell(text.toHtmlEscaped()) + "</tr>";
}

QString heading(const QString& text) { return "<h4>" + text.toHtmlEscaped() + "</h4>"; }

/// A row for each answer; the first of a task bears its number and scale.
QString rowsOf(const Words& words, const ResultRecord::Lesson& lesson, int number) {
    QString rows;
    QString task = cell(QString::number(number)) + cell(lesson.scale.toHtmlEscaped());
    for (const auto& answer : lesson.answers) {
        const QString seconds = answer.seconds.isEmpty()
                                    ? QString()
                                    : words.wort(wort::answerSeconds).arg(answer.seconds);
        rows += "<tr>" + task + cell(answer.right ? "✓" : "") + cell(answer.scale.toHtmlEscaped()) +
                cell(seconds.toHtmlEscaped()) + "</tr>";
        task = cell({}) + cell({});
    }
    return rows.isEmpty() ? "<tr>" + task + "</tr>" : rows;
}

QString orDash(const QString& text) { return text.isEmpty() ? QString("–") : text; }

}  // namespace

QString shareText(const Words& words, int right, int answered) {
    if (answered == 0) return "–";
    const int percent = (200 * right + answered) / (2 * answered);
    return words.wort(wort::rightOfAnswered).arg(right).arg(answered).arg(percent);
}

QString branchText(const Words& words, const Exercise& exercise) {
    switch (exercise.branch) {
        case Branch::Unknown:
            break;
        case Branch::Ear:
            return words.wort(wort::earTraining);
        case Branch::Theory:
            return words.wort(wort::musicTheory);
    }
    return orDash({});
}

QString kindText(const Words& words, const Exercise& exercise) {
    switch (exercise.kind) {
        case Kind::Unknown:
            break;
        case Kind::Identify:
            return words.wort(wort::identifyScales);
        case Kind::Write:
            return words.wort(wort::writeScales);
    }
    return orDash(words.today(exercise.name, {wort::identify, wort::write}));
}

QString exerciseText(const Words& words, const Exercise& exercise) {
    return words.wort(wort::branchAndType)
        .arg(branchText(words, exercise), kindText(words, exercise));
}

QString modeText(const Words& words, const Exercise& exercise) {
    return orDash(words.today(exercise.mode, {wort::tryOut, wort::training, wort::continueTraining,
                                              wort::test, wort::exam}));
}

QString scaleTypeText(const Words& words, const Exercise& exercise) {
    return orDash(words.today(
        exercise.scaleType,
        {wort::churchModes, wort::churchModeVariants, wort::minorVariants, wort::exoticScales,
         wort::pentatonicScales, wort::wholeToneQuartalBlues, wort::tetrachords}));
}

QString recordHtml(const Words& words, const ResultRecord& record, const QDateTime& started,
                   const QString& user) {
    const Exercise about = record.about();
    QString html = "<table>" + pair(words.wort(wort::exercise), exerciseText(words, about)) +
                   pair(words.wort(wort::begun), words.moment(started)) +
                   pair(words.wort(wort::ended), words.moment(record.ended)) +
                   pair(words.wort(wort::userHeading), user) +
                   pair(words.wort(wort::rightAtFirst),
                        shareText(words, record.rightFirst(), record.answered())) +
                   "</table>";
    if (!record.settings.isEmpty()) {
        html += heading(words.wort(wort::recordSettings)) + "<table>";
        const auto wordOf = [&](wort::Id word) { return words.wort(word).toStdString(); };
        for (const auto& [key, value] : record.settings)
            html +=
                pair(QString::fromStdString(core::recapLabel(key.toStdString(), wordOf)), value);
        html += "</table>";
    }
    if (record.lessons.isEmpty()) return html;
    html += heading(words.wort(wort::recordTasks)) + "<table><tr>";
    for (const wort::Id column :
         {wort::number, wort::taskScale, wort::answerRight, wort::taskAnswers, wort::taskDuration})
        html += cell("<b>" + words.wort(column).toHtmlEscaped() + "</b>");
    html += "</tr>";
    int number = 0;
    for (const auto& lesson : record.lessons) html += rowsOf(words, lesson, ++number);
    return html + "</table>";
}

}  // namespace melvora
