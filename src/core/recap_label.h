#pragma once
#include "core/wort.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace core {

/// A label of the recap of the settings: as state and record hold it in every language, and the
/// word that shows it.
struct RecapLabel {
    std::string_view german;
    wort::Id shown;
    bool numbered = false;  ///< a running number stands behind it, and in the word's "%1"
};

namespace recap {

inline constexpr RecapLabel mode{"Übungsmodus", wort::exerciseMode};
inline constexpr RecapLabel examNumber{"Nr.:", wort::recapExamNumber};
inline constexpr RecapLabel timbre{"Klangfarbe", wort::timbre};
inline constexpr RecapLabel tempo{"Tempo", wort::tempo};
inline constexpr RecapLabel referencePitch{"Frequenz", wort::referencePitch};
inline constexpr RecapLabel advance{"Abfolge", wort::advance};
inline constexpr RecapLabel pitchRange{"Tonraum", wort::pitchRange};
inline constexpr RecapLabel keyboardRegister{"Oktavbereich", wort::recapRegister};
inline constexpr RecapLabel scaleType{"Skalentyp", wort::scaleType};
inline constexpr RecapLabel noteOrder{"Tonfolge", wort::noteOrder};
inline constexpr RecapLabel direction{"Ska-Richtung", wort::recapDirection};
inline constexpr RecapLabel display{"Anzeige", wort::display};
inline constexpr RecapLabel key{"Vz/Finalis", wort::recapKey};
inline constexpr RecapLabel tuning{"Stimmung", wort::tuning};
inline constexpr RecapLabel scalesIncluded{"Vorkommen", wort::scalesIncluded};
inline constexpr RecapLabel scaleCount{"Einzel-Auswahl Anzahl", wort::recapScaleCount};
inline constexpr RecapLabel scaleHeard{"gewähltes Iv Nr.", wort::recapScaleHeard, true};
inline constexpr RecapLabel scaleSilent{"gewählte Skala Nr.", wort::recapScaleSilent, true};

inline constexpr std::array all{
    mode,       examNumber,       timbre,         tempo,      referencePitch, advance,
    pitchRange, keyboardRegister, scaleType,      noteOrder,  direction,      display,
    key,        tuning,           scalesIncluded, scaleCount, scaleHeard,     scaleSilent,
};

}  // namespace recap

/// A label as it is read in the language in force; one that no recap has stays as it is.
/// @param label from a recap, perhaps with its number. @param wordOf the word in that language.
std::string recapLabel(std::string_view label, const std::function<std::string(wort::Id)>& wordOf);

}  // namespace core
