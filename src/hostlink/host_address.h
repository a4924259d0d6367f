#pragma once
#include <optional>
#include <string>

namespace hostlink {

/// Names under which the host offers its one operation.
inline constexpr char objectPath[] = "/Host";
inline constexpr char interfaceName[] = "org.melvora.Host1";
inline constexpr char methodName[] = "Request";

/// D-Bus address of the user's host: MELVORA_HOST_ADDRESS (an absolute path is taken for a socket),
/// else the socket `melvora/host` below XDG_RUNTIME_DIR, else below a folder of the temp folder
/// that bears the user's number.
std::string hostAddress();

/// Whether MELVORA_HOST_ADDRESS says where the host is.
bool addressIsNamed();

/// D-Bus address of a Unix socket.
std::string addressOf(const std::string& socketPath);

/// The socket of a `unix:path=` address; nothing for an address of another kind.
std::optional<std::string> socketPath(const std::string& address);

}  // namespace hostlink
