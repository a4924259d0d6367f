#pragma once
#include "fontfile/font_files.h"
#include "soundfont/font_table.h"

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

namespace soundfont {

/// Where tables are: the one that came with the program is read, the other one is written, too; and
/// what makes them.
struct TablePlaces {
    std::filesystem::path packaged;
    std::filesystem::path own;   ///< empty to keep nothing
    std::filesystem::path tool;  ///< melvora-measure; empty to measure only what is asked for

    /// Below the program's own folder; MELVORA_FONT_TABLES, or else below XDG_DATA_HOME.
    static TablePlaces usual();
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

/// The instruments of a font, as they were measured. Of what no table knows, that which is asked
/// for is measured at once, on a thread of its own, and everything else by another process, at the
/// lowest priority; it is kept for the next time. A file that is replaced meanwhile is measured no
/// further. May be used from any thread.
class MeasuredFont {
  public:
    /// @param known called on a thread of its own when instruments have become known.
    MeasuredFont(std::string font, TablePlaces places, std::function<void()> known = {});
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
    void run(const std::stop_token& stop);
    std::optional<FontTable::Origin> identify(const std::stop_token& stop);
    FontTable knownTable(const FontTable::Origin& origin);
    void grantWishes(const std::stop_token& stop);
    void measureRest(FontTable& table, const std::stop_token& stop);
    void keep(const FontTable& table) const;
    /// The first that is asked for and not known; -1 when there is none.
    int wish();
    /// Throws when the file is no longer the one that was measured.
    void publish(int program, const Instrument& instrument);

    std::string font_;
    fontfile::Mark mark_;
    TablePlaces places_;
    std::function<void()> tell_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<std::shared_ptr<const Instrument>> known_{programCount};
    std::vector<int> wishes_;
    bool over_ = false;  ///< nothing more will become known
    std::jthread thread_;
};

}  // namespace soundfont
