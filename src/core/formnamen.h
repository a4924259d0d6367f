#pragma once

namespace core {

/// The set-up form of a branch, in `Forms`. @param theoriewahl 0 ear training, 1 music theory.
constexpr const char* setUpForm(int theoriewahl) {
    return theoriewahl == 0 ? "einstellung1" : "einstellung1b";
}

}  // namespace core
