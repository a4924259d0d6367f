#pragma once
#include "soundfont/font_table.h"

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

namespace soundfont {

/// Where tables are: the one that came with the program is read, the other one is written, too.
struct TableFolders {
    std::filesystem::path packaged;
    std::filesystem::path own;  ///< empty to keep nothing

    /// Below the program's own folder; MELVORA_FONT_TABLES, or else below XDG_DATA_HOME.
    static TableFolders usual();
};

/// The file of a table in a folder.
std::filesystem::path tableFile(const std::filesystem::path& folder,
                                const FontTable::Origin& origin);

/// Measures every instrument of a font anew, some ten seconds, and keeps the table in a folder,
/// which is made when it is missing.
/// @param progress called with the number of instruments measured so far.
/// @return the table's file. @throws std::runtime_error when the font or the folder cannot be used.
std::filesystem::path measureWhole(const std::string& font, const std::filesystem::path& folder,
                                   const std::function<void(int measured)>& progress);

/// The instruments of a font, as they were measured. What no table knows is measured on a thread of
/// its own, first what is asked for, then, at the lowest priority, everything else; it is kept for
/// the next time. May be used from any thread.
class MeasuredFont {
  public:
    /// @param known called on a thread of its own when instruments have become known.
    MeasuredFont(std::string font, TableFolders folders, std::function<void()> known = {});
    /// Takes as long as measuring one note, and keeps what was measured.
    ~MeasuredFont();
    MeasuredFont(const MeasuredFont&) = delete;
    MeasuredFont& operator=(const MeasuredFont&) = delete;

    /// nullptr for an instrument that is not known yet; it will be measured next.
    std::shared_ptr<const Instrument> find(int program);
    /// The same without a wish.
    std::shared_ptr<const Instrument> known(int program);
    /// The same, but waits for it.
    std::shared_ptr<const Instrument> wait(int program, std::chrono::milliseconds patience);

  private:
    using Known = std::vector<std::shared_ptr<const Instrument>>;

    void run(const std::stop_token& stop);
    void measure(FontTable& table, const std::stop_token& stop);
    void keep(const FontTable& table) const;
    /// The next program to measure, in order of wishes; -1 when all are known.
    int next(const FontTable& table);
    void publish(int program, const Instrument& instrument);

    std::string font_;
    TableFolders folders_;
    std::function<void()> tell_;
    std::mutex mutex_;
    std::condition_variable changed_;
    Known known_{programCount};
    std::vector<int> wishes_;
    bool over_ = false;  ///< nothing more will become known
    std::jthread thread_;
};

}  // namespace soundfont
