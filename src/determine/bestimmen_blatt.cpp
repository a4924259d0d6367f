#include "determine/bestimmen_blatt.h"

#include "core/katalog.h"

#include <cstdlib>

namespace determine {

namespace {

constexpr base::Colour offenFarbe = base::rgb(128, 255, 128);
constexpr int tetrachorde = 6;

}  // namespace

void BestimmenBlatt::AntwortenVerbinden() {
    for (int i = 0; i < maxAntworten; ++i) {
        const form::Handler antwort{"skal_antw_click.", [this, i] { skal_antw(i); }};
        ton_art(i).onClick = antwort;
        tonart(i).onClick = antwort;
        // Closed from the first moment on, before the run is ready.
        ton_art(i).enabled = false;
        tonart(i).enabled = false;
    }
}

bool BestimmenBlatt::gewaehlt(int Index) const {
    if (Index > z.skal_anz) return false;
    if (z.ska_ausw == 0) return true;
    for (int k = 0; k <= z.einzelAnz; ++k)
        if (std::abs(z.einzel_wahl[k]) == Index + 1) return true;
    return false;
}

void BestimmenBlatt::AntwortenVorbereiten() {
    const auto& kategorie = core::katalog::kategorien[static_cast<std::size_t>(int(z.skal_typ))];
    const int basis = kategorie.bild_basis[z.final == 1 ? 0 : 1];
    tonarten.caption = p.katalog.skal_typ_name[z.skal_typ];
    int taste = 0;
    for (int i = 0; i < maxAntworten; ++i) {
        const bool da = gewaehlt(i);
        if (i <= z.skal_anz) {
            const std::string& name = p.katalog.skal_name[z.skal_typ][i];
            skal_bez(i).caption = name;
            tonart(i).caption = name;
            ton_art(i).accessibleName = name;
            ton_art(i).picture = basis + i;
        }
        tonart(i).visible = da && !bilder();
        for (form::Control* c :
             std::initializer_list<form::Control*>{&skal_bez(i), &skal_pan(i), &ton_art(i)})
            c->visible = da && bilder();
        ziffer(i).visible = da;
        if (da) ziffer(i).caption = std::to_string(++taste % 10);
    }
    AntwortenZuruecksetzen();
}

void BestimmenBlatt::oeffnen(int i, bool offen) {
    tonart(i).enabled = offen;
    ton_art(i).enabled = offen;
    skal_pan(i).backColour = offen ? offenFarbe : base::colours::red;
    ton_art(i).backColour = offen ? offenFarbe : base::colours::grey;
}

void BestimmenBlatt::Schalterfreigabe() {
    for (int i = 0; i <= z.skal_anz; ++i)
        if (gewaehlt(i) && !gesperrt_[static_cast<std::size_t>(i)]) oeffnen(i, true);
}

void BestimmenBlatt::AntwortenSchliessen() {
    for (int i = 0; i < maxAntworten; ++i) oeffnen(i, false);
}

void BestimmenBlatt::AntwortenZuruecksetzen() {
    gesperrt_.fill(false);
    AntwortenSchliessen();
}

void BestimmenBlatt::AntwortSperren(const Antwort& antwort) {
    gesperrt_[static_cast<std::size_t>(antwort.index)] = true;
    oeffnen(antwort.index, false);
}

void BestimmenBlatt::skal_antw(int Index) {
    AntwortWerten({Index, Index == z.skala_nr, skal_bez(Index).caption()});
}

void BestimmenBlatt::FalscheAntwortMerken(const Antwort& antwort) {
    const int code = antwort.index + 1;
    i16& platz = z.FalschSkala[static_cast<int>(z.punkte) / 2];
    if (z.ska_ausw == 0) {
        platz = code * z.akt_richtung;
        return;
    }
    for (int k = 0; k <= z.einzelAnz; ++k) {
        if (std::abs(z.einzel_wahl[k]) != code) continue;
        const int richtung = base::sgn(z.einzel_wahl[k]);
        platz = code * richtung;
        // A direction is compared with a whole code: it holds for the first scale only, and the
        // last entry decides for all others.
        if (richtung == (z.skala_nr + 1) * z.akt_richtung) return;
    }
}

void BestimmenBlatt::AntwortVermerken(pugi::xml_node node, const Antwort& antwort) {
    wertung_.xml.AntwortEigenschaft(node, "Skala", antwort.name);
}

void BestimmenBlatt::VersuchVermerken(pugi::xml_node node) { node.append_attribute("Skala") = "1"; }

std::string BestimmenBlatt::Loesung(bool richtig) const {
    const int nr = z.skala_nr;
    const std::string& name = skal_bez(nr).caption();
    if (z.skal_typ == tetrachorde && z.ska_ausw != 0)
        return name + p.katalog.tetra_name[nr][z.akt_richtung == 1 ? 0 : 1];
    if (richtig && z.abfolge == 0 && z.richtung == 2)
        return p.worte.Wort(z.akt_richtung == 1 ? 132 : 83) + " " + name;
    return name;
}

bool BestimmenBlatt::key(form::Key key) {
    if (key.kind != form::Key::Kind::Digit) return Arbeitsblatt::key(key);
    const std::string taste = std::to_string(key.digit);
    for (int i = 0; i < maxAntworten; ++i)
        if (ziffer(i).visible() && ziffer(i).caption() == taste) {
            tonart(i).click();
            ton_art(i).click();
            return true;
        }
    return false;
}

}  // namespace determine
