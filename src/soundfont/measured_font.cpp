#include "soundfont/measured_font.h"

#include "base/program_folder.h"
#include "soundfont/digest.h"
#include "soundfont/measurer.h"
#include "soundfont/meter.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace soundfont {

namespace fs = std::filesystem;

namespace {

/// Samples and tables leave holes behind that nothing else fits into.
void giveBack() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

fs::path dataHome() {
    const char* named = std::getenv("XDG_DATA_HOME");
    if (named != nullptr && *named != '\0') return named;
    const char* home = std::getenv("HOME");
    return home != nullptr ? fs::path(home) / ".local/share" : fs::path();
}

}  // namespace

TablePlaces TablePlaces::usual() {
    const char* named = std::getenv("MELVORA_FONT_TABLES");
    const fs::path data = dataHome();
    const fs::path own = named != nullptr ? fs::path(named)
                         : data.empty()   ? data
                                          : data / "melvora/fonts";
    return {base::programFolder() / "../share/melvora/fonts", own,
            base::suitePart("melvora-measure")};
}

fs::path tableFile(const fs::path& folder, const FontTable::Origin& origin) {
    return folder / (origin.digest + "-" + origin.version + ".txt");
}

fs::path measureWhole(const std::string& font, const fs::path& folder,
                      const std::function<void(int)>& progress) {
    Meter meter(font);
    fs::create_directories(folder);
    FontTable table({digestOfFile(font), Meter::version()});
    for (int program = 0; program < programCount; ++program) {
        table.set(program, meter.measureWhole(program));
        progress(program + 1);
    }
    fs::path file = tableFile(folder, table.origin());
    table.save(file);
    return file;
}

MeasuredFont::MeasuredFont(std::string font, TablePlaces places, std::function<void()> known)
    : font_(std::move(font)),
      mark_(fontfile::markOf(font_)),
      places_(std::move(places)),
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
    changed_.notify_all();
    if (patience.count() > 0) changed_.wait_for(lock, patience, [&] { return known || over_; });
    return known;
}

void MeasuredFont::publish(int program, const Instrument& instrument) {
    if (fontfile::markOf(font_) != mark_) throw std::runtime_error(font_ + ": was replaced");
    const std::lock_guard lock(mutex_);
    known_.at(static_cast<std::size_t>(program)) = std::make_shared<const Instrument>(instrument);
    changed_.notify_all();
}

void MeasuredFont::run(const std::stop_token& stop) {
    try {
        if (const auto origin = identify(stop)) {
            FontTable table = knownTable(*origin);
            tell_();
            giveBack();
            if (!table.missing().empty()) measureRest(table, stop);
        }
    } catch (const std::exception&) {
        // The instruments stay as they are; that they sound at all is the player's business.
    }
    const std::lock_guard lock(mutex_);
    over_ = true;
    changed_.notify_all();
}

/// A large file takes its time: what is asked for meanwhile is measured.
std::optional<FontTable::Origin> MeasuredFont::identify(const std::stop_token& stop) {
    FileDigest digest(font_);
    while (digest.readOn()) {
        grantWishes(stop);
        if (stop.stop_requested()) return {};
    }
    return FontTable::Origin{digest.result(), Meter::version()};
}

FontTable MeasuredFont::knownTable(const FontTable::Origin& origin) {
    for (const fs::path& folder : {places_.packaged, places_.own}) {
        if (origin.digest.empty() || folder.empty()) continue;
        const auto table = FontTable::load(tableFile(folder, origin), origin);
        if (!table) continue;
        for (int program = 0; program < programCount; ++program)
            if (const Instrument* instrument = table->find(program)) publish(program, *instrument);
        return *table;
    }
    return FontTable(origin);
}

int MeasuredFont::wish() {
    const std::lock_guard lock(mutex_);
    std::erase_if(wishes_, [&](int program) { return known_.at(std::size_t(program)) != nullptr; });
    return wishes_.empty() ? -1 : wishes_.front();
}

void MeasuredFont::grantWishes(const std::stop_token& stop) {
    if (wish() < 0) return;
    {
        Meter meter(font_);
        for (int program = wish(); program >= 0; program = wish()) {
            const auto instrument = meter.measure(program, [&] { return stop.stop_requested(); });
            if (!instrument) return;
            publish(program, *instrument);
        }
    }
    giveBack();
    tell_();
}

void MeasuredFont::measureRest(FontTable& table, const std::stop_token& stop) {
    constexpr std::chrono::milliseconds promptly(20);
    constexpr int often = 16;
    int told = 0;
    Measurer measurer(places_.tool, font_, table.missing());
    while (!stop.stop_requested()) {
        grantWishes(stop);
        if (measurer.ended()) {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, stop, [&] { return !wishes_.empty(); });
            continue;
        }
        const auto line = measurer.line(promptly);
        const auto found = line ? instrumentIn(*line) : std::nullopt;
        if (!found) continue;
        table.set(found->first, found->second);
        publish(found->first, found->second);
        if (++told % often == 0 || table.missing().empty()) tell_();
        if (table.missing().empty()) break;
    }
    if (told > 0) keep(table);
}

void MeasuredFont::keep(const FontTable& table) const {
    if (places_.own.empty() || table.origin().digest.empty()) return;
    std::error_code failed;
    fs::create_directories(places_.own, failed);
    if (failed) return;
    try {
        table.save(tableFile(places_.own, table.origin()));
    } catch (const std::system_error&) {
        // A folder that can only be read: it is measured anew next time.
    }
}

}  // namespace soundfont
