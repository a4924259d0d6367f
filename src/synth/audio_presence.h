#pragma once
#include <string>
#include <vector>

namespace synth {

/// Where the PulseAudio server of this user listens: the file name of its socket, "tcp" for a
/// server over the network, empty when nothing tells of one.
/// @param server value of PULSE_SERVER, may be empty. @param runtimeDir value of XDG_RUNTIME_DIR.
std::string pulseAddress(const std::string& server, const std::string& runtimeDir);

/// Whether a process accepts connections on the Unix socket. A socket left by a dead one does not.
bool listens(const std::string& socketFile);

/// Drivers worth opening on this machine, best first. Asking a driver itself can hang when its
/// server is not there, so only files and sockets are looked at.
std::vector<std::string> presentDrivers();

}  // namespace synth
