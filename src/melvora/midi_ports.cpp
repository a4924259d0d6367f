#include "melvora/midi_ports.h"

#include "ports/midi_ports.h"

#include <QRegularExpression>

#include <algorithm>

namespace melvora {

QStringList midiPorts() {
    QStringList names;
    for (const std::string& name : ports::portNames()) names.append(QString::fromStdString(name));
    return names;
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
