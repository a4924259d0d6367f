#pragma once
#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace soundfont {

/// Another process that measures instruments of a font at the lowest priority: what it needs of
/// memory it needs for itself, and a font that the synthesiser cannot bear ends only it.
class Measurer {
  public:
    /// @param tool the program melvora-measure. When it cannot be started, it has ended.
    Measurer(const std::filesystem::path& tool, const std::string& font,
             const std::vector<int>& programs);
    /// Ends it.
    ~Measurer();
    Measurer(const Measurer&) = delete;
    Measurer& operator=(const Measurer&) = delete;

    /// The next line that it prints: an instrument of a table. @return nothing when none came in
    /// that time, or when it has ended.
    std::optional<std::string> line(std::chrono::milliseconds patience);
    bool ended() const { return output_ < 0; }

  private:
    std::optional<std::string> firstLine();

    pid_t process_ = -1;
    int output_ = -1;
    std::string text_;  ///< that came and has not been asked for
};

}  // namespace soundfont
