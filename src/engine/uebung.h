#pragma once
#include "core/zustand.h"

#include <array>

namespace engine {

/// Which keys the tasks of an exercise come in.
enum class Tonart {
    Klingend,    ///< any transposition: the scale is only heard
    Gelesen,     ///< of the circle of fifths, none to seven signs
    Geschrieben  ///< of the circle of fifths, one to six signs; in tests and exams those of the bag
};

/// An exercise and the worksheet that it is done on.
struct Uebung {
    const char* blatt;  ///< name of the worksheet
    const char* titel;  ///< its caption until a run begins
    int theoriewahl;    ///< branch: 0 ear training, 1 music theory
    int ueb_typ;        ///< 1 determine, 4 write
    int zeit_faktor;    ///< free answer time, tenths of a second; written: for each accidental
    Tonart tonart;

    constexpr bool klingt() const { return theoriewahl == 0; }
    constexpr bool schriftlich() const { return ueb_typ == core::uebung::schreiben; }
};

inline constexpr std::array uebungen{
    Uebung{"arbeitsblatt1", "Skalen bestimmen", 0, core::uebung::bestimmen, 20, Tonart::Klingend},
    Uebung{"arbeitsblatt1b", "Skalen bestimmen", 1, core::uebung::bestimmen, 35, Tonart::Gelesen},
    Uebung{"arbeitsblatt4", "Skalen schreiben", 0, core::uebung::schreiben, 35,
           Tonart::Geschrieben},
    Uebung{"arbeitsblatt4b", "Skalen bestimmen", 1, core::uebung::schreiben, 35,
           Tonart::Geschrieben},
};

}  // namespace engine
