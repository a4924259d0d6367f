#include "setup/einstellungsdatei.h"

#include "base/rounding.h"
#include "base/whole_file.h"
#include "core/zustand.h"
#include "form/controls.h"
#include "settingsfile/settings_file.h"
#include "setup/groups.h"

#include <pugixml.hpp>

#include <array>
#include <exception>
#include <string_view>
#include <utility>

namespace setup {

namespace {

constexpr const char* modul = "VESHNA";

/// A choice that a file can hold: its control, or the options of this name.
struct FileChoice {
    const char* name;
    const char* titel;
    int index = -1;  ///< that of a list

    bool means(const form::Control& control) const {
        return control.name() == name && (index < 0 || control.index() == index);
    }
};
/// In the order of the file.
constexpr std::array fileChoices{
    FileChoice{"lst_ska", "Skalen ausgewählt", 1},
    FileChoice{"lst_ska", "Skalen auswählen", 0},
    FileChoice{"Combo_mt", "Combo_mt#var"},
    FileChoice{"stimm_g", "Stimmung"},
    FileChoice{"skal_typ_cmb", "Skalentyp#var"},
    FileChoice{"temp_Combo", "Tempo#var"},
    FileChoice{"an_zeig", "Anzeige"},
    FileChoice{"ska_ausw", "Vorkommen"},
    FileChoice{"final", "Vorzeichen/Finalis"},
    FileChoice{"abfrage", "Abfolge"},
    FileChoice{"Combo_richtung", "Richtung#var"},
    FileChoice{"abfolge", "Tonfolge"},
    FileChoice{"frequenz", "Frequenz"},
    FileChoice{"CmbOktAnz", "Tonraum#var"},
    FileChoice{"CmbOktBer", "Oktav-Bereich#var"},
};

/// UTF-8 to ISO 8859-1.
std::string latin1(std::string_view utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        if (c < 0x80) {
            bytes += static_cast<char>(c);
        } else if ((c & 0xFC) == 0xC0 && i + 1 < utf8.size()) {
            bytes += static_cast<char>(((c & 0x03) << 6) | (utf8[++i] & 0x3F));
        } else {
            bytes += '?';
            while (i + 1 < utf8.size() && (utf8[i + 1] & 0xC0) == 0x80) ++i;
        }
    }
    return bytes;
}

/// Builds the file line by line.
class Schreiber {
  public:
    void zeile(const std::string& text) { text_ += text + "\r\n"; }
    void element(int einzug, const std::string& name, const std::string& inhalt) {
        zeile(std::string(static_cast<std::size_t>(einzug), ' ') + "<" + name + ">" + inhalt +
              "</" + name.substr(0, name.find(' ')) + ">");
    }
    void wert(const std::string& text, const std::string& inhalt) {
        element(6, "value text=\"" + text + "\"", inhalt);
    }
    const std::string& text() const { return text_; }

  private:
    std::string text_;
};

bool markiert(const form::Control& control) {
    const form::Control* halter = control.container();
    for (int ebene = 0; halter && ebene < 2; ++ebene, halter = halter->container())
        if (halter->tag == pruefungsMarke) return true;
    return false;
}

void werte(Schreiber& s, const form::Control& control) {
    if (control.kind() == form::Kind::Option) s.wert(control.caption(), "True");
    if (control.kind() == form::Kind::Combo) {
        const auto& combo = static_cast<const form::Combo&>(control);
        s.wert(combo.text(), std::to_string(combo.listIndex()));
    }
    if (control.kind() == form::Kind::ListBox)
        for (const auto& item : static_cast<const form::ListBox&>(control).items())
            s.wert(item.text, item.text);
}

/// Of options only the one that is chosen is written.
bool gilt(const form::Control& control) {
    return control.kind() != form::Kind::Option ||
           static_cast<const form::Option&>(control).value();
}

void block(Schreiber& s, const std::string& titel, const form::Control& control) {
    s.zeile("    <control title=\"" + titel + "\">");
    s.element(6, "cname", control.name());
    if (control.inArray()) s.element(6, "index", std::to_string(control.index()));
    werte(s, control);
    s.zeile("    </control>");
}

std::string_view grundname(const pugi::xml_node& node) {
    const std::string_view name = node.name();
    const auto doppelpunkt = name.find(':');
    return doppelpunkt == std::string_view::npos ? name : name.substr(doppelpunkt + 1);
}

/// Calls `f` for every node below, in document order; a deep document needs no deep stack.
template <class F>
void jederKnoten(pugi::xml_node wurzel, F f) {
    struct Gang final : pugi::xml_tree_walker {
        explicit Gang(F& ruf) : ruf_(ruf) {}
        bool for_each(pugi::xml_node& node) override {
            ruf_(node);
            return true;
        }
        F& ruf_;
    } gang(f);
    wurzel.traverse(gang);
}

std::string inhalt(pugi::xml_node node) {
    std::string text;
    jederKnoten(node, [&](pugi::xml_node& k) { text += k.value(); });
    return text;
}

Einstellungssatz::Eintrag eintragVon(pugi::xml_node control) {
    Einstellungssatz::Eintrag eintrag;
    for (const pugi::xml_node kind : control) {
        const auto name = grundname(kind);
        if (name == "cname") eintrag.cname = inhalt(kind);
        if (name == "index") {
            eintrag.index = base::parseInt(inhalt(kind));
            eintrag.hasIndex = true;
        }
        if (name == "value") eintrag.values.push_back(inhalt(kind));
    }
    return eintrag;
}

/// @throws run-time errors 5, 9 and 13 for what the form does not offer.
void anwenden(form::Form& form, const Einstellungssatz::Eintrag& eintrag) {
    form::Control* control =
        form.find(eintrag.cname, eintrag.hasIndex ? int(eintrag.index) : form::Place::noIndex);
    if (!control || !control->container()) base::throwSubscript();
    const auto erster = [&]() -> const std::string& {
        if (eintrag.values.empty()) base::throwSubscript();
        return eintrag.values.front();
    };
    switch (control->kind()) {
        case form::Kind::Option:
            if (erster() != "True") base::throwTypeMismatch(erster());
            static_cast<form::Option*>(control)->choose();
            break;
        case form::Kind::Combo: {
            auto& combo = *static_cast<form::Combo*>(control);
            const int stelle = base::parseInt(erster());
            if (stelle < combo.count()) combo.setListIndex(stelle);
            break;
        }
        case form::Kind::ListBox: {
            auto& liste = *static_cast<form::ListBox*>(control);
            auto items = liste.items();
            for (const std::string& text : eintrag.values) items.push_back({text, 0});
            liste.setItems(std::move(items));
            break;
        }
        default:
            break;
    }
    sperren(*control->container());
}

}  // namespace

std::string EinstellungenText(const form::Form& form, int ueb_typ,
                              const std::string& beschreibung) {
    Schreiber s;
    s.zeile(R"(<?xml version="1.0" encoding="ISO-8859-1" ?>)");
    s.zeile("<test>");
    s.zeile("  <basic>");
    s.element(4, "modul", modul);
    s.element(4, "type", std::to_string(ueb_typ));
    s.element(4, "description", beschreibung);
    s.zeile("  </basic>");
    s.zeile("  <setting>");
    for (const FileChoice& choice : fileChoices)
        for (const form::Control* control : form.controls())
            if (choice.means(*control) && markiert(*control) && gilt(*control))
                block(s, choice.titel, *control);
    s.zeile("  </setting>");
    s.zeile("</test>");
    return latin1(s.text());
}

void EinstellungenSchreiben(const std::string& pfad, const std::string& text) {
    base::writeWhole(pfad, text);
}

Einstellungssatz EinstellungenLesenAus(const std::string& bytes) {
    Einstellungssatz satz;
    pugi::xml_document dokument;
    if (settingsfile::faultyLine(bytes) || !dokument.load_buffer(bytes.data(), bytes.size()))
        return {};
    try {
        for (const pugi::xml_node kind : dokument.document_element().first_child())
            if (kind.type() == pugi::node_element)
                satz.kopf[std::string(grundname(kind))] = inhalt(kind);
        jederKnoten(dokument.root(), [&](pugi::xml_node& node) {
            if (node.type() == pugi::node_element && grundname(node) == "control")
                satz.eintraege.push_back(eintragVon(node));
        });
    } catch (const base::RuntimeError&) {
        return {};
    }
    return satz;
}

Einstellungssatz EinstellungenLesen(const std::string& pfad) {
    try {
        return EinstellungenLesenAus(base::readWhole(pfad, settingsfile::largest));
    } catch (const std::exception&) {
        return {};
    }
}

int uebungstyp(const std::string& pfad) {
    const auto kopf = EinstellungenLesen(pfad).kopf;
    const auto typ = kopf.find("type");
    const bool schreiben =
        typ != kopf.end() && base::leadingInt(typ->second) == core::uebung::schreiben;
    return schreiben ? core::uebung::schreiben : core::uebung::bestimmen;
}

void EinstellungenAnwenden(form::Form& form, const Einstellungssatz& satz) {
    try {
        for (const auto& eintrag : satz.eintraege) anwenden(form, eintrag);
    } catch (const base::RuntimeError&) {
        return;  // what was applied stays
    }
}

}  // namespace setup
