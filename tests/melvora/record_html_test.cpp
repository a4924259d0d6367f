#include "melvora/record_html.h"

#include "core/recap_label.h"

#include <gtest/gtest.h>

namespace melvora {
namespace {

TEST(RecordHtml, ReadsTheLabelsOfTheSettingsInTheLanguageOfTheReader) {
    Words words(MELVORA_LANGUAGES);
    for (const QString& language : words.languages()) {
        SCOPED_TRACE(language.toStdString());
        words.choose(language);
        const auto shown = [&](const std::string& label) {
            return core::recapLabel(
                label, [&](core::wort::Id id) { return words.wort(id).toStdString(); });
        };
        for (const core::RecapLabel& label : core::recap::all) {
            const std::string kept = std::string(label.german) + (label.numbered ? "14" : "");
            const std::string text = shown(kept);
            EXPECT_EQ(text == kept, language == "Deutsch" || kept == "Tempo") << text;
            EXPECT_EQ(text.find("VOID"), std::string::npos) << kept;
            EXPECT_EQ(text.ends_with("14"), label.numbered) << text;
        }
        for (const char* other : {"", "Tempo ", "Nr", "a%1"}) EXPECT_EQ(shown(other), other);
        ResultRecord record;
        record.settings = {{"Ska-Richtung", "W132"}, {"<b>", "x"}};
        const QString html = recordHtml(words, record, {}, "x");
        EXPECT_TRUE(html.contains(shown("Ska-Richtung").c_str()));
        EXPECT_TRUE(html.contains("&lt;b&gt;"));
    }
}

}  // namespace
}  // namespace melvora
