#include "worksheets/rtf.h"

#include <gtest/gtest.h>

namespace worksheets {
namespace {

TEST(Rtf, KeepsLettersParagraphsAndLook) {
    const std::string html = rtfToHtml(
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Sans;}}{\\*\\generator x;}\\fs20\\qc a<{\\b b\\i c}d\\par\n"
        "\\pard\\'fc\\u9837?\\uc0\\u8217 \\{&\\par}");
    EXPECT_EQ(html,
              "<p align=\"center\"><span style=\"font-size:10pt\">a&lt;</span>"
              "<span style=\"font-size:10pt;font-weight:bold\">b</span>"
              "<span style=\"font-size:10pt;font-weight:bold;font-style:italic\">c</span>"
              "<span style=\"font-size:10pt\">d</span></p>"
              "<p align=\"left\"><span style=\"font-size:10pt\">ü♭</span>"
              "<span style=\"font-size:10pt\">’{&amp;</span></p>");
}

TEST(Rtf, ReadsCodePage1252AndTypographicWords) {
    const std::string html = rtfToHtml(
        "{\\rtf1\\ansi\\'84\\'96\\'93\\'80\x85\\endash\\emdash\\lquote\\rquote\\ldblquote"
        "\\rdblquote\\bullet a\\~b\\_c\\-d}");
    EXPECT_NE(html.find("„–“€…–—‘’“”•a\u00a0b\u2011c\u00add"), std::string::npos) << html;
}

/// Whatever is damaged in a hint, reading it ends.
TEST(Rtf, RefusesWhatIsNoneAndEndsWithDamagedOnes) {
    for (const char* text : {"", "hello", "{\\rtf1 never ends", "{\\rtf1 \\", "{\\rtf1 \\'f"})
        EXPECT_THROW(rtfToHtml(text), std::runtime_error) << text;
    const std::string whole = "{\\rtf1\\ansi{\\b b}\\u9837?\\'fc\\par\\fs22 x}";
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const char c : {'{', '}', '\\', '9', '\0'}) {
            std::string damaged = whole;
            damaged[at] = c;
            try {
                rtfToHtml(damaged);
            } catch (const std::runtime_error&) {
                continue;
            }
        }
}

}  // namespace
}  // namespace worksheets
