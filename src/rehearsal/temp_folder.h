#pragma once
#include <filesystem>

namespace rehearsal {

/// A fresh folder that lives as long as this. @throws std::runtime_error when it can't be made.
class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace rehearsal
