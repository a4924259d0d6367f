#include "setup/einstellung.h"

#include "core/formnamen.h"
#include "core/fortsetzung.h"
#include "core/wort.h"
#include "setup/choices.h"
#include "setup/recap.h"

namespace setup {

namespace wort = core::wort;

Einstellung::Einstellung(core::Programm& programm, results::Wertung& wertung,
                         results::Skalaxml& xml, sound::Midi& midi, sound::MidiOutput& ausgabe,
                         Zweig zweig)
    : Formular(programm, core::setUpForm(static_cast<int>(zweig))),
      wertung_(wertung),
      xml_(xml),
      zweig_(zweig),
      sound_(*this, programm, midi, ausgabe, groups_, zweig, abbruch_) {
    setCaption(klingt() ? "GHB: Einstellung: Skalen bestimmen"
                        : "ML: Einstellung: Skalen bestimmen");
    if (klingt()) {
        Combo_mt.emplace(*this, form::Place{"Combo_mt", &groups_(group::tuning)});
        Combo_mt->visible = false;
    }
    Beschriften();
    hideWhatIsNotOffered();
    Verbinden();
}

void Einstellung::Beschriften() {
    beschriften({{abfolge(0), wort::scaleInOrder},
                 {abfolge(1), wort::melody},
                 {lb4, wort::direction},
                 {abfrage(0), wort::byHand},
                 {abfrage(1), wort::automatic},
                 {final(0), wort::sameKeySignature},
                 {final(1), wort::sameFinal},
                 {final(2), wort::bothChanging},
                 {an_zeig(0), wort::scaleStructure},
                 {an_zeig(1), wort::scaleName},
                 {cmdHilfe, wort::help},
                 {cmdZurueck, wort::back},
                 {cmdOK, wort::ok},
                 {copyright, wort::copyright}});
    benennen({{skal_typ_cmb, wort::scaleType}, {Combo_richtung, wort::direction}});
    if (!klingt()) return;
    beschriften({{frequenz(0), wort::fixedPitch},
                 {frequenz(1), wort::variablePitch},
                 {stimm_g(0), wort::equalTemperament},
                 {stimm_g(1), wort::pythagorean},
                 {stimm_g(2), wort::meantone}});
}

/// In music theory nothing sounds; what is not named by ear is written, and has its own key.
void Einstellung::hideWhatIsNotOffered() {
    groups_(group::sound).visible = klingt();
    groups_(group::answers).visible = klingt();
    for (form::Option* option : {&final(0), &final(1), &an_zeig(1)})
        option->visible = namingByEar();
}

void Einstellung::Verbinden() {
    connect(abfrage, z);
    connect(frequenz, z);
    connect(stimm_g, z);
    connect(an_zeig, z);
    connect(final, z, [this] { final_click(); });
    connect(abfolge, z, [this] { abfolge_click(); });
    skal_typ_cmb.onSelect = {"skal_typ_cmb_click.", [this] { skal_typ_cmb_click(); }};
    Combo_richtung.onSelect = {"Combo_richtung_click.", [this] {
                                   z.richtung = Combo_richtung.listIndex();
                                   scales_.writeHint(z.richtung);
                               }};
    scales_.onShown = [this](bool shown) { pickingShown(shown); };
    scales_.onJudged = [this](bool enough) { cmdOK.enabled = enough; };
    range_.onChosen = [this] { sound_.showFitness(); };
    sound_.onCheck = [this](bool running) { checkRuns(running); };
    cmdOK.onClick = {"cmdOK_click.", [this] { cmdOK_click(); }};
    cmdZurueck.onClick = {"cmdZurueck_click.", [this] { cmdZurueck_click(); }};
    cmdHilfe.onClick = {"cmdHilfe_click.", [this] { HilfeZeigen(); }};
    start.onTick = {"start_timer.", [this] { start_timer(); }};
}

void Einstellung::start_timer() {
    start.stop();
    setCaption(p.katalog.typ_name[z.ueb_typ] + Wort(wort::colon) + p.katalog.bereich_name[1]);
    wertung_.vorbereiten();
    LadewerteSetzen();
    sound_.KlangEinrichten();
    CombosFuellen();
    scales_.writeHint(0);
    presets_.offer();
    forms().show(name());
    files_.StartdateiAnwenden();
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

void Einstellung::CombosFuellen() {
    range_.fill();
    for (const wort::Id wort : {wort::ascending, wort::descending, wort::bothDirections})
        Combo_richtung.add(Wort(wort));
    Combo_richtung.setListIndex(2);
    const int typen = namingByEar() ? core::katalog::kategorienAnz : 1;
    for (int typ = 0; typ < typen; ++typ) skal_typ_cmb.add(p.katalog.skal_typ_name[typ]);
    skal_typ_cmb.setListIndex(0);
    mode_.fill();
    if (!Combo_mt) return;
    Combo_mt->add(Wort(wort::kirnberger));
    Combo_mt->setListIndex(0);
}

void Einstellung::skal_typ_cmb_click() {
    z.skal_typ = skal_typ_cmb.listIndex();
    z.skal_anz = core::katalog::kategorie(z.skal_typ).skal_max;
    RegelnAnwenden();
}

/// What the category does not allow is disabled, and what was chosen of it falls back.
void Einstellung::RegelnAnwenden() {
    const Regel& r = regel(z.skal_typ);
    an_zeig(1).enabled = r.namen;
    if (!r.namen) an_zeig(0).choose();

    final(0).enabled = r.vorzeichen;
    final(1).caption = Wort(r.vorzeichen ? wort::sameFinal : wort::sameTonic);
    final(2).caption = Wort(r.vorzeichen ? wort::bothChanging : wort::changingTonic);
    if (!r.vorzeichen && final(0).value()) final(1).choose();

    abfolge(1).enabled = r.melodieStimmung;
    for (form::Option& stimmung : stimm_g)
        if (stimmung.index() != 0) stimmung.enabled = r.melodieStimmung;
    if (r.melodieStimmung) return;
    abfolge(0).choose();
    stimm_g(0).choose();
}

void Einstellung::final_click() {
    scales_.writeHint(0);
    if (z.ska_ausw == 1) scales_.selectionCheck();
}

void Einstellung::abfolge_click() {
    const bool melodie = z.abfolge == 1;
    Combo_richtung.setListIndex(melodie ? 0 : 2);
    Combo_richtung.visible = !melodie;
    lb4.visible = !melodie;
    scales_.writeHint(0);
}

/// While scales are being picked, their category and the direction cannot change.
void Einstellung::pickingShown(bool shown) {
    groups_.enableForPicking(!shown);
    lb4.enabled = !shown;
    if (!shown) cmdOK.enabled = true;
}

void Einstellung::checkRuns(bool running) {
    if (!running && z.ska_ausw == 1) return scales_.selectionCheck();
    cmdOK.enabled = !running;
}

void Einstellung::cmdOK_click() {
    cmdOK.enabled = false;
    xml_.SkalaXmlNeu();
    scales_.AuswahlUebernehmen();
    guard("EinstDatSave", [this] { EinstDatSave(); });
    presets_.keep();
    sound_.rememberInstrument();
    mode_.ModusSchritt();
    setPointer(form::Pointer::Hourglass);
    p.ports.loop.doEvents();
    setPointer(form::Pointer::Arrow);
    if (abbruch_) return;
    cmdOK.enabled = true;
    // A sound check that is still under way ends with the run's first silence.
    sound_.checkEnded();
    forms().hide(name());
    forms().show("arbeitsblatt" + core::satz(z));
}

void Einstellung::EinstDatSave() { z.einst_liste = recap(*this, z, zweig_, scales_.chosen()); }

void Einstellung::cmdZurueck_click() {
    cmdZurueck.enabled = false;
    abbruch_ = true;
    sound_.silence();
    forms().show("grd_einst");
    forms().unload(name());
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
