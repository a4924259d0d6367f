#pragma once
#include <fstream>
#include <functional>
#include <map>
#include <string>

namespace soak {

/// With `--seeds FOLDER` a fuzzer writes the inputs that its programs would make themselves, by
/// file name, and ends.
inline void onSeeds(int argc, char** argv,
                    const std::function<std::map<std::string, std::string>()>& honest) {
    if (argc != 3 || std::string(argv[1]) != "--seeds") return;
    for (const auto& [name, bytes] : honest())
        std::ofstream(std::string(argv[2]) + "/" + name, std::ios::binary) << bytes;
    std::exit(0);
}

}  // namespace soak
