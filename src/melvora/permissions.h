#pragma once
#include <QFile>
#include <QFileInfo>

namespace melvora {

/// Leaves a file or folder to its owner alone, whatever the process's umask was.
inline void closeToOthers(const QString& path) {
    const auto own = QFile::ReadOwner | QFile::WriteOwner;
    QFile::setPermissions(path, QFileInfo(path).isDir() ? own | QFile::ExeOwner : own);
}

}  // namespace melvora
