#pragma once
#include "soundfont/tone.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace soundfont {

/// Lowest and highest MIDI note that any range of tones reaches.
inline constexpr int lowestKey = 36;
inline constexpr int highestKey = 96;
inline constexpr int keyCount = highestKey - lowestKey + 1;
inline constexpr int programCount = 128;

/// What an instrument is worth for a range of notes.
enum class Fitness { Fit, PartlySilent, UnclearPitch, OtherOctave, Missing };

/// One instrument of a font, note by note.
class Instrument {
  public:
    Tone& at(int key) { return tones_.at(static_cast<std::size_t>(key - lowestKey)); }
    const Tone& at(int key) const { return tones_.at(static_cast<std::size_t>(key - lowestKey)); }
    /// Whether the font has it; else the synthesiser plays another one in its place.
    bool isThere = true;

    /// Cents by which a note is to be raised to be in tune; 0 where that cannot be told.
    double correction(int key) const;
    /// Milliseconds from a note's beginning to where it is heard; what is usual with this
    /// instrument where its own attack does not let one tell, and 0 where most do not.
    double lag(int key) const;
    /// Decibels by which a note is to be louder to be as loud as the others, of which each lies on
    /// one line: higher notes may be a little louder or softer, none stands out. At most 4, which
    /// the usual velocity leaves: where a note lacks more, all others are softer.
    double evenness(int key) const;
    /// From a lowest to a highest note.
    Fitness fitness(int lowest, int highest) const;

  private:
    std::array<Tone, keyCount> tones_;
};

/// An instrument as a line of text, without its end.
std::string lineOf(int program, const Instrument& instrument);
/// What such a line says. @return nothing for one that is damaged.
std::optional<std::pair<int, Instrument>> instrumentIn(std::string_view line);

/// What the instruments of a font were found to be. It belongs to one file of a font and one
/// version of the synthesiser, and is good for no other.
class FontTable {
  public:
    struct Origin {
        std::string digest;   ///< of the font's file
        std::string version;  ///< of the synthesiser
        bool operator==(const Origin&) const = default;
    };

    explicit FontTable(Origin origin) : origin_(std::move(origin)) {}

    const Origin& origin() const { return origin_; }
    /// nullptr for one that has not been measured.
    const Instrument* find(int program) const;
    void set(int program, const Instrument& instrument);
    /// The programs that have not been measured.
    std::vector<int> missing() const;

    /// @return nothing for a file that is missing, damaged, or of another origin.
    static std::optional<FontTable> load(const std::filesystem::path& file, const Origin& origin);
    /// Replaces the file as a whole, or leaves it as it was. @throws std::system_error
    void save(const std::filesystem::path& file) const;

  private:
    Origin origin_;
    std::array<std::optional<Instrument>, programCount> instruments_;
};

}  // namespace soundfont
