#include "core/host.h"

#include "base/rounding.h"
#include "base/runtime_error.h"
#include "core/zustand.h"
#include "form/forms.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace core {

namespace {

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

}  // namespace

std::string versionText() {
    int major = 0, minor = 0, revision = 0;
    std::sscanf(MELVORA_VERSION, "%d.%d.%d", &major, &minor, &revision);
    char text[40];
    std::snprintf(text, sizeof text, "%d.%d.%04d", major, minor, revision);
    return text;
}

bool Host::frage(const std::string& key, const Value& argument, Value& ergebnis) {
    if (!hostObjekt_) return false;
    try {
        return hostObjekt_->request(key, argument, ergebnis);
    } catch (const HostGone&) {
        return false;
    }
}

void Host::HostVerbinden(const std::optional<std::string>& modulName) {
    hostObjekt_ = factory_();
    Value antwort;
    if (!frage("APP", {}, antwort)) {
        dialogs_.message(form::Icon::Stop, "Melvora 2000", "Status 9");
        throw ProgrammEnde{9};
    }
    const std::string erwartet = upper(modulName.value_or(programm) + ".exe");
    if (erwartet != upper(antwort.at(1).text())) {
        dialogs_.message(form::Icon::Stop, "Achtung",
                         "Melvora muss zuerst gestartet werden!\n"
                         "beenden Sie Melvora nun über den Taskmanager");
        throw ProgrammEnde{1};
    }
    Value geraet;
    if (frage("MIDI", {}, geraet)) GeraetMerken(geraet.text());
    HostMeldung(versionText() + " " + programm);
}

/// A number beyond 16 bits counts as no answer.
void Host::GeraetMerken(const std::string& nummer) {
    try {
        midiGeraet_ = base::i16(base::leadingInt(nummer));
    } catch (const base::RuntimeError&) {
        midiGeraet_ = keinGeraet;
    }
}

void Host::HostUebergabe(form::Forms& forms, const std::string& key) {
    forms.unloadAll();
    Value ergebnis;
    frage(key, "", ergebnis);
    hostObjekt_.reset();
}

std::optional<Host::Verlust> Host::store(const std::string& key, const Value& wert) {
    if (!hostObjekt_) return Verlust{.hostFort = true};
    try {
        Value ergebnis;
        if (hostObjekt_->request("STORE", Value::Array{programm, key, wert}, ergebnis)) return {};
        return Verlust{.grund = ergebnis.text()};
    } catch (const HostGone&) {
        return Verlust{.hostFort = true};
    }
}

bool Host::HostSichern(const std::string& key, const Value& wert) {
    const auto lost = store(key, wert);
    if (lost && verlust) verlust(*lost);
    return !lost;
}

void Host::HostMerken(const std::string& key, const Value& wert) {
    auto lost = store(key, wert);
    if (!lost || !lost->hostFort || !verlust) return;
    lost->training = false;
    verlust(*lost);
}

Value Host::HostBenutzer() {
    Value benutzer = Value::Array{"unbekannt"};
    frage("LOGIN", "", benutzer);
    return benutzer;
}

std::string Host::HostSprache() {
    Value sprache = "Deutsch";
    frage("LANG", "", sprache);
    return sprache.text();
}

void Host::HostMeldung(const std::string& text) {
    Value ergebnis;
    frage("LOGMESS", text, ergebnis);
}

void Host::HostFehler(const std::string& text, const std::exception& fehler) {
    const auto* laufzeit = dynamic_cast<const base::RuntimeError*>(&fehler);
    const Value meldung = Value::Array{programm + ("." + text), laufzeit ? laufzeit->number() : 0,
                                       fehler.what(), laufzeit ? laufzeit->source() : programm};
    Value ergebnis;
    if (frage("LOGERR", meldung, ergebnis))
        dialogs_.message(form::Icon::Exclamation, "Warnung",
                         "Es ist ein Fehler aufgetreten!\n"
                         "Weitere Informationen befinden sich im LogFile");
}

std::optional<Value> Host::HostLesen(const std::string& key) {
    Value satz;
    if (!frage("READ", Value::Array{programm, key}, satz)) return {};
    if (satz.items().size() < 2 || satz.at(1) == Value("NIL")) return {};
    return satz;
}

bool Host::LeseAbbruch(const std::string& key) {
    auto satz = HostLesen(key);
    if (satz) zustand_.gelesen_a = std::move(*satz);
    return satz.has_value();
}

bool Host::LeseEinstellung(const std::string& key) {
    auto satz = HostLesen(key);
    if (satz) zustand_.gelesen_e = std::move(*satz);
    return satz.has_value();
}

}  // namespace core
