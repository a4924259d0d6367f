#pragma once
#include "core/value.h"

#include <limits>
#include <string>
#include <vector>

namespace hostlink {

struct Sample {
    std::string name;
    core::Value value;
};

inline core::Value nested(int levels) {
    core::Value value("innermost");
    for (int i = 0; i < levels; ++i) value = core::Value::Array{value, i};
    return value;
}

inline std::vector<Sample> sampleValues() {
    using core::Value;
    return {
        {"nothing", Value()},
        {"largest number", std::numeric_limits<std::int64_t>::max()},
        {"smallest number", std::numeric_limits<std::int64_t>::min()},
        {"fraction", 0.1},
        {"whole number as a fraction", 3.0},
        {"empty text", ""},
        {"text beyond ASCII", "Übung — ß 音階 𝄞"},
        {"text with line feeds", "a\nb\tc\"'<&>\\"},
        {"array in array", Value::Array{1, Value::Array{"x", Value::Array{}, Value()}, false}},
        {"deep array", nested(24)},
        {"long array", Value::Array(100'000, Value("True"))},
        {"long text", std::string(8 << 20, 'x')},
    };
}

}  // namespace hostlink
