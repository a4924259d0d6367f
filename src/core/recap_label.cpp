#include "core/recap_label.h"

#include "core/worte.h"

#include <algorithm>

namespace core {

std::string recapLabel(std::string_view label, const std::function<std::string(wort::Id)>& wordOf) {
    const auto* found = std::ranges::find_if(recap::all, [&](const RecapLabel& one) {
        return one.numbered ? label.starts_with(one.german) : label == one.german;
    });
    if (found == recap::all.end()) return std::string(label);
    // A word that stands before a value on forms ends in a blank.
    std::string word = wordOf(found->shown);
    word.erase(word.find_last_not_of(' ') + 1);
    return eingesetzt(word, std::string(label.substr(found->german.size())));
}

}  // namespace core
