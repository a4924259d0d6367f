#include "soundfont/font_table.h"

#include "soundfont/digest.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <sstream>
#include <string_view>
#include <system_error>
#include <vector>

namespace soundfont {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view title = "melvora font table 1";
constexpr std::uintmax_t largestFile = 4 << 20;
constexpr double farthest = 150;     ///< cents; further off it may be any other note
constexpr double latestAttack = 15;  ///< ms; what comes later is heard late on purpose

double middle(std::vector<double> values) {
    const auto half = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, half);
    return *half;
}

/// Takes a text apart, by lines and by numbers; `good` until something is not there.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}
    std::string_view line() {
        const std::string_view found = text_.substr(0, text_.find('\n'));
        text_.remove_prefix(std::min(text_.size(), found.size() + 1));
        return found;
    }
    double number() {
        while (!text_.empty() && (text_.front() == ' ' || text_.front() == '\n'))
            text_.remove_prefix(1);
        double value = 0;
        const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), value);
        good = good && error == std::errc() && std::isfinite(value);
        text_.remove_prefix(static_cast<std::size_t>(end - text_.data()));
        return value;
    }
    bool good = true;

  private:
    std::string_view text_;
};

Tone toneFrom(Reader& reader) {
    Tone tone;
    for (double* part :
         {&tone.pitch.cents, &tone.pitch.uncertainty, &tone.level, &tone.attack, &tone.rise})
        *part = reader.number();
    tone.octave = static_cast<int>(reader.number());
    return tone;
}

std::string head(const FontTable::Origin& origin) {
    return std::string(title) + "\nfont " + origin.digest + "\nsynthesiser " + origin.version +
           '\n';
}

/// Without the language's decimal sign.
void append(std::string& text, double value) {
    std::array<char, 64> digits;
    constexpr int decimals = 2;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, decimals);
    text.append(digits.data(), end.ptr) += ' ';
}

}  // namespace

double Instrument::correction(int key) const {
    const Tone& tone = at(key);
    const bool sure = tone.hasPitch() && std::abs(tone.pitch.cents) <= farthest;
    return sure ? -tone.pitch.cents : 0;
}

double Instrument::lag(int key) const {
    std::vector<double> attacks;
    for (const Tone& tone : tones_)
        if (tone.isSteep() && tone.attack <= latestAttack) attacks.push_back(tone.attack);
    if (attacks.size() < tones_.size() / 2) return 0;
    const Tone& own = at(key);
    return own.isSteep() && own.attack <= latestAttack ? own.attack : middle(attacks);
}

double Instrument::evenness(int key) const {
    constexpr double steepest = 1.5 / 12;  // dB a semitone
    constexpr double most = 9;             // dB; what lacks more is another sound
    double count = 0, keys = 0, levels = 0, product = 0, square = 0;
    for (int k = lowestKey; k <= highestKey; ++k) {
        if (!at(k).sounds()) continue;
        ++count;
        keys += k;
        levels += at(k).level;
    }
    if (!at(key).sounds() || count < 2) return 0;
    const double middleKey = keys / count, middleLevel = levels / count;
    for (int k = lowestKey; k <= highestKey; ++k) {
        if (!at(k).sounds()) continue;
        product += (k - middleKey) * (at(k).level - middleLevel);
        square += (k - middleKey) * (k - middleKey);
    }
    const double slope = std::clamp(product / square, -steepest, steepest);
    const double wanted = middleLevel + slope * (key - middleKey);
    return std::clamp(wanted - at(key).level, -most, most);
}

Fitness Instrument::fitness(int lowest, int highest) const {
    constexpr double most = 0.9;
    int count = 0, clear = 0, shifted = 0;
    for (int key = std::max(lowest, lowestKey); key <= std::min(highest, highestKey); ++key) {
        const Tone& tone = at(key);
        if (!tone.sounds()) return Fitness::PartlySilent;
        ++count;
        clear += tone.hasPitch() && std::abs(tone.pitch.cents) <= farthest ? 1 : 0;
        shifted += tone.octave != 0 ? 1 : 0;
    }
    if (clear < most * count) return Fitness::UnclearPitch;
    return shifted > count / 2 ? Fitness::OtherOctave : Fitness::Fit;
}

const Instrument* FontTable::find(int program) const {
    const auto& found = instruments_.at(static_cast<std::size_t>(program));
    return found ? &*found : nullptr;
}

void FontTable::set(int program, const Instrument& instrument) {
    instruments_.at(static_cast<std::size_t>(program)) = instrument;
}

bool FontTable::complete() const {
    return std::ranges::all_of(instruments_, [](const auto& found) { return found.has_value(); });
}

std::optional<FontTable> FontTable::load(const fs::path& file, const Origin& origin) {
    std::error_code none;
    if (!fs::is_regular_file(file, none) || fs::file_size(file, none) > largestFile) return {};
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    const std::string text = std::move(content).str();
    // The last line is the digest of all others.
    const std::size_t end = text.rfind("\nend ");
    if (!text.starts_with(head(origin)) || end == std::string::npos) return {};
    const std::string_view body(text.data(), end + 1);
    if (std::string_view(text).substr(end + 1) != "end " + digestOf(body) + "\n") return {};
    FontTable table(origin);
    Reader reader(body.substr(head(origin).size()));
    const auto count = static_cast<int>(reader.number());
    for (int n = 0; reader.good && n < count; ++n) {
        const auto program = static_cast<int>(reader.number());
        Instrument instrument;
        for (int key = lowestKey; key <= highestKey; ++key) instrument.at(key) = toneFrom(reader);
        reader.good = reader.good && program >= 0 && program < programCount;
        if (reader.good) table.set(program, instrument);
    }
    if (!reader.good) return {};
    return table;
}

void FontTable::save(const fs::path& file) const {
    std::string text = head(origin_);
    text += std::to_string(std::ranges::count_if(
                instruments_, [](const auto& found) { return found.has_value(); })) +
            '\n';
    for (int program = 0; program < programCount; ++program) {
        const Instrument* instrument = find(program);
        if (instrument == nullptr) continue;
        text += std::to_string(program) + '\n';
        for (int key = lowestKey; key <= highestKey; ++key) {
            const Tone& tone = instrument->at(key);
            for (const double part :
                 {tone.pitch.cents, tone.pitch.uncertainty, tone.level, tone.attack, tone.rise})
                append(text, part);
            text += std::to_string(tone.octave) + '\n';
        }
    }
    text += "end " + digestOf(text) + "\n";
    const fs::path fresh = fs::path(file) += ".new";
    std::ofstream out(fresh, std::ios::binary);
    out << text;
    out.close();
    if (!out) {
        std::error_code none;
        fs::remove(fresh, none);
        throw std::system_error(std::make_error_code(std::errc::io_error), file.string());
    }
    fs::rename(fresh, file);
}

}  // namespace soundfont
