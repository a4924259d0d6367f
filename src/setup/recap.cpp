#include "setup/recap.h"

#include "core/recap_label.h"
#include "setup/choices.h"

#include <array>
#include <string_view>

namespace setup {

namespace labels = core::recap;

namespace {

/// When a choice is in force.
enum class When { Always, Exam, Sound, Scale };

/// A label, and the control that the value stands in.
struct Line {
    core::RecapLabel label;
    const char* name;
    When when = When::Always;
};
constexpr std::array lines{
    Line{labels::mode, "training_Combo"},
    Line{labels::examNumber, "prfnr_Comb", When::Exam},
    Line{labels::timbre, "ComboPatch", When::Sound},
    Line{labels::tempo, "temp_Combo", When::Sound},
    Line{labels::referencePitch, "frequenz", When::Sound},
    Line{labels::advance, "abfrage"},
    Line{labels::pitchRange, "CmbOktAnz"},
    Line{labels::keyboardRegister, "CmbOktBer"},
    Line{labels::scaleType, "skal_typ_cmb"},
    Line{labels::noteOrder, "abfolge"},
    Line{labels::direction, "Combo_richtung", When::Scale},
    Line{labels::display, "an_zeig", When::Sound},
    Line{labels::key, "final"},
    Line{labels::tuning, "stimm_g", When::Sound},
    Line{labels::scalesIncluded, "ska_ausw"},
};

bool inForce(When when, const core::Zustand& z, Zweig zweig) {
    switch (when) {
        case When::Always:
            return true;
        case When::Exam:
            return z.uebungsmodus == core::modus::pruefung;
        case When::Sound:
            return klingt(zweig);
        case When::Scale:
            return z.abfolge == 0;
    }
    return false;
}

std::string ohneBlanks(const std::string& text) {
    const auto erstes = text.find_first_not_of(' ');
    if (erstes == std::string::npos) return {};
    return text.substr(erstes, text.find_last_not_of(' ') - erstes + 1);
}

/// The reference pitch a' prints as a1.
std::string mitEins(std::string text) {
    const auto stelle = text.find('\'');
    if (stelle != std::string::npos) text[stelle] = '1';
    return text;
}

}  // namespace

std::vector<std::string> recap(const form::Form& form, const core::Zustand& z, Zweig zweig,
                               const std::vector<std::string>& skalen) {
    std::vector<std::string> liste{""};
    const auto add = [&](const core::RecapLabel& label, const std::string& wert,
                         const std::string& nummer = {}) {
        liste.push_back(std::string(label.german) + nummer);
        liste.push_back(ohneBlanks(wert));
    };
    for (const Line& line : lines) {
        if (!inForce(line.when, z, zweig)) continue;
        const std::string wert = chosenText(form, z, line.name);
        add(line.label, line.name == std::string_view("frequenz") ? mitEins(wert) : wert);
    }
    if (z.ska_ausw == 1) {
        add(labels::scaleCount, std::to_string(skalen.size()));
        const auto& gewaehlt = klingt(zweig) ? labels::scaleHeard : labels::scaleSilent;
        for (std::size_t i = 0; i < skalen.size(); ++i)
            add(gewaehlt, skalen[i], std::to_string(i + 1));
    }
    liste.front() = std::to_string(liste.size() - 1);
    return liste;
}

}  // namespace setup
