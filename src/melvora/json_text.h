#pragma once
#include "core/value.h"

#include <QString>

#include <optional>

namespace melvora {

/// A value as JSON text: nothing is null, fractions are {"real": "3"} so that they stay fractions.
/// A value that is no array stands alone, which JSON allows.
QString toJson(const core::Value& value);

/// The value of a text that toJson made; nothing for any other text.
std::optional<core::Value> fromJson(const QString& text);

}  // namespace melvora
