#include "melvora/settings_file.h"

#include <QFile>
#include <QFileInfo>

namespace melvora {

QString whyUnreadable(const QString& path) {
    // Opening a pipe would wait for its writer.
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) return path + ": no file";
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString() : path + ": " + file.errorString();
}

}  // namespace melvora
