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

Einstellung::Einstellung(core::Programm& programm, results::Wertung& wertung, sound::Midi& midi,
                         sound::MidiOutput& ausgabe, Zweig zweig)
    : Formular(programm, zweig == Zweig::Gehoerbildung ? "einstellung1" : "einstellung1b"),
      wertung_(wertung),
      midi_(midi),
      MIDI(ausgabe),
      zweig_(zweig) {
    setCaption(zweig == Zweig::Gehoerbildung ? "GHB: Einstellung: Skalen bestimmen"
                                             : "ML: Einstellung: Skalen bestimmen");
    for (const Gruppe& g : gruppen) {
        grdeinst(g.index).backColour = g.farbe;
        geinst_lb(g.index).setContainer(grdeinst(g.index));
    }
    grdeinst(14).backColour = farben::klang;
    grdeinst(14).setContainer(grdeinst(15));
    grdeinst(10).visible = false;
    Combo_mt.visible = false;
    prfnr_Comb.visible = false;
    lb10(0).foreColour = base::colours::red;
    temp_Combo.backColour = farben::tempoOffen;
    temp_Combo.foreColour = base::colours::white;

    for (const auto& [control, tag] : std::initializer_list<std::pair<form::Control&, const char*>>{
             {lst_ska1, "Skalen ausgewählt"},
             {lst_ska0, "Skalen auswählen"},
             {Combo_mt, "Combo_mt#var"},
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
    for (form::Option* option : {&stimm_g(0), &an_zeig(0), &ska_ausw(0), &final(2), &abfrage(0),
                                 &abfolge(0), &frequenz(0)})
        option->choose();
    Verbinden();
}

void Einstellung::Verbinden() {
    const auto speichert = [](form::ControlArray<form::Option>& optionen, const char* prozedur,
                              i16& feld) {
        for (form::Option& option : optionen)
            option.onClick = {prozedur, [&feld, &option] { feld = option.index(); }};
    };
    speichert(abfrage, "abfrage_click.", z.abfrage);
    speichert(frequenz, "frequenz_click.", z.frequenz);
    speichert(stimm_g, "stimm_g_click.", z.stimmung);
    speichert(an_zeig, "an_zeig_click.", z.an_zeig);
    for (form::Option& option : final)
        option.onClick = {"final_click.", [this, &option] { final_click(option.index()); }};
    for (form::Option& option : abfolge)
        option.onClick = {"abfolge_click.", [this, &option] { abfolge_click(option.index()); }};
    for (form::Option& option : ska_ausw)
        option.onClick = {"ska_ausw_click.", [this, &option] { ska_ausw_click(option.index()); }};

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
}

void Einstellung::start_timer() {
    start.stop();
    setCaption(p.katalog.typ_name[z.ueb_typ] + Wort(700) + p.katalog.bereich_name[1]);
    bereit_ = false;
    wertung_.vorbereiten();
    LadewerteSetzen();
    KlangEinrichten();
    if (z.ueb_typ == core::uebung::schreiben)
        for (form::Option* option : {&final(0), &final(1), &an_zeig(1)}) option->visible = false;
    CombosFuellen();
    writeHint(0);
    bereit_ = true;
    Beschriften();
    cmdOptionRead.visible = p.aufruf.pruefEdit;
    cmdOptionSave.visible = p.aufruf.pruefEdit;
    forms().show(name());
    StartdateiAnwenden();
}

void Einstellung::LadewerteSetzen() {
    z.uebungsmodus = 0;
    z.abfrage = 0;
    z.tempoIdx = 1;
    z.frequenz = 0;
    z.abfolge = 0;
    z.richtung = 2;
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
    for (int n = 2; n <= 5; ++n) CmbOktAnz.add(zahl(n) + " " + Wort(41), n - 2);
    CmbOktAnz.setListIndex(0);
    for (const int wort : {132, 83, 623}) Combo_richtung.add(Wort(wort), ohneDaten);
    Combo_richtung.setListIndex(2);
    const int typen = z.ueb_typ == core::uebung::schreiben ? 1 : core::katalog::kategorienAnz;
    for (int typ = 0; typ < typen; ++typ) skal_typ_cmb.add(p.katalog.skal_typ_name[typ], ohneDaten);
    skal_typ_cmb.setListIndex(0);
    for (int modus = 0; modus < 5; ++modus)
        training_Combo.add(modus == core::modus::fortsetzung && !FortsetzungVorhanden()
                               ? core::keineFortsetzung
                               : p.katalog.modus_name[modus]);
    training_Combo.setListIndex(0);
    for (int n = 1; n <= 5; ++n) prfnr_Comb.add(Wort(426) + zahl(n), ohneDaten);
    prfnr_Comb.setListIndex(0);
    Combo_mt.add(Wort(355), ohneDaten);
    Combo_mt.setListIndex(0);
}

void Einstellung::Beschriften() {
    for (const Gruppe& g : gruppen) geinst_lb(g.index).caption = Wort(g.wort);
    beschriften(
        {{lb0, 153},           {frequenz(0), 238},   {frequenz(1), 603}, {stimm_g(0), 546},
         {stimm_g(1), 458},    {stimm_g(2), 401},    {abfolge(0), 489},  {abfolge(1), 385},
         {lb4, 469},           {abfrage(0), 383},    {abfrage(1), 142},  {final(0), 621},
         {final(1), 240},      {final(2), 151},      {ska_ausw(0), 103}, {ska_ausw(1), 413},
         {an_zeig(0), 505},    {an_zeig(1), 157},    {klang_contr, 366}, {lb14(0), 372},
         {lb15(0), 547},       {lb10(1), 140},       {lb10(2), 135},     {popExamToggle, 843},
         {cmdOptionRead, 829}, {cmdOptionSave, 830}, {cmdHilfe, 816},    {cmdZurueck, 640},
         {cmdOK, 432},         {copyright, 6}});
    lb15(1).caption = "=MM";
    struct Name {
        form::Control& control;
        int wort;
    };
    for (const auto& [control, wort] :
         {Name{CmbOktAnz, 107}, Name{CmbOktBer, 153}, Name{skal_typ_cmb, 494},
          Name{Combo_richtung, 469}, Name{training_Combo, 587}, Name{prfnr_Comb, 438},
          Name{ComboPatch, 365}, Name{temp_Combo, 547}, Name{HSliderVolume, 372},
          Name{lst_ska0, 140}, Name{lst_ska1, 135}})
        control.accessibleName = Wort(wort);
}

void Einstellung::TonHinweisZeigen() {
    constexpr std::array hinweise{0, 810, 811, 812};  // words
    const int wort = hinweise.at(static_cast<std::size_t>(MIDI.problem()));
    tonHinweis.caption = wort == 0 ? std::string() : Wort(wort);
    tonHinweis.visible = wort != 0;
}

void Einstellung::unloading() {
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
