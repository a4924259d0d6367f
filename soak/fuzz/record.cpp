// Result records and the page that shows one: nothing of a record is a tag, no text is damaged.
#include "melvora/record_html.h"
#include "soak/fuzz/law.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace soak {

namespace {

/// Rows that a page of this record has.
qsizetype rowsOf(const melvora::ResultRecord& record) {
    qsizetype rows = 5 + record.settings.size() + (record.lessons.isEmpty() ? 0 : 1);
    for (const auto& lesson : record.lessons) rows += std::max<qsizetype>(1, lesson.answers.size());
    return rows;
}

/// What a page is made of: our tags, and letters of which none is special.
void expectPage(const melvora::ResultRecord& record, const QString& html) {
    law(html.isValidUtf16() && !html.contains(QChar(0)), "no damaged text");
    static const QRegularExpression ours(
        "</?(table|tr|h4|b|td)>|<td style='padding: 2px 16px 2px 0'>"),
        escaped("&(lt|gt|amp|quot);");
    law(html.count("<tr>") == rowsOf(record), "rows");
    QString rest = html;
    rest.remove(ours).remove(escaped);
    law(!rest.contains('<') && !rest.contains('>') && !rest.contains('&'), "no foreign tag");
}

void tryRecord(const QByteArray& bytes) {
    static const melvora::Words words(suite::languageFolder());
    const auto record = melvora::parseResultRecord(bytes);
    if (!record) return;
    law(!record->program.isNull() && record->rightFirst() <= record->answered() &&
            record->answered() <= record->lessons.size(),
        "counts");
    expectPage(*record, melvora::recordHtml(words, *record, {}, {}));
}

}  // namespace

}  // namespace soak

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    // It knows where the words are, and lives to the end of the process.
    new QCoreApplication(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    soak::tryRecord({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
    return 0;
}
