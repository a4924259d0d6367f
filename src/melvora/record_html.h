#pragma once
#include "melvora/result_record.h"
#include "melvora/words.h"

#include <QString>

namespace melvora {

/// For example "8 of 10 (80%)"; a dash when nothing was answered.
QString shareText(const Words& words, int right, int answered);

/// One record to be looked at: what was practised, how, and every answer.
QString recordHtml(const Words& words, const ResultRecord& record);

}  // namespace melvora
