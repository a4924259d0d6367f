#pragma once
#include "core/katalog.h"
#include "core/wort.h"
#include "core/zustand.h"
#include "form/controls.h"

#include <vector>

namespace setup {

using base::i16;

/// Where the direction of the scales comes from.
struct Richtungen {
    i16 abfolge;   ///< 1: a melody, which has none
    i16 richtung;  ///< 0 ascending, 1 descending, 2 both

    /// Items of both directions stand in the lists.
    bool beide() const { return abfolge == 0 && richtung == 2; }
};

/// Most scales that a run can be restricted to.
inline constexpr int wahlPlaetze = decltype(core::Zustand::einzel_wahl)::size();

/// The scales of a category as list items, in catalogue order, each ascending before descending;
/// an item's data is the signed scale code.
std::vector<form::ItemList::Item> skalenZurWahl(const core::Katalog& katalog, int skal_typ,
                                                Richtungen richtungen);

/// Where a scale code belongs in a list that is sorted by catalogue order, ascending items above
/// descending ones.
int sortierteStelle(const std::vector<form::ItemList::Item>& liste, int code);

/// Whether the chosen scales are enough for an exercise.
enum class Urteil { Genug, ZuWenig, Ungleich };
/// @param final 1 asks for one scale more (per direction), since the first tone tells nothing then.
Urteil auswahlBeurteilen(const std::vector<form::ItemList::Item>& gewaehlt, int final,
                         Richtungen richtungen);

/// The word that tells what the choice lacks.
/// @param flag not 0: the directions must be equal in number.
core::wort::Id hinweisWort(int final, Richtungen richtungen, int flag);

}  // namespace setup
