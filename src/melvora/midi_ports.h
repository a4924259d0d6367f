#pragma once
#include <QString>
#include <QStringList>

namespace melvora {

/// Number of the built-in synthesiser among the MIDI devices.
inline constexpr int builtInSynthesiser = -1;

/// Names of the MIDI output ports in the order of their device numbers, from 0. Empty on a computer
/// without a MIDI sequencer.
QStringList midiPorts();

/// A port's name without the numbers at its end, which change from one start of the system to the
/// next.
QString steadyName(const QString& port);

/// Device number of the port with that steady name, the first of several; builtInSynthesiser when
/// there is none.
int deviceNumber(const QString& name, const QStringList& ports);

}  // namespace melvora
