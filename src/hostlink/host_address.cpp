#include "hostlink/host_address.h"

#include "base/environment.h"

#include <QByteArray>

#include <unistd.h>

#include <filesystem>

namespace hostlink {

namespace {

constexpr std::string_view prefix = "unix:path=";

std::string temporaryFolder() {
    std::error_code failed;
    const auto folder = std::filesystem::temp_directory_path(failed);
    return failed ? "/tmp" : folder.string();
}

}  // namespace

bool addressIsNamed() { return !base::environment("MELVORA_HOST_ADDRESS").empty(); }

std::string hostAddress() {
    const std::string given = base::environment("MELVORA_HOST_ADDRESS");
    if (!given.empty()) return given.front() == '/' ? addressOf(given) : given;
    const std::string runtime = base::environment("XDG_RUNTIME_DIR");
    if (!runtime.empty()) return addressOf(runtime + "/melvora/host");
    return addressOf(temporaryFolder() + "/melvora-" + std::to_string(getuid()) + "/host");
}

std::string addressOf(const std::string& path) {
    return std::string(prefix) +
           QByteArray::fromStdString(path).toPercentEncoding("/", "~").toStdString();
}

std::optional<std::string> socketPath(const std::string& address) {
    if (!address.starts_with(prefix)) return {};
    const std::string rest = address.substr(prefix.size());
    const std::string path = rest.substr(0, rest.find_first_of(",;"));
    return QByteArray::fromPercentEncoding(QByteArray::fromStdString(path)).toStdString();
}

}  // namespace hostlink
