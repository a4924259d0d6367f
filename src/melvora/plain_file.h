#pragma once
#include <QByteArray>
#include <QString>

#include <optional>

namespace melvora {

/// The bytes of a plain file of at most `most` bytes; nothing for anything else. A link is not
/// followed and a pipe not waited for: such things do not belong into a folder of records.
std::optional<QByteArray> readPlainFile(const QString& path, qint64 most);

}  // namespace melvora
