#include "ports/midi_ports.h"

#include <RtMidi.h>
#include <unistd.h>

#include <memory>

namespace ports {

namespace {

/// Without this device file the sequencer's library writes complaints to the terminal.
bool hasSequencer() { return access("/dev/snd/seq", R_OK | W_OK) == 0; }

/// A client of the kernel's sequencer; null when it refuses. What goes wrong later it tells to a
/// handler that does nothing, and neither prints nor throws.
std::shared_ptr<RtMidiOut> makeClient() {
    if (!hasSequencer()) return nullptr;
    try {
        auto client = std::make_shared<RtMidiOut>(RtMidi::LINUX_ALSA, "Melvora");
        client->setErrorCallback([](RtMidiError::Type, const std::string&, void*) {}, nullptr);
        return client;
    } catch (const RtMidiError&) {
        return nullptr;
    }
}

bool isLoopBack(const std::string& name) { return name.starts_with("Midi Through"); }

}  // namespace

std::vector<std::string> portNames() {
    std::vector<std::string> names;
    const auto client = makeClient();
    if (!client) return names;
    for (unsigned i = 0; i < client->getPortCount(); ++i) {
        const std::string name = client->getPortName(i);
        if (!name.empty() && !isLoopBack(name)) names.push_back(name);
    }
    return names;
}

SendBytes openPort(const std::string& name) {
    const auto client = makeClient();
    if (!client) return nullptr;
    for (unsigned i = 0; i < client->getPortCount(); ++i) {
        if (client->getPortName(i) != name) continue;
        client->openPort(i, "drill");
        if (!client->isPortOpen()) return nullptr;
        return
            [client](const std::vector<unsigned char>& message) { client->sendMessage(&message); };
    }
    return nullptr;
}

}  // namespace ports
