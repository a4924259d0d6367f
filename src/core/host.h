#pragma once
#include "core/host_port.h"
#include "form/ports.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace form {
class Forms;
}

namespace core {

struct Zustand;

/// Ends the program at once; thrown only before its first form is shown.
struct ProgrammEnde {
    int status;
};

/// The module's link to the suite's host: everything that it asks and tells.
class Host {
  public:
    /// Makes the host object; nullptr when there is no host.
    using Factory = std::function<std::unique_ptr<HostPort>()>;
    static constexpr const char* programm = "zepha9";
    static constexpr int keinGeraet = -9;

    Host(Factory factory, form::Dialogs& dialogs, Zustand& zustand)
        : factory_(std::move(factory)), dialogs_(dialogs), zustand_(zustand) {}

    /// Opens the link. @throws ProgrammEnde when there is no host or it did not start this module.
    void HostVerbinden(const std::optional<std::string>& modulName = {});
    /// Unloads all forms, last first, and hands over to the host.
    void HostUebergabe(form::Forms& forms, const std::string& key);
    /// Stores a record; when that fails `verlust` is raised. @return whether it is stored.
    bool HostSichern(const std::string& key, const Value& wert);
    /// The same for what is no harm to lose: only that the host is gone raises `verlust`.
    void HostMerken(const std::string& key, const Value& wert);
    /// Element 0 the user key or "unbekannt", then the user's data.
    Value HostBenutzer();
    std::string HostSprache();
    void HostMeldung(const std::string& text);
    /// Logs a fault, and warns the user when the host says so.
    void HostFehler(const std::string& text, const std::exception& fehler);
    /// Reads a record into `gelesen_a`. @return false, and nothing changed, when there is none.
    bool LeseAbbruch(const std::string& key);
    /// Reads a record into `gelesen_e`, likewise.
    bool LeseEinstellung(const std::string& key);
    /// A record, nothing when there is none.
    std::optional<Value> HostLesen(const std::string& key);

    /// MIDI device number given by the host, `keinGeraet` when it gave none.
    int midiGeraet() const { return midiGeraet_; }

    /// A record that was not stored.
    struct Verlust {
        bool training = true;    ///< it was one of a saved training
        bool hostFort = false;   ///< the host is gone; else it refused
        std::string grund = {};  ///< why it refused, "" when it does not say
    };
    std::function<void(const Verlust&)> verlust;

  private:
    /// @return what became of a record that was not stored, nothing when it was.
    std::optional<Verlust> store(const std::string& key, const Value& wert);
    void GeraetMerken(const std::string& nummer);
    /// A request whose failure as a call counts as the answer false.
    bool frage(const std::string& key, const Value& argument, Value& ergebnis);

    Factory factory_;
    form::Dialogs& dialogs_;
    Zustand& zustand_;
    std::unique_ptr<HostPort> hostObjekt_;
    int midiGeraet_ = keinGeraet;
};

/// "1.0.0000": major and minor version and the revision in four digits.
std::string versionText();

}  // namespace core
