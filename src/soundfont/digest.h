#pragma once
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

namespace soundfont {

/// Tells one content from another: 32 hexadecimal digits.
std::string digestOf(std::string_view content);

/// The same of a file, read in parts: a large one takes seconds when it comes from a disk.
class FileDigest {
  public:
    explicit FileDigest(const std::filesystem::path& file);
    ~FileDigest();
    FileDigest(const FileDigest&) = delete;
    FileDigest& operator=(const FileDigest&) = delete;

    /// Reads some megabytes. @return false when the file has come to its end, or cannot be read.
    bool readOn();
    /// Of what was read; empty before the end, and of a file that cannot be read.
    std::string result() const;

  private:
    struct State;
    std::ifstream in_;
    std::unique_ptr<State> state_;
};

/// The whole file at once.
std::string digestOfFile(const std::filesystem::path& file);

}  // namespace soundfont
