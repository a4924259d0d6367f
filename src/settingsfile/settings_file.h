#pragma once
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// What both programs know of a file of settings, *.mvs.
namespace settingsfile {

/// Most bytes. One with every group marked has less than 4 KB.
constexpr std::size_t largest = 1 << 19;

/// Hears the name of each element, without the prefix of its namespace, in document order.
using OnElement = std::function<void(std::string_view name)>;

/// Where these bytes fail to be one whole XML document: well-formed to the letter, in an encoding
/// that its declaration names (UTF-8, UTF-16, ISO 8859-1, US-ASCII), without entities of its own,
/// and nested no deeper than 100 elements. Fewer than 2 GB.
/// @return the line, from 1; nothing when they are one
std::optional<int> faultyLine(std::string_view bytes, const OnElement& onElement = {});

enum class Trouble { None, Missing, NoPlainFile, TooBig, Unreadable, NotWellFormed, NoSettings };

struct Finding {
    Trouble trouble = Trouble::None;
    int line = 0;            ///< of what is not well-formed
    std::string cause = {};  ///< the system's, of what is unreadable
};

/// Looks at a file without waiting for a pipe. It holds settings when it names a control, or what
/// exercise it is for.
Finding look(const std::string& path);

}  // namespace settingsfile
