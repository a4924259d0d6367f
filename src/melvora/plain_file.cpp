#include "melvora/plain_file.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace melvora {

std::optional<QByteArray> readPlainFile(const QString& path, qint64 most) {
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    struct stat about {};
    if (fstat(descriptor, &about) != 0 || !S_ISREG(about.st_mode) || about.st_size > most)
        return {};
    QByteArray bytes = file.read(about.st_size);
    if (bytes.size() != about.st_size) return {};
    return bytes;
}

}  // namespace melvora
