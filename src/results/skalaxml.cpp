#include "results/skalaxml.h"

#include "base/rounding.h"
#include "base/runtime_error.h"
#include "base/whole_file.h"
#include "core/wort.h"

#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace results {

namespace {

/// XML has no place for most control characters, not even by their numbers, as they are written
/// here: U+FFFD stands for each. Tabs and line ends may be.
std::string ohneSteuerzeichen(std::string xml) {
    constexpr std::string_view verweis = "&#", ersatz = "\uFFFD";
    for (auto i = xml.find(verweis); i != std::string::npos; i = xml.find(verweis, i + 1)) {
        const auto ende = xml.find(';', i);
        const int zeichen = std::stoi(xml.substr(i + verweis.size(), ende - i));
        if (zeichen != '\t' && zeichen != '\n' && zeichen != '\r')
            xml.replace(i, ende - i + 1, ersatz);
    }
    return xml;
}

}  // namespace

void Skalaxml::SkalaXmlNeu() {
    dokument_.reset();
    auto erklaerung = dokument_.append_child(pugi::node_declaration);
    erklaerung.append_attribute("version") = "1.0";
    erklaerung.append_attribute("encoding") = "UTF-8";
    auto wurzel = dokument_.append_child("exercise");
    const std::string& ordner = p.aufruf.tempOrdner;
    datei_ = (ordner.empty() ? "" : ordner + "/") + "RSX" + p.ports.loop.now().stamp() + ".xml";
    auto eigenschaften = wurzel.append_child("properties");
    eigenschaften.append_attribute("programm") = "ZEPHA9";
    eigenschaften.append_attribute("ukey") = p.host.HostBenutzer().at(0).text().c_str();
    wurzel.append_child("settings");
    lektionen_ = wurzel.append_child("lessons");
    lektion_ = {};
}

void Skalaxml::LektionNeu(const std::string& tonskala) {
    lektion_ = lektionen_.append_child("lesson");
    AntwortEigenschaft(lektion_.append_child("properties"), "Tonskala", tonskala);
    lektion_.append_child("answers");
}

pugi::xml_node Skalaxml::AntwortNeu(pugi::xml_node lektion, i16 lfd) {
    auto antwort = lektion.child("answers").append_child("answer");
    antwort.append_attribute("lfd") = int(lfd);
    return antwort;
}

pugi::xml_node Skalaxml::AntwortSchluss(float dauer, int whlg) {
    const auto node = antwort();
    AntwortEigenschaft(node, "Dauer Antwort", base::decimal(dauer));
    AntwortEigenschaft(node, "Anz Whlg", std::to_string(whlg));
    return node;
}

void Skalaxml::AntwortEigenschaft(pugi::xml_node node, const char* key, const std::string& value) {
    auto property = node.append_child("property");
    property.append_attribute("key") = key;
    property.append_attribute("value") = value.c_str();
}

void Skalaxml::EinstellungenSchreiben(const std::vector<std::string>& liste) {
    auto settings = dokument_.child("exercise").child("settings");
    for (std::size_t i = 1; i + 1 < liste.size(); i += 2) {
        auto setting = settings.append_child("setting");
        setting.append_attribute("key") = liste[i].c_str();
        setting.append_attribute("value") = liste[i + 1].c_str();
    }
}

void Skalaxml::SkalaXmlSichern(const std::vector<std::string>& liste) {
    auto eigenschaften = dokument_.child("exercise").child("properties");
    eigenschaften.append_attribute("exercise") = p.uebungsart().c_str();
    eigenschaften.append_attribute("timestamp") = p.ports.loop.now().dateAndTime().c_str();
    eigenschaften.append_attribute("description") =
        ("Untersuchung: " + p.katalog.typ_name[p.zustand.ueb_typ]).c_str();
    EinstellungenSchreiben(liste);

    try {
        base::writeWhole(datei_, text());
    } catch (const std::system_error& fehler) {
        throw base::RuntimeError(base::ErrorNumber::PathAccess,
                                 core::eingesetzt(p.Wort(core::wort::recordNotWritten), datei_) +
                                     " (" + fehler.code().message() + ")");
    }
}

std::string Skalaxml::text() const {
    std::ostringstream strom;
    dokument_.save(strom, "\t", pugi::format_default, pugi::encoding_utf8);
    return ohneSteuerzeichen(std::move(strom).str());
}

}  // namespace results
