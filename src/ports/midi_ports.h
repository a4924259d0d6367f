#pragma once
#include <functional>
#include <string>
#include <vector>

namespace ports {

/// Sends one whole MIDI message to a port. Never throws: what a port that was unplugged is sent is
/// lost.
using SendBytes = std::function<void(const std::vector<unsigned char>& message)>;

/// Names of the ports that can play, in the system's order. Empty when the system has no
/// sequencer. The loop-back port of the kernel is left out: nothing is heard of it.
std::vector<std::string> portNames();

/// Connects to the port with that name; null when it is not there any more.
SendBytes openPort(const std::string& name);

}  // namespace ports
