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

constexpr std::string_view title = "melvora font table 3";
constexpr std::uintmax_t largestFile = 4 << 20;
constexpr double farthest = 150;     ///< cents; further off it may be any other note
constexpr double latestAttack = 15;  ///< ms; what comes later is heard late on purpose

double middle(std::vector<double> values) {
    const auto half = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, half);
    return *half;
}

/// Takes the numbers out of a text, one after the other; `good` until one is not there.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}
    double number() {
        text_.remove_prefix(std::min(text_.size(), text_.find_first_not_of(' ')));
        double value = 0;
        const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), value);
        good = good && error == std::errc() && std::isfinite(value);
        text_.remove_prefix(static_cast<std::size_t>(end - text_.data()));
        return value;
    }
    bool atEnd() const { return text_.empty(); }
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
    (text += ' ').append(digits.data(), end.ptr);
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
    constexpr double louder = 4;  // dB; more than this is not left above the usual velocity
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
    const auto lacks = [&](int k) {
        return std::clamp(middleLevel + slope * (k - middleKey) - at(k).level, -most, most);
    };
    // The softest note is as loud as it can be, and the others come down to it.
    double softest = 0;
    for (int k = lowestKey; k <= highestKey; ++k)
        if (at(k).sounds()) softest = std::max(softest, lacks(k));
    return lacks(key) - std::max(0.0, softest - louder);
}

Fitness Instrument::fitness(int lowest, int highest) const {
    if (!isThere) return Fitness::Missing;
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

std::string lineOf(int program, const Instrument& instrument) {
    std::string text = std::to_string(program) + (instrument.isThere ? " 1" : " 0");
    for (int key = lowestKey; key <= highestKey; ++key) {
        const Tone& tone = instrument.at(key);
        for (const double part :
             {tone.pitch.cents, tone.pitch.uncertainty, tone.level, tone.attack, tone.rise})
            append(text, part);
        text += ' ' + std::to_string(tone.octave);
    }
    return text;
}

std::optional<std::pair<int, Instrument>> instrumentIn(std::string_view line) {
    Reader reader(line);
    const auto program = static_cast<int>(reader.number());
    Instrument instrument;
    instrument.isThere = reader.number() != 0;
    for (int key = lowestKey; key <= highestKey; ++key) instrument.at(key) = toneFrom(reader);
    const bool good = reader.good && reader.atEnd() && program >= 0 && program < programCount;
    return good ? std::optional(std::pair(program, instrument)) : std::nullopt;
}

const Instrument* FontTable::find(int program) const {
    const auto& found = instruments_.at(static_cast<std::size_t>(program));
    return found ? &*found : nullptr;
}

void FontTable::set(int program, const Instrument& instrument) {
    instruments_.at(static_cast<std::size_t>(program)) = instrument;
}

std::vector<int> FontTable::missing() const {
    std::vector<int> programs;
    for (int program = 0; program < programCount; ++program)
        if (find(program) == nullptr) programs.push_back(program);
    return programs;
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
    std::istringstream lines(std::string(body.substr(head(origin).size())));
    for (std::string line; std::getline(lines, line);) {
        const auto found = instrumentIn(line);
        if (!found) return {};
        table.set(found->first, found->second);
    }
    return table;
}

void FontTable::save(const fs::path& file) const {
    std::string text = head(origin_);
    for (int program = 0; program < programCount; ++program)
        if (const Instrument* instrument = find(program))
            text += lineOf(program, *instrument) + '\n';
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
