#include "base/whole_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace base {

namespace {

[[noreturn]] void fail(int error) { throw std::system_error(error, std::generic_category()); }

}  // namespace

void writeWhole(const std::string& path, std::string_view bytes) {
    const std::string beside = path + ".part";
    std::FILE* file = std::fopen(beside.c_str(), "wb");
    if (!file) fail(errno);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    int error = written ? 0 : errno;
    if (error == 0 && (std::fflush(file) != 0 || fsync(fileno(file)) != 0)) error = errno;
    if (std::fclose(file) != 0 && error == 0) error = errno;
    if (error == 0 && std::rename(beside.c_str(), path.c_str()) != 0) error = errno;
    if (error == 0) return;
    std::remove(beside.c_str());
    fail(error);
}

std::string readWhole(const std::string& path, std::size_t most) {
    if (!std::filesystem::is_regular_file(path)) fail(ENOENT);
    const auto size = std::filesystem::file_size(path);
    if (size > most) fail(EFBIG);
    errno = 0;
    std::ifstream in(path, std::ios::binary);
    if (!in) fail(errno != 0 ? errno : EIO);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (!in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) fail(EIO);
    return bytes;
}

}  // namespace base
