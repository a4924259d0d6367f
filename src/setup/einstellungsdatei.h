#pragma once
#include "base/i16.h"
#include "form/form.h"

#include <map>
#include <string>
#include <vector>

namespace setup {

using base::i16;

/// Marks a group of the set-up form, as its tag: its choices go into a settings file.
inline constexpr const char* pruefungsMarke = "Prüfung";

/// What a settings file says. A file that cannot be read says nothing.
struct Einstellungssatz {
    struct Eintrag {
        std::string cname;
        i16 index;
        bool hasIndex = false;
        std::vector<std::string> values;
    };
    std::map<std::string, std::string> kopf;  ///< "modul", "type", "description"
    std::vector<Eintrag> eintraege;           ///< in file order

    bool leer() const { return kopf.empty() && eintraege.empty(); }
};

/// The file's text, in ISO 8859-1 with CR LF: the header, and the marked choices of a form in an
/// order of their own. A character that the encoding lacks becomes "?"; nothing is escaped.
std::string EinstellungenText(const form::Form& form, int ueb_typ, const std::string& beschreibung);

/// Writes the file as a whole. @throws std::system_error, and what was there stays.
void EinstellungenSchreiben(const std::string& pfad, const std::string& text);

/// Never throws: what is not well-formed, no settings file, or bigger than 512 KB reads as an empty
/// one. Attributes and unknown elements are passed over.
Einstellungssatz EinstellungenLesen(const std::string& pfad);
Einstellungssatz EinstellungenLesenAus(const std::string& bytes);

/// The exercise type that a settings file is for; naming when it does not say.
int uebungstyp(const std::string& pfad);

/// Chooses what the entries say, also of what is disabled or hidden now, and locks what holds each
/// control. The first entry that the form has not ends it, and what was applied stays.
void EinstellungenAnwenden(form::Form& form, const Einstellungssatz& satz);

}  // namespace setup
