#pragma once
#include <string>
#include <string_view>

namespace base {

/// Writes a file as a whole: beside its place first and flushed to the disk, then renamed, so that
/// what was there stays when anything fails, and no half file is left. @throws std::system_error
void writeWhole(const std::string& path, std::string_view bytes);

/// @return the bytes of a file. @throws std::system_error when it cannot be read, or is bigger than
/// `most` bytes or no ordinary file.
std::string readWhole(const std::string& path, std::size_t most);

}  // namespace base
