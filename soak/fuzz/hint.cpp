// Hints: what comes out is well-formed HTML of the reader's own tags, in UTF-8.
#include "soak/fuzz/law.h"
#include "worksheets/rtf.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace soak {

namespace {

/// Bytes of the letter in UTF-8 that the text begins with; 0 for what is none.
std::size_t letter(std::string_view text) {
    const auto byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const auto follows = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0 && follows(1)) return 2;
    const unsigned two = lead << 8U | byte(1);
    if (two >= 0xE0A0 && two < 0xF000 && (two < 0xEDA0 || two >= 0xEE00) && follows(1) &&
        follows(2))
        return 3;
    if (two >= 0xF090 && two < 0xF490 && follows(1) && follows(2) && follows(3)) return 4;
    return 0;
}

/// The tag at the beginning, as it was meant.
std::string_view tag(std::string_view text) {
    return text.substr(0, text.find('>') == text.npos ? 0 : text.find('>') + 1);
}

void expectHtml(std::string_view html) {
    bool paragraph = false, run = false;
    while (!html.empty()) {
        const std::size_t size = letter(html);
        law(size > 0, "UTF-8");
        if (html.front() == '&')
            law(html.starts_with("&lt;") || html.starts_with("&amp;"), "no foreign entity");
        if (html.front() != '<') {
            law(run, "letters stand in a run");
            html.remove_prefix(size);
            continue;
        }
        const std::string_view found = tag(html);
        if (found.starts_with("<p align=\"") || found == "<p>") {
            law(!paragraph && !run, "a paragraph in none");
            paragraph = true;
        } else if (found == "</p>") {
            law(paragraph && !run, "a paragraph ends");
            paragraph = false;
        } else if (found.starts_with("<span style=\"font-size:")) {
            law(paragraph && !run, "a run in a paragraph");
            run = true;
        } else if (found == "</span>") {
            law(run, "a run ends");
            run = false;
        } else {
            law(found == "<br/>" && paragraph, "no foreign tag");
        }
        html.remove_prefix(found.size());
    }
    law(!paragraph && !run, "all is closed");
}

}  // namespace

}  // namespace soak

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string html;
    try {
        html = worksheets::rtfToHtml({reinterpret_cast<const char*>(data), size});
    } catch (const std::runtime_error&) {
        return 0;
    }
    soak::expectHtml(html);
    return 0;
}
