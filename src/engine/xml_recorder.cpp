#include "engine/xml_recorder.h"

#include <string>

namespace engine {

void XmlRecorder::task(const Task& a) {
    xml_.LektionNeu(katalog_.keptName(z.skal_typ, a.skala_nr));
}

void XmlRecorder::answer(const Task& a, const Answer& answer) {
    if (!xml_.antwort()) xml_.AntwortNeu(xml_.lektion(), a.attempt.antwort_nr);
    const auto node = xml_.AntwortSchluss(answer.dauer, answer.whlg_anz);
    xml_.AntwortEigenschaft(node, "Antwort", answer.right ? "true" : "false");
    if (!exercise_.isWritten()) {
        xml_.AntwortEigenschaft(node, "Skala", katalog_.keptName(z.skal_typ, answer.index));
    } else if (!answer.right) {
        const i16 code = a.attempt.FalschSkala[a.attempt.wrongAnswers + 1];
        xml_.AntwortEigenschaft(node, "FalschSkala", std::to_string(code));
    }
}

void XmlRecorder::anotherTry(i16 nr) {
    auto node = xml_.AntwortNeu(xml_.lektion(), nr);
    if (exercise_.isWritten())
        xml_.AntwortEigenschaft(node, "Skala", "1");
    else
        node.append_attribute("Skala") = "1";
}

}  // namespace engine
