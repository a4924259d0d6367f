// Opening of the set-up form: wiring, load values, contents and captions.
#include "setup/einstellung.h"

#include "core/fortsetzung.h"
#include "sound/klang.h"

namespace setup {

namespace {

/// Groups by heading; the colour is the one they open with.
struct Gruppe {
    int index;
    int wort;  // words
    base::Colour farbe;
};
constexpr std::array gruppen{
    // words
    Gruppe{0, 107, farben::offen},  Gruppe{1, 494, farben::offen},  Gruppe{2, 243, farben::offen},
    Gruppe{3, 504, farben::offen},  Gruppe{4, 558, farben::offen},  Gruppe{5, 78, farben::offen},
    Gruppe{7, 622, farben::offen},  Gruppe{8, 587, farben::modus},  Gruppe{9, 619, farben::offen},
    Gruppe{10, 222, farben::offen}, Gruppe{11, 113, farben::offen}, Gruppe{15, 365, farben::klang},
};

constexpr int ohneDaten = -999;

}  // namespace

Einstellung::Einstellung(core::Programm& programm, results::Wertung& wertung,
                         results::Skalaxml& xml, sound::Midi& midi, sound::MidiOutput& ausgabe,
                         Zweig zweig)
    : Formular(programm, zweig == Zweig::Gehoerbildung ? "einstellung1" : "einstellung1b"),
      wertung_(wertung),
      xml_(xml),
      midi_(midi),
      MIDI(ausgabe),
      zweig_(zweig) {
    setCaption(klingt() ? "GHB: Einstellung: Skalen bestimmen"
                        : "ML: Einstellung: Skalen bestimmen");
    for (const Gruppe& g : gruppen) {
        if (!find("grdeinst", g.index)) continue;
        grdeinst(g.index).backColour = g.farbe;
        geinst_lb(g.index).setContainer(grdeinst(g.index));
    }
    grdeinst(14).backColour = farben::klang;
    grdeinst(14).setContainer(grdeinst(15));
    grdeinst(10).visible = false;
    if (Combo_mt) {
        Combo_mt->visible = false;
        Combo_mt->tag = "Combo_mt#var";
    }
    prfnr_Comb.visible = false;
    lb10(0).foreColour = base::colours::red;
    temp_Combo.backColour = farben::tempoOffen;
    temp_Combo.foreColour = base::colours::white;

    for (const auto& [control, tag] : std::initializer_list<std::pair<form::Control&, const char*>>{
             {lst_ska1, "Skalen ausgewählt"},
             {lst_ska0, "Skalen auswählen"},

             {skal_typ_cmb, "Skalentyp#var"},
             {temp_Combo, "Tempo#var"},
             {Combo_richtung, "Richtung#var"},
             {CmbOktAnz, "Tonraum#var"},
             {CmbOktBer, "Oktav-Bereich#var"}})
        control.tag = tag;
    for (const auto& [optionen, tag] : {std::pair{&stimm_g, "Stimmung"},
                                        {&an_zeig, "Anzeige"},
                                        {&ska_ausw, "Vorkommen"},
                                        {&final, "Vorzeichen/Finalis"},
                                        {&abfrage, "Abfolge"},
                                        {&abfolge, "Tonfolge"},
                                        {&frequenz, "Frequenz"}})
        for (form::Option& option : *optionen) option.tag = tag;
    // What stands chosen at design; nothing is stored by it.
    for (form::Option* option : {&an_zeig(0), &ska_ausw(0), &final(2), &abfrage(0), &abfolge(0)})
        option->choose();
    if (klingt()) {
        stimm_g(0).choose();
        frequenz(0).choose();
    } else {
        OhneKlang();
    }
    Verbinden();
}

/// The groups that a branch has with or without their headings, in the order of the form.
std::vector<int> Einstellung::gruppenIndices(Zweig zweig, bool ueberschrift) {
    std::vector<int> indices{0, 1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 14, 15};
    std::erase_if(indices, [&](int i) {
        return (zweig == Zweig::Musiklehre && (i == 2 || i == 3)) || (ueberschrift && i == 14);
    });
    return indices;
}

/// In music theory nothing sounds, and the scale is always written with its own key.
void Einstellung::OhneKlang() {
    for (form::Control* nie :
         std::initializer_list<form::Control*>{&grdeinst(15), &grdeinst(11), &final(0), &final(1)})
        nie->visible = false;
}

void Einstellung::Verbinden() {
    struct Wahl {
        form::ControlArray<form::Option>& optionen;
        i16& feld;
        const char* prozedur;
        void (Einstellung::*folge)() = nullptr;
    };
    for (const Wahl& wahl :
         {Wahl{abfrage, z.abfrage, "abfrage_click."},
          {frequenz, z.frequenz, "frequenz_click."},
          {stimm_g, z.stimmung, "stimm_g_click."},
          {an_zeig, z.an_zeig, "an_zeig_click."},
          {final, z.final, "final_click.", &Einstellung::final_click},
          {abfolge, z.abfolge, "abfolge_click.", &Einstellung::abfolge_click},
          {ska_ausw, z.ska_ausw, "ska_ausw_click.", &Einstellung::ska_ausw_click}})
        for (form::Option& option : wahl.optionen) {
            option.store = [&feld = wahl.feld, &option] { feld = option.index(); };
            option.onClick.procedure = wahl.prozedur;
            if (wahl.folge) option.onClick.run = [this, folge = wahl.folge] { (this->*folge)(); };
        }
    // An exam stores "all" over lists that stay open.
    ska_ausw(1).store = [this] {
        const bool nochOffen = z.ska_ausw == 0 && grdeinst(10).visible();
        z.ska_ausw = 1;
        if (nochOffen) AuswahlWiederaufnehmen();
    };

    temp_Combo.onSelect = {"temp_Combo_click.", [this] { z.tempoIdx = temp_Combo.listIndex(); }};
    Combo_richtung.onSelect = {"Combo_richtung_click.", [this] {
                                   z.richtung = Combo_richtung.listIndex();
                                   writeHint(z.richtung);
                               }};
    lst_ska0.onClick = {"lst_ska_click.", [this] { lst_ska_click(lst_ska0, lst_ska1); }};
    lst_ska1.onClick = {"lst_ska_click.", [this] { lst_ska_click(lst_ska1, lst_ska0); }};
    skal_typ_cmb.onSelect = {"skal_typ_cmb_click.", [this] { skal_typ_cmb_click(); }};
    CmbOktAnz.onSelect = {"CmbOktAnz_click.", [this] { CmbOktAnz_click(); }};
    CmbOktBer.onSelect = {"CmbOktBer_click.", [this] { CmbOktBer_click(); }};
    ComboPatch.onSelect = {"ComboPatch_click.", [this] { ComboPatch_click(); }};
    HSliderVolume.onChange = {"HSliderVolume_change.", [this] { HSliderVolume_change(); }};
    training_Combo.onSelect = {"training_Combo_click.", [this] { training_Combo_click(); }};
    prfnr_Comb.onSelect = {"prfnr_Comb_click.", [this] { prfnr_Comb_click(); }};
    klang_contr.onClick = {"klang_contr_click.", [this] { klang_contr_click(); }};
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
    cmdZurueck.onClick = {"cmdZurueck_click.", [this] { cmdZurueck_click(); }};
    cmdOptionSave.onClick = {"cmdOptionSave_click.", [this] { cmdOptionSave_click(); }};
    cmdOptionRead.onClick = {"cmdOptionRead_click.", [this] { cmdOptionRead_click(); }};
    for (form::Group& gruppe : grdeinst)
        gruppe.onContext = {"grdeinst_MouseUp.", [this, &gruppe] { PruefungMarkieren(gruppe); }};
    popExamToggle.onClick = {"popExamToggle_click.", [this] { popExamToggle_click(); }};
    cmdHilfe.onClick = {"cmdHilfe_click.", [this] { HilfeZeigen(); }};
    start.onTick = {"start_timer.", [this] { start_timer(); }};
    listeGeaendert_ = lst_ska1.changed.connect([this](form::Aspect aspect) {
        if (aspect == form::Aspect::Items) AuswahlStandZeigen();
    });
    formularFort_ = forms().gone.connect([this](form::Form&) { KlangKontrolleAbschliessen(); });
}

void Einstellung::start_timer() {
    start.stop();
    setCaption(p.katalog.typ_name[z.ueb_typ] + Wort(700) + p.katalog.bereich_name[1]);
    bereit_ = false;
    wertung_.vorbereiten();
    LadewerteSetzen();
    if (klingt()) KlangEinrichten();
    if (klingt() && z.ueb_typ == core::uebung::schreiben)
        for (form::Option* option : {&final(0), &final(1), &an_zeig(1)}) option->visible = false;
    CombosFuellen();
    writeHint(0);
    bereit_ = true;
    Beschriften();
    const bool dateien = p.aufruf.pruefEdit && klingt();
    cmdOptionRead.visible = dateien;
    cmdOptionSave.visible = dateien;
    forms().show(name());
    StartdateiAnwenden();
}

void Einstellung::LadewerteSetzen() {
    z.uebungsmodus = 0;
    z.abfrage = 0;
    z.tempoIdx = 1;
    z.frequenz = 0;
    z.abfolge = 0;
    z.richtung = klingt() ? 2 : 0;
    if (!klingt()) z.an_zeig = 1;
    z.final = 2;
    z.ska_ausw = 0;
    z.zufallsNr = 0;
}

void Einstellung::KlangEinrichten() {
    midi_.MidiGeraete(MIDI);
    midi_.MidiInit(MIDI);
    MIDI.queueEmpty = [this] { guard("QueueEmpty.", [this] { QueueEmpty(); }); };
    MIDI.problemChanged = [this] { TonHinweisZeigen(); };
    sound::Klangliste(ComboPatch);
    ComboPatch.setListIndex(0);
    for (const char* tempo : core::katalog::tempo_name) temp_Combo.add(tempo, ohneDaten);
    temp_Combo.setListIndex(1);
    HSliderVolume.setValue(100);
    TonHinweisZeigen();
}

void Einstellung::CombosFuellen() {
    const int kleinste = klingt() ? 2 : 1;  // octaves
    for (int n = kleinste; n < kleinste + 4; ++n)
        CmbOktAnz.add(zahl(n) + " " + Wort(n == 1 ? 433 : 41), n - kleinste);
    CmbOktAnz.setListIndex(0);
    for (const int wort : {132, 83, 623}) Combo_richtung.add(Wort(wort), ohneDaten);
    Combo_richtung.setListIndex(2);
    const bool alleTypen = klingt() && z.ueb_typ == core::uebung::bestimmen;
    const int typen = alleTypen ? core::katalog::kategorienAnz : 1;
    for (int typ = 0; typ < typen; ++typ) skal_typ_cmb.add(p.katalog.skal_typ_name[typ], ohneDaten);
    skal_typ_cmb.setListIndex(0);
    for (int modus = 0; modus < 5; ++modus)
        training_Combo.add(modus == core::modus::fortsetzung && !FortsetzungVorhanden()
                               ? core::keineFortsetzung
                               : p.katalog.modus_name[modus]);
    training_Combo.setListIndex(0);
    for (int n = 1; n <= 5; ++n) prfnr_Comb.add(Wort(426) + zahl(n), ohneDaten);
    prfnr_Comb.setListIndex(0);
    if (!Combo_mt) return;
    Combo_mt->add(Wort(355), ohneDaten);
    Combo_mt->setListIndex(0);
}

void Einstellung::Beschriften() {
    for (const Gruppe& g : gruppen)
        if (find("geinst_lb", g.index)) geinst_lb(g.index).caption = Wort(g.wort);
    beschriften(
        {{lb0, 153},           {abfolge(0), 489},    {abfolge(1), 385},  {lb4, 469},
         {abfrage(0), 383},    {abfrage(1), 142},    {final(0), 621},    {final(1), 240},
         {final(2), 151},      {ska_ausw(0), 103},   {ska_ausw(1), 413}, {an_zeig(0), 505},
         {an_zeig(1), 157},    {lb10(1), 140},       {lb10(2), 135},     {popExamToggle, 843},
         {cmdOptionRead, 829}, {cmdOptionSave, 830}, {cmdHilfe, 816},    {cmdZurueck, 640},
         {cmdOK, 432},         {copyright, 6}});
    AuswahlStandZeigen();
    if (klingt()) KlangBeschriften();
    benennen({{CmbOktAnz, 107},
              {CmbOktBer, 153},
              {skal_typ_cmb, 494},
              {Combo_richtung, 469},
              {training_Combo, 587},
              {prfnr_Comb, 438},
              {ComboPatch, 365},
              {temp_Combo, 547},
              {HSliderVolume, 372},
              {lst_ska0, 140},
              {lst_ska1, 135}});
}

void Einstellung::KlangBeschriften() {
    beschriften({{frequenz(0), 238},
                 {frequenz(1), 603},
                 {stimm_g(0), 546},
                 {stimm_g(1), 458},
                 {stimm_g(2), 401},
                 {klang_contr, 366},
                 {lb14(0), 372},
                 {lb15(0), 547}});
    lb15(1).caption = "=MM";
}

void Einstellung::TonHinweisZeigen() {
    constexpr std::array hinweise{0, 810, 811, 812, 890};  // words
    const int wort = hinweise.at(static_cast<std::size_t>(MIDI.problem()));
    tonHinweis.caption = wort == 0 ? std::string() : Wort(wort);
    tonHinweis.visible = wort != 0;
}

void Einstellung::unloading() {
    if (!klingt()) return;
    MIDI.queueEmpty = nullptr;
    MIDI.problemChanged = nullptr;
}

void Einstellung::nachFehler(const std::string& prozedur) {
    if (prozedur == "start_timer." || prozedur == "cmdOK_click.") cmdZurueck_click();
}

bool Einstellung::key(form::Key key) {
    using enum form::Key::Kind;
    if (key.kind == Enter) cmdOK.click();
    if (key.kind == Escape) cmdZurueck.click();
    return key.kind == Enter || key.kind == Escape || Formular::key(key);
}

}  // namespace setup
