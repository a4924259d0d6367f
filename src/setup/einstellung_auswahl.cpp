// Picking single scales: two lists, and whether what was picked is enough.
#include "setup/einstellung.h"

#include <algorithm>

namespace setup {

void Einstellung::final_click() {
    writeHint(0);
    if (z.ska_ausw == 1) selectionCheck();
}

/// While scales are being picked, their category and the direction cannot change.
void Einstellung::ska_ausw_click() {
    const bool alle = z.ska_ausw == 0;
    if (!alle) AuswahlOeffnen();
    grdeinst(10).visible = !alle;
    TypUndRichtungErlauben(alle);
    if (!alle) return;
    cmdOK.enabled = true;
    Combo_richtung.enabled = true;
}

void Einstellung::TypUndRichtungErlauben(bool erlaubt) {
    for (form::Control* control : std::initializer_list<form::Control*>{
             &grdeinst(4), &lb4, &grdeinst(1), &geinst_lb(1), &geinst_lb(4)})
        control->enabled = erlaubt;
}

/// What was picked stays when it is of the type and direction in force; otherwise the lists begin
/// anew.
void Einstellung::AuswahlWiederaufnehmen() {
    const auto angebot = skalenZurWahl(p.katalog, z.skal_typ, richtungen());
    const auto angeboten = [&](const form::ItemList::Item& skala) {
        return std::ranges::any_of(angebot, [&](const form::ItemList::Item& item) {
            return item.data == skala.data && item.text == skala.text;
        });
    };
    const bool passt = lst_ska0.count() + lst_ska1.count() == static_cast<int>(angebot.size()) &&
                       std::ranges::all_of(lst_ska0.items(), angeboten) &&
                       std::ranges::all_of(lst_ska1.items(), angeboten);
    if (!passt) return ska_ausw_click();
    TypUndRichtungErlauben(false);
    selectionCheck();
}

void Einstellung::AuswahlOeffnen() {
    cmdOK.enabled = false;
    lb10(0).visible = true;
    lst_ska0.setItems(skalenZurWahl(p.katalog, z.skal_typ, richtungen()));
    lst_ska1.clear();
}

/// Both lists stay sorted: the item takes its place among those of the other.
void Einstellung::lst_ska_click(form::ListBox& quelle, form::ListBox& ziel) {
    const int geklickt = quelle.clicked();
    const form::ItemList::Item skala = quelle.item(geklickt);
    ziel.insert(sortierteStelle(ziel.items(), skala.data), skala.text, skala.data);
    quelle.remove(geklickt);
    z.einzelAnz = lst_ska1.count() - 1;
    selectionCheck();
}

void Einstellung::selectionCheck() {
    const Urteil urteil = auswahlBeurteilen(lst_ska1.items(), z.final, richtungen());
    // With one direction the hint keeps what it told last.
    if (richtungen().beide() && urteil != Urteil::Genug)
        writeHint(urteil == Urteil::Ungleich ? 1 : 0);
    lb10(0).visible = urteil != Urteil::Genug;
    cmdOK.enabled = urteil == Urteil::Genug;
}

void Einstellung::writeHint(int flag) {
    lb10(0).caption = Wort(hinweisWort(z.final, richtungen(), flag));
}

void Einstellung::AuswahlStandZeigen() {
    wahlStand.caption = core::eingesetzt(Wort(817), std::to_string(lst_ska1.count()));
    wahlStand.foreColour =
        lst_ska1.count() > wahlPlaetze ? base::colours::red : base::colours::black;
}

}  // namespace setup
