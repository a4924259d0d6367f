#include "melvora/midi_ports.h"

#include <QFile>
#include <QRegularExpression>

#include <RtMidi.h>

#include <algorithm>

namespace melvora {

QStringList midiPorts() {
    QStringList ports;
    if (!QFile::exists("/dev/snd/seq")) return ports;
    try {
        RtMidiOut output(RtMidi::LINUX_ALSA, "Melvora");
        output.setErrorCallback([](RtMidiError::Type, const std::string&, void*) {});
        for (unsigned i = 0; i < output.getPortCount(); ++i)
            ports.append(QString::fromStdString(output.getPortName(i)));
    } catch (const RtMidiError&) {
        ports.clear();
    }
    return ports;
}

QString steadyName(const QString& port) {
    static const QRegularExpression numbers(R"(\s+\d+:\d+$)");
    return QString(port).remove(numbers);
}

int deviceNumber(const QString& name, const QStringList& ports) {
    const auto found = std::ranges::find(ports, name, steadyName);
    return found == ports.end() ? builtInSynthesiser : static_cast<int>(found - ports.begin());
}

}  // namespace melvora
