#include "soundfont/measured_font.h"

#include "soundfont/digest.h"
#include "soundfont/fluid_error.h"
#include "soundfont/meter.h"

#include <sched.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <system_error>
#include <utility>

namespace soundfont {

namespace fs = std::filesystem;

namespace {

/// What nobody waits for is measured only when no other program wants to run.
void giveWay(bool always) {
    const sched_param none{};
    sched_setscheduler(0, always ? SCHED_IDLE : SCHED_OTHER, &none);
}

fs::path dataHome() {
    const char* named = std::getenv("XDG_DATA_HOME");
    if (named != nullptr && *named != '\0') return named;
    const char* home = std::getenv("HOME");
    return home != nullptr ? fs::path(home) / ".local/share" : fs::path();
}

}  // namespace

TableFolders TableFolders::usual() {
    std::error_code none;
    const fs::path program = fs::read_symlink("/proc/self/exe", none).parent_path();
    const char* named = std::getenv("MELVORA_FONT_TABLES");
    const fs::path data = dataHome();
    const fs::path own = named != nullptr ? fs::path(named)
                         : data.empty()   ? data
                                          : data / "melvora/fonts";
    return {program / "../share/melvora/fonts", own};
}

fs::path tableFile(const fs::path& folder, const FontTable::Origin& origin) {
    return folder / (origin.digest + "-" + origin.version + ".txt");
}

fs::path measureWhole(const std::string& font, const fs::path& folder,
                      const std::function<void(int)>& progress) {
    Meter meter(font);
    FontTable table({digestOfFile(font), Meter::version()});
    for (int program = 0; program < programCount; ++program) {
        table.set(program, *meter.measure(program, {}));
        progress(program + 1);
    }
    fs::create_directories(folder);
    fs::path file = tableFile(folder, table.origin());
    table.save(file);
    return file;
}

MeasuredFont::MeasuredFont(std::string font, TableFolders folders, std::function<void()> known)
    : font_(std::move(font)),
      folders_(std::move(folders)),
      tell_(known ? std::move(known) : [] {}),
      thread_([this](const std::stop_token& stop) { run(stop); }) {}

MeasuredFont::~MeasuredFont() = default;

std::shared_ptr<const Instrument> MeasuredFont::find(int program) {
    return wait(program, std::chrono::milliseconds(0));
}

std::shared_ptr<const Instrument> MeasuredFont::known(int program) {
    const std::lock_guard lock(mutex_);
    return known_.at(static_cast<std::size_t>(program));
}

std::shared_ptr<const Instrument> MeasuredFont::wait(int program,
                                                     std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    const auto& known = known_.at(static_cast<std::size_t>(program));
    if (known || over_) return known;
    if (std::ranges::find(wishes_, program) == wishes_.end()) wishes_.push_back(program);
    if (patience.count() > 0) changed_.wait_for(lock, patience, [&] { return known || over_; });
    return known;
}

void MeasuredFont::publish(int program, const Instrument& instrument) {
    const std::lock_guard lock(mutex_);
    known_.at(static_cast<std::size_t>(program)) = std::make_shared<const Instrument>(instrument);
    changed_.notify_all();
}

void MeasuredFont::run(const std::stop_token& stop) {
    try {
        const FontTable::Origin origin{digestOfFile(font_), Meter::version()};
        std::optional<FontTable> table;
        for (const fs::path& folder : {folders_.packaged, folders_.own})
            if (!table && !origin.digest.empty() && !folder.empty())
                table = FontTable::load(tableFile(folder, origin), origin);
        if (!table) table.emplace(origin);
        for (int program = 0; program < programCount; ++program)
            if (const Instrument* instrument = table->find(program)) publish(program, *instrument);
        tell_();
        if (!table->complete()) measure(*table, stop);
    } catch (const std::exception&) {
        // The instruments stay as they are; that they sound at all is the player's business.
    }
    const std::lock_guard lock(mutex_);
    over_ = true;
    changed_.notify_all();
}

int MeasuredFont::next(const FontTable& table) {
    const std::lock_guard lock(mutex_);
    const auto unknown = [&](int program) { return table.find(program) == nullptr; };
    std::erase_if(wishes_, [&](int program) { return !unknown(program); });
    giveWay(wishes_.empty());
    if (!wishes_.empty()) return wishes_.front();
    for (int program = 0; program < programCount; ++program)
        if (unknown(program)) return program;
    return -1;
}

void MeasuredFont::measure(FontTable& table, const std::stop_token& stop) {
    constexpr int often = 16;
    int measured = 0;
    Meter meter(font_);
    for (int program = next(table); program >= 0 && !stop.stop_requested(); program = next(table)) {
        const auto instrument = meter.measure(program, [&] { return stop.stop_requested(); });
        if (!instrument) break;
        table.set(program, *instrument);
        publish(program, *instrument);
        if (++measured % often == 1 || table.complete()) tell_();
    }
    keep(table);
}

void MeasuredFont::keep(const FontTable& table) const {
    if (folders_.own.empty() || table.origin().digest.empty()) return;
    std::error_code failed;
    fs::create_directories(folders_.own, failed);
    if (failed) return;
    try {
        table.save(tableFile(folders_.own, table.origin()));
    } catch (const std::system_error&) {
        // A folder that can only be read: it is measured anew next time.
    }
}

}  // namespace soundfont
