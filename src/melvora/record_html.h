#pragma once
#include "melvora/result_record.h"
#include "melvora/words.h"

#include <QString>

namespace melvora {

/// For example "8 of 10 (80%)"; a dash when nothing was answered.
QString shareText(const Words& words, int right, int answered);

/// What was practised, in the language in force; a dash for what is not known.
QString branchText(const Words& words, const Exercise& exercise);
QString kindText(const Words& words, const Exercise& exercise);
/// Branch and kind, for example "Gehörbildung: bestimmen".
QString exerciseText(const Words& words, const Exercise& exercise);
QString modeText(const Words& words, const Exercise& exercise);
QString scaleTypeText(const Words& words, const Exercise& exercise);

/// One record to be looked at: what was practised, when, how, and every answer.
/// @param user how its user is called
QString recordHtml(const Words& words, const ResultRecord& record, const QDateTime& started,
                   const QString& user);

}  // namespace melvora
