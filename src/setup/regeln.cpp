#include "setup/regeln.h"

#include "core/katalog.h"

namespace setup {

namespace {

constexpr std::array<Regel, core::katalog::kategorienAnz> regeln{{
    {.namen = true, .vorzeichen = true, .melodieStimmung = true},     // church modes
    {.namen = true, .vorzeichen = true, .melodieStimmung = true},     // their variants
    {.namen = true, .vorzeichen = false, .melodieStimmung = false},   // minor variants
    {.namen = true, .vorzeichen = false, .melodieStimmung = false},   // exotic scales
    {.namen = false, .vorzeichen = true, .melodieStimmung = false},   // pentatonics
    {.namen = true, .vorzeichen = false, .melodieStimmung = false},   // whole-tone, quartal, blues
    {.namen = false, .vorzeichen = false, .melodieStimmung = false},  // tetrachords
}};

}  // namespace

const Regel& regel(int skal_typ) { return regeln.at(static_cast<std::size_t>(skal_typ)); }

}  // namespace setup
