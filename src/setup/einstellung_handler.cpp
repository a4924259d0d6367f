// What the choices of the set-up form do.
#include "core/fortsetzung.h"
#include "setup/einstellung.h"
#include "sound/klang.h"

namespace setup {

using core::modus::pruefung;

void Einstellung::skal_typ_cmb_click() {
    z.skal_typ = skal_typ_cmb.listIndex();
    z.skal_anz = core::katalog::kategorien.at(static_cast<std::size_t>(int(z.skal_typ))).skal_max;
    if (bereit_) RegelnAnwenden();
}

/// What the category does not allow is disabled, and what was chosen of it falls back.
void Einstellung::RegelnAnwenden() {
    const Regel& r = regel(z.skal_typ);
    an_zeig(1).enabled = r.namen;
    if (!r.namen) an_zeig(0).choose();

    final(0).enabled = r.vorzeichen;
    final(1).caption = Wort(r.vorzeichen ? 240 : 298);
    final(2).caption = Wort(r.vorzeichen ? 151 : 299);
    if (!r.vorzeichen && final(0).value()) final(1).choose();

    abfolge(1).enabled = r.melodieStimmung;
    for (form::Option& stimmung : stimm_g)
        if (stimmung.index() != 0) stimmung.enabled = r.melodieStimmung;
    if (r.melodieStimmung) return;
    abfolge(0).choose();
    stimm_g(0).choose();
}

void Einstellung::abfolge_click() {
    const bool melodie = z.abfolge == 1;
    Combo_richtung.setListIndex(melodie ? 0 : 2);
    Combo_richtung.visible = !melodie;
    lb4.visible = !melodie;
    writeHint(0);
}

void Einstellung::CmbOktAnz_click() {
    z.oktAnz = CmbOktAnz.item(CmbOktAnz.listIndex()).data;
    const int unten = klingt() ? 671 : 681;
    const int oben = klingt() ? 673 : 693;
    CmbOktBer.clear();
    for (int i = 0; i < bereicheAnz(z.oktAnz); ++i)
        CmbOktBer.add(Wort(unten + i) + " " + Wort(702) + " " + Wort(oben + z.oktAnz + i), -999);
    CmbOktBer.setListIndex(ersterBereich(zweig_, z.oktAnz));
}

void Einstellung::CmbOktBer_click() {
    const Bereich bereich = tonbereich(zweig_, z.oktAnz, CmbOktBer.listIndex());
    z.FrquMinAkt = bereich.tief;
    z.FrquMaxAkt = bereich.hoch;
}

void Einstellung::ComboPatch_click() {
    z.patch.fill(ComboPatch.listIndex());
    midi_.SetzeKlangfarben(z.patch);
}

void Einstellung::HSliderVolume_change() {
    midi_.setLautstaerke(HSliderVolume.value());
    lb14(1).caption = zahl(HSliderVolume.value());
}

void Einstellung::training_Combo_click() {
    z.uebungsmodus = training_Combo.listIndex();
    prfnr_Comb.visible = false;
    if (z.uebungsmodus == core::modus::fortsetzung) return TrainingFortsetzen();
    GruppenOeffnen();
    if (z.uebungsmodus == pruefung) {
        prfnr_Comb.visible = true;
        prfnr_Comb_click();
    }
}

/// While scales are being picked, their type and the direction stay locked.
void Einstellung::GruppenOeffnen() {
    for (const int i : modusGruppen) {
        if (!find("grdeinst", i)) continue;
        if ((i != 4 && i != 1) || z.ska_ausw == 0) grdeinst(i).enabled = true;
        grdeinst(i).backColour = farben::offen;
    }
    temp_Combo.enabled = true;
    temp_Combo.backColour = farben::tempoOffen;
    temp_Combo.foreColour = base::colours::white;
}

void Einstellung::prfnr_Comb_click() {
    z.prfNr = prfnr_Comb.listIndex() + 1;
    if (bereit_) PruefungVorgeben();
}

void Einstellung::PruefungVorgeben() {
    z.abfrage = 1;
    for (const Pruefungsvorgabe& vorgabe : pruefungsvorgaben)
        if (vorgabe.prfNr == z.prfNr) {
            z.tempoIdx = vorgabe.tempoIdx;
            z.richtung = vorgabe.richtung;
            z.final = vorgabe.final;
            z.ska_ausw = vorgabe.ska_ausw;
        }
    abfrage(1).choose();
    if (klingt()) temp_Combo.setListIndex(z.tempoIdx);
    Combo_richtung.setListIndex(z.richtung);
    final(2).choose();
    for (const int i : pruefungsGruppen) sperren(grdeinst(i));
    sperren(temp_Combo);
}

void Einstellung::cmdOK_click() {
    cmdOK.enabled = false;
    xml_.SkalaXmlNeu();
    AuswahlUebernehmen();
    guard("EinstDatSave", [this] { EinstDatSave(); });
    ModusSchritt();
    setPointer(form::Pointer::Hourglass);
    p.ports.loop.doEvents();
    setPointer(form::Pointer::Arrow);
    if (abbruch_) return;
    cmdOK.enabled = true;
    // A sound check that is still under way ends with the run's first silence.
    verklungen_ = !klang_contr.enabled();
    forms().hide(name());
    forms().show("arbeitsblatt" + core::satz(z));
}

void Einstellung::AuswahlUebernehmen() {
    for (int i = 0; i < lst_ska1.count(); ++i) z.einzel_wahl[i] = lst_ska1.item(i).data;
}

void Einstellung::ModusSchritt() {
    if (z.uebungsmodus == core::modus::training) z.gelesen_e = WahlMerken();
    if (z.uebungsmodus == core::modus::test) {
        z.abfrage = 1;
        abfrage(1).choose();
    }
    if (z.uebungsmodus == pruefung) {
        if (klingt() || z.ueb_typ == core::uebung::bestimmen) PruefungVorgeben();
        p.host.HostMeldung(std::string(core::Host::programm) +
                           "; prfNr=" + std::to_string(z.prfNr));
    }
}

void Einstellung::cmdZurueck_click() {
    cmdZurueck.enabled = false;
    abbruch_ = true;
    if (klingt()) midi_.MidiReset();
    forms().show("grd_einst");
    forms().unload(name());
}

}  // namespace setup
