#include "engine/xml_protokoll.h"

#include <string>

namespace engine {

void XmlProtokoll::aufgabe(const Aufgabe& a) {
    xml_.LektionNeu(katalog_.skal_name[z.skal_typ][a.skala_nr]);
}

void XmlProtokoll::antwort(const Aufgabe& a, const Antwort& antwort) {
    if (!xml_.antwort()) xml_.AntwortNeu(xml_.lektion(), a.verlauf.antwort_nr);
    const auto node = xml_.AntwortSchluss(antwort.dauer, antwort.whlg_anz);
    xml_.AntwortEigenschaft(node, "Antwort", antwort.richtig ? "true" : "false");
    if (!uebung_.schriftlich()) {
        xml_.AntwortEigenschaft(node, "Skala", katalog_.skal_name[z.skal_typ][antwort.index]);
    } else if (!antwort.richtig) {
        const i16 code = a.verlauf.FalschSkala[a.verlauf.fehler + 1];
        xml_.AntwortEigenschaft(node, "FalschSkala", std::to_string(code));
    }
}

void XmlProtokoll::weitererVersuch(i16 nr) {
    auto node = xml_.AntwortNeu(xml_.lektion(), nr);
    if (uebung_.schriftlich())
        xml_.AntwortEigenschaft(node, "Skala", "1");
    else
        node.append_attribute("Skala") = "1";
}

}  // namespace engine
