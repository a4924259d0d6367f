#pragma once
#include <cstddef>
#include <deque>
#include <map>
#include <string>

namespace soak {

/// What all episodes together have reached, what was done last, and what did not hold.
struct Tally {
    long actions = 0;
    std::map<std::string, long> forms;    ///< forms loaded, by name
    std::map<std::string, long> reached;  ///< what else came to pass

    std::deque<std::string> last;
    /// The first law that did not hold, "" while all do.
    std::string broken;

    void note(std::string doing) {
        constexpr std::size_t kept = 60;
        last.push_back(std::move(doing));
        if (last.size() > kept) last.pop_front();
    }
    void law(bool holds, const std::string& what) {
        if (!holds && broken.empty()) broken = what;
    }
};

}  // namespace soak
