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
struct Schrift {
    bool fett = false, kursiv = false, unsichtbar = false;
    int halbpunkte = 24;
    int ersatz = 1;  ///< letters that stand behind a \uN for readers that do not know it
    friend bool operator==(const Schrift&, const Schrift&) = default;
};

/// What the bytes 0x80..0x9F mean in code page 1252; a byte without a meaning stays as it is.
constexpr std::array<std::uint16_t, 32> seite1252{
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

std::uint32_t ausByte(unsigned byte) {
    return byte >= 0x80 && byte < 0xA0 ? seite1252.at(byte - 0x80) : byte;
}

/// Control words and symbols that stand for a letter.
struct Satzzeichen {
    std::string_view befehl;
    std::uint32_t zeichen;
};
constexpr std::array satzzeichen{Satzzeichen{"endash", 0x2013},    Satzzeichen{"emdash", 0x2014},
                                 Satzzeichen{"lquote", 0x2018},    Satzzeichen{"rquote", 0x2019},
                                 Satzzeichen{"ldblquote", 0x201C}, Satzzeichen{"rdblquote", 0x201D},
                                 Satzzeichen{"bullet", 0x2022},    Satzzeichen{"enspace", 0x2002},
                                 Satzzeichen{"emspace", 0x2003},   Satzzeichen{"qmspace", 0x2005},
                                 Satzzeichen{"tab", 0xA0},         Satzzeichen{"~", 0xA0},
                                 Satzzeichen{"_", 0x2011},         Satzzeichen{"-", 0xAD}};

void utf8(std::string& ziel, std::uint32_t zeichen) {
    const auto byte = [&](std::uint32_t b) { ziel += static_cast<char>(b); };
    if (zeichen < 0x80) {
        byte(zeichen);
    } else if (zeichen < 0x800) {
        byte(0xC0 | zeichen >> 6);
        byte(0x80 | (zeichen & 0x3F));
    } else {
        if (zeichen < 0x10000) {
            byte(0xE0 | zeichen >> 12);
        } else {
            byte(0xF0 | zeichen >> 18);
            byte(0x80 | (zeichen >> 12 & 0x3F));
        }
        byte(0x80 | (zeichen >> 6 & 0x3F));
        byte(0x80 | (zeichen & 0x3F));
    }
}

class Leser {
  public:
    explicit Leser(std::string_view rtf) : rtf_(rtf) {}

    std::string html() {
        if (!rtf_.starts_with("{\\rtf")) throw std::runtime_error("no rich text");
        do schritt();
        while (!gruppen_.empty());
        absatzSchliessen();
        return html_;
    }

  private:
    char zeichen() {
        if (stelle_ >= rtf_.size()) throw std::runtime_error("the rich text does not end");
        return rtf_[stelle_++];
    }

    void schritt() {
        switch (const char c = zeichen()) {
            case '{':
                gruppen_.push_back(schrift_);
                break;
            case '}':
                schrift_ = gruppen_.back();
                gruppen_.pop_back();
                break;
            case '\\':
                befehl();
                break;
            case '\r':
            case '\n':
                break;
            default:
                schreiben(ausByte(static_cast<unsigned char>(c)));
        }
    }

    void befehl() {
        const char c = zeichen();
        if (c == '\'') {
            const std::string hex{zeichen(), zeichen()};
            unsigned wert = 0;
            std::from_chars(hex.data(), hex.data() + 2, wert, 16);
            schreiben(ausByte(wert));
        } else if (c == '*') {
            schrift_.unsichtbar = true;
        } else if (c == '{' || c == '}' || c == '\\') {
            schreiben(static_cast<unsigned char>(c));
        } else if (c >= 'a' && c <= 'z') {
            --stelle_;
            wort();
        } else {
            satzzeichenSchreiben({&c, 1});
        }
    }

    void wort() {
        const auto anfang = stelle_;
        while (stelle_ < rtf_.size() && rtf_[stelle_] >= 'a' && rtf_[stelle_] <= 'z') ++stelle_;
        const auto name = rtf_.substr(anfang, stelle_ - anfang);
        int wert = 0;
        const auto [ende, fehler] =
            std::from_chars(rtf_.data() + stelle_, rtf_.data() + rtf_.size(), wert);
        const bool mitWert = fehler == std::errc();
        if (mitWert) stelle_ = static_cast<std::size_t>(ende - rtf_.data());
        if (stelle_ < rtf_.size() && rtf_[stelle_] == ' ') ++stelle_;
        ausfuehren(name, mitWert, wert);
    }

    void ausfuehren(std::string_view name, bool mitWert, int wert) {
        if (name == "b") schrift_.fett = !mitWert || wert != 0;
        if (name == "i") schrift_.kursiv = !mitWert || wert != 0;
        if (name == "fs" && mitWert) schrift_.halbpunkte = wert;
        if (name == "uc" && mitWert) schrift_.ersatz = wert;
        if (name == "plain") schrift_ = Schrift{};
        if (name == "par") absatzSchliessen(true);
        if (name == "line") zeilenwechsel();
        if (name == "pard") ausrichtung_ = "left";
        if (name == "ql") ausrichtung_ = "left";
        if (name == "qc") ausrichtung_ = "center";
        if (name == "qr") ausrichtung_ = "right";
        if (name == "qj") ausrichtung_ = "justify";
        if (name == "u" && mitWert) {
            schreiben(static_cast<std::uint16_t>(wert));
            ueberspringen_ = schrift_.ersatz;
        }
        for (const char* tabelle : {"fonttbl", "colortbl", "stylesheet", "info", "pict"})
            if (name == tabelle) schrift_.unsichtbar = true;
        satzzeichenSchreiben(name);
    }

    void satzzeichenSchreiben(std::string_view befehl) {
        const auto* gemeint = std::ranges::find(satzzeichen, befehl, &Satzzeichen::befehl);
        if (gemeint != satzzeichen.end()) schreiben(gemeint->zeichen);
    }

    /// A letter beyond 16 bits comes in two halves, and is whole with the second; a half without
    /// the other is none.
    bool ganz(std::uint32_t& c) {
        const std::uint32_t hoch = std::exchange(hoch_, 0);
        if (c >= 0xD800 && c < 0xDC00) hoch_ = c;
        if (c < 0xD800 || c >= 0xE000) return true;
        if (hoch == 0 || hoch_ != 0) return false;
        c = 0x10000 + ((hoch & 0x3FF) << 10 | (c & 0x3FF));
        return true;
    }

    void schreiben(std::uint32_t c) {
        if (ueberspringen_ > 0) {
            --ueberspringen_;
            return;
        }
        if (schrift_.unsichtbar || !ganz(c)) return;
        lauf();
        if (c == '<')
            html_ += "&lt;";
        else if (c == '&')
            html_ += "&amp;";
        else
            utf8(html_, c);
    }

    /// Opens the paragraph and the run that the next letter belongs to.
    void lauf() {
        if (!absatzOffen_) html_ += "<p align=\"" + ausrichtung_ + "\">";
        absatzOffen_ = true;
        if (laufOffen_ && geschrieben_ == schrift_) return;
        laufSchliessen();
        html_ += "<span style=\"font-size:" + std::to_string(schrift_.halbpunkte / 2) + "pt" +
                 (schrift_.fett ? ";font-weight:bold" : "") +
                 (schrift_.kursiv ? ";font-style:italic" : "") + "\">";
        geschrieben_ = schrift_;
        laufOffen_ = true;
    }

    void laufSchliessen() {
        if (laufOffen_) html_ += "</span>";
        laufOffen_ = false;
    }

    void zeilenwechsel() {
        if (!schrift_.unsichtbar && absatzOffen_) html_ += "<br/>";
    }

    void absatzSchliessen(bool auchLeer = false) {
        laufSchliessen();
        if (absatzOffen_)
            html_ += "</p>";
        else if (auchLeer && !html_.empty())
            html_ += "<p></p>";
        absatzOffen_ = false;
    }

    std::string_view rtf_;
    std::size_t stelle_ = 0;
    std::vector<Schrift> gruppen_;
    Schrift schrift_, geschrieben_;
    std::string ausrichtung_ = "left";
    std::string html_;
    int ueberspringen_ = 0;
    std::uint32_t hoch_ = 0;  ///< first half of a letter, 0 for none
    bool absatzOffen_ = false, laufOffen_ = false;
};

}  // namespace

std::string rtfAlsHtml(std::string_view rtf) { return Leser(rtf).html(); }

}  // namespace worksheets
