#include "melvora/record_html.h"

#include "core/wort.h"
#include "melvora/users.h"

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

QString answersOf(const Words& words, const ResultRecord::Lesson& lesson) {
    QStringList texts;
    for (const auto& answer : lesson.answers) {
        const QString judgement = words.wort(answer.right ? wort::answerRight : wort::answerWrong);
        texts.append(answer.scale.isEmpty() ? judgement
                                            : QString("%1 (%2)").arg(answer.scale, judgement));
    }
    return texts.join(", ");
}

}  // namespace

QString shareText(const Words& words, int right, int answered) {
    if (answered == 0) return "–";
    const int percent = (200 * right + answered) / (2 * answered);
    return words.wort(wort::rightOfAnswered).arg(right).arg(answered).arg(percent);
}

QString recordHtml(const Words& words, const ResultRecord& record) {
    QString html = "<table>" + pair(words.wort(wort::exercise), record.exercise) +
                   pair(words.wort(wort::recordDate), words.moment(record.ended)) +
                   pair(words.wort(wort::userHeading), shownKey(record.user)) +
                   pair(words.wort(wort::rightAtFirst),
                        shareText(words, record.rightFirst(), record.answered())) +
                   "</table>";
    if (!record.settings.isEmpty()) {
        html += heading(words.wort(wort::recordSettings)) + "<table>";
        for (const auto& [key, value] : record.settings) html += pair(key, value);
        html += "</table>";
    }
    if (record.lessons.isEmpty()) return html;
    html += heading(words.wort(wort::recordTasks)) + "<table><tr>";
    for (const wort::Id column : {wort::taskScale, wort::taskAnswers, wort::taskDuration})
        html += cell("<b>" + words.wort(column).toHtmlEscaped() + "</b>");
    html += "</tr>";
    for (const auto& lesson : record.lessons) {
        const QString seconds = lesson.answers.isEmpty() ? "" : lesson.answers.last().seconds;
        html += "<tr>" + cell(lesson.scale.toHtmlEscaped()) +
                cell(answersOf(words, lesson).toHtmlEscaped()) + cell(seconds.toHtmlEscaped()) +
                "</tr>";
    }
    return html + "</table>";
}

}  // namespace melvora
