#pragma once
#include "core/zustand.h"

#include <array>

namespace engine {

/// Which keys the tasks of an exercise come in.
enum class Tonality {
    Sounding,  ///< any transposition: the scale is only heard
    Read,      ///< of the circle of fifths, none to seven signs
    Written    ///< of the circle of fifths, one to six signs; in tests and exams those of the bag
};

/// An exercise and the worksheet that it is done on.
struct Exercise {
    const char* worksheet;  ///< name of the worksheet
    const char* title;      ///< its caption until a run begins
    int theoriewahl;        ///< branch: 0 ear training, 1 music theory
    int ueb_typ;            ///< 1 determine, 4 write
    int zeit_faktor;        ///< free answer time, tenths of a second; written: for each accidental
    Tonality tonality;

    constexpr bool sounds() const { return theoriewahl == 0; }
    constexpr bool isWritten() const { return ueb_typ == core::uebung::schreiben; }
};

inline constexpr std::array exercises{
    Exercise{"arbeitsblatt1", "Skalen bestimmen", 0, core::uebung::bestimmen, 20,
             Tonality::Sounding},
    Exercise{"arbeitsblatt1b", "Skalen bestimmen", 1, core::uebung::bestimmen, 35, Tonality::Read},
    Exercise{"arbeitsblatt4", "Skalen schreiben", 0, core::uebung::schreiben, 35,
             Tonality::Written},
    Exercise{"arbeitsblatt4b", "Skalen bestimmen", 1, core::uebung::schreiben, 35,
             Tonality::Written},
};

}  // namespace engine
