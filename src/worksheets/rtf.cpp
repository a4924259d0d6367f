#include "worksheets/rtf.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <stdexcept>
#include <utility>
#include <vector>

namespace worksheets {

namespace {

/// What letters look like inside a group.
struct LetterStyle {
    bool bold = false, italic = false, hidden = false;
    int halfPoints = 24;
    int fallback = 1;  ///< letters that stand behind a \uN for readers that do not know it
    friend bool operator==(const LetterStyle&, const LetterStyle&) = default;
};

/// What the bytes 0x80..0x9F mean in code page 1252; a byte without a meaning stays as it is.
constexpr std::array<std::uint16_t, 32> page1252{
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

std::uint32_t fromByte(unsigned byte) {
    return byte >= 0x80 && byte < 0xA0 ? page1252.at(byte - 0x80) : byte;
}

/// Control words and symbols that stand for a letter.
struct Symbol {
    std::string_view command;
    std::uint32_t letter;
};
constexpr std::array symbols{Symbol{"endash", 0x2013},    Symbol{"emdash", 0x2014},
                             Symbol{"lquote", 0x2018},    Symbol{"rquote", 0x2019},
                             Symbol{"ldblquote", 0x201C}, Symbol{"rdblquote", 0x201D},
                             Symbol{"bullet", 0x2022},    Symbol{"enspace", 0x2002},
                             Symbol{"emspace", 0x2003},   Symbol{"qmspace", 0x2005},
                             Symbol{"tab", 0xA0},         Symbol{"~", 0xA0},
                             Symbol{"_", 0x2011},         Symbol{"-", 0xAD}};

void utf8(std::string& target, std::uint32_t letter) {
    const auto byte = [&](std::uint32_t b) { target += static_cast<char>(b); };
    if (letter < 0x80) {
        byte(letter);
    } else if (letter < 0x800) {
        byte(0xC0 | letter >> 6);
        byte(0x80 | (letter & 0x3F));
    } else {
        if (letter < 0x10000) {
            byte(0xE0 | letter >> 12);
        } else {
            byte(0xF0 | letter >> 18);
            byte(0x80 | (letter >> 12 & 0x3F));
        }
        byte(0x80 | (letter >> 6 & 0x3F));
        byte(0x80 | (letter & 0x3F));
    }
}

class Reader {
  public:
    explicit Reader(std::string_view rtf) : rtf_(rtf) {}

    std::string html() {
        if (!rtf_.starts_with("{\\rtf")) throw std::runtime_error("no rich text");
        do step();
        while (!groups_.empty());
        closeParagraph();
        return html_;
    }

  private:
    char nextByte() {
        if (position_ >= rtf_.size()) throw std::runtime_error("the rich text does not end");
        return rtf_[position_++];
    }

    void step() {
        switch (const char c = nextByte()) {
            case '{':
                groups_.push_back(style_);
                break;
            case '}':
                style_ = groups_.back();
                groups_.pop_back();
                break;
            case '\\':
                command();
                break;
            case '\r':
            case '\n':
                break;
            default:
                write(fromByte(static_cast<unsigned char>(c)));
        }
    }

    void command() {
        const char c = nextByte();
        if (c == '\'') {
            const std::string hex{nextByte(), nextByte()};
            unsigned value = 0;
            std::from_chars(hex.data(), hex.data() + 2, value, 16);
            write(fromByte(value));
        } else if (c == '*') {
            style_.hidden = true;
        } else if (c == '{' || c == '}' || c == '\\') {
            write(static_cast<unsigned char>(c));
        } else if (c >= 'a' && c <= 'z') {
            --position_;
            word();
        } else {
            writeSymbol({&c, 1});
        }
    }

    void word() {
        const auto start = position_;
        while (position_ < rtf_.size() && rtf_[position_] >= 'a' && rtf_[position_] <= 'z')
            ++position_;
        const auto name = rtf_.substr(start, position_ - start);
        int value = 0;
        const auto [end, error] =
            std::from_chars(rtf_.data() + position_, rtf_.data() + rtf_.size(), value);
        const bool hasValue = error == std::errc();
        if (hasValue) position_ = static_cast<std::size_t>(end - rtf_.data());
        if (position_ < rtf_.size() && rtf_[position_] == ' ') ++position_;
        execute(name, hasValue, value);
    }

    void execute(std::string_view name, bool hasValue, int value) {
        if (name == "b") style_.bold = !hasValue || value != 0;
        if (name == "i") style_.italic = !hasValue || value != 0;
        if (name == "fs" && hasValue) style_.halfPoints = value;
        if (name == "uc" && hasValue) style_.fallback = value;
        if (name == "plain") style_ = LetterStyle{};
        if (name == "par") closeParagraph(true);
        if (name == "line") lineBreak();
        if (name == "pard") alignment_ = "left";
        if (name == "ql") alignment_ = "left";
        if (name == "qc") alignment_ = "center";
        if (name == "qr") alignment_ = "right";
        if (name == "qj") alignment_ = "justify";
        if (name == "u" && hasValue) {
            write(static_cast<std::uint16_t>(value));
            skip_ = style_.fallback;
        }
        for (const char* table : {"fonttbl", "colortbl", "stylesheet", "info", "pict"})
            if (name == table) style_.hidden = true;
        writeSymbol(name);
    }

    void writeSymbol(std::string_view command) {
        const auto* meant = std::ranges::find(symbols, command, &Symbol::command);
        if (meant != symbols.end()) write(meant->letter);
    }

    /// A letter beyond 16 bits comes in two halves, and is whole with the second; a half without
    /// the other is none.
    bool whole(std::uint32_t& c) {
        const std::uint32_t first = std::exchange(first_, 0);
        if (c >= 0xD800 && c < 0xDC00) first_ = c;
        if (c < 0xD800 || c >= 0xE000) return true;
        if (first == 0 || first_ != 0) return false;
        c = 0x10000 + ((first & 0x3FF) << 10 | (c & 0x3FF));
        return true;
    }

    void write(std::uint32_t c) {
        if (skip_ > 0) {
            --skip_;
            return;
        }
        if (style_.hidden || !whole(c)) return;
        openSpan();
        if (c == '<')
            html_ += "&lt;";
        else if (c == '&')
            html_ += "&amp;";
        else
            utf8(html_, c);
    }

    /// Opens the paragraph and the run that the next letter belongs to.
    void openSpan() {
        if (!paragraphOpen_) html_ += "<p align=\"" + alignment_ + "\">";
        paragraphOpen_ = true;
        if (spanOpen_ && written_ == style_) return;
        closeSpan();
        html_ += "<span style=\"font-size:" + std::to_string(style_.halfPoints / 2) + "pt" +
                 (style_.bold ? ";font-weight:bold" : "") +
                 (style_.italic ? ";font-style:italic" : "") + "\">";
        written_ = style_;
        spanOpen_ = true;
    }

    void closeSpan() {
        if (spanOpen_) html_ += "</span>";
        spanOpen_ = false;
    }

    void lineBreak() {
        if (!style_.hidden && paragraphOpen_) html_ += "<br/>";
    }

    void closeParagraph(bool evenEmpty = false) {
        closeSpan();
        if (paragraphOpen_)
            html_ += "</p>";
        else if (evenEmpty && !html_.empty())
            html_ += "<p></p>";
        paragraphOpen_ = false;
    }

    std::string_view rtf_;
    std::size_t position_ = 0;
    std::vector<LetterStyle> groups_;
    LetterStyle style_, written_;
    std::string alignment_ = "left";
    std::string html_;
    int skip_ = 0;
    std::uint32_t first_ = 0;  ///< first half of a letter, 0 for none
    bool paragraphOpen_ = false, spanOpen_ = false;
};

}  // namespace

std::string rtfToHtml(std::string_view rtf) { return Reader(rtf).html(); }

}  // namespace worksheets
