#include "support/drill_fixture.h"

namespace support {

namespace {

/// What a worksheet sees of the set-up form.
struct SetUpForm final : core::Formular {
    explicit SetUpForm(core::Programm& programm) : Formular(programm, "einstellung1") {
        for (const std::string& name : programm.katalog.modus_name) training_Combo.add(name);
    }
    void closeBox() override {}
    form::Combo training_Combo{*this, {"training_Combo"}};
};

}  // namespace

DrillFixture::DrillFixture(std::int64_t seed)
    : WholeDrill(host, {.tempOrdner = path().string()}, seed) {
    programm.host.HostVerbinden("zepha9");
    programm.worte.SprachenLaden();
    programm.worte.SpracheSetzen("Deutsch");
    programm.katalog.KatalogInit(programm.worte);
    for (int i = 0; const int dauer : core::katalog::tempo_dauer) z.tempo_dauer[i++] = dauer;
    z.einst_liste = {"4", "Tempo", "60", "Tonraum", "2"};
    z.an_zeig = 1;
    drill.midi.MidiGeraete(midi);
    drill.midi.MidiInit(midi);
    programm.forms.add("einstellung1", [this] { return std::make_unique<SetUpForm>(programm); });
    category(0);
}

void DrillFixture::category(int skal_typ) {
    z.skal_typ = skal_typ;
    z.skal_anz = core::katalog::kategorie(skal_typ).skal_max;
}

void DrillFixture::choose(std::initializer_list<int> codes) {
    z.ska_ausw = 1;
    z.einzelAnz = codes.size() - 1;
    int i = 0;
    for (const int code : codes) z.einzel_wahl[i++] = code;
}

void DrillFixture::run() {
    programm.forms.show("einstellung1");
    wertung.vorbereiten();
    drill.xml.SkalaXmlNeu();
    programm.forms.hide("einstellung1");
    programm.forms.show("arbeitsblatt1");
    wait(2);
}

void DrillFixture::next() {
    click("CmdNextAufg");
    wait(taskLength());
}

void DrillFixture::click(const std::string& name) {
    if (control(name).kind() == form::Kind::Button)
        on<form::Button>(name).click();
    else
        on<form::Panel>(name).click();
}

void DrillFixture::dismissResults() {
    whenResult([this] {
        const auto& result = static_cast<results::Testergebnis&>(form("testergebnis"));
        rows = result.zeilen();
        total = result.gesamtText();
    });
}

worksheets::Arbeitsblatt* DrillFixture::sheet() const {
    return static_cast<worksheets::Arbeitsblatt*>(programm.forms.loaded("arbeitsblatt1"));
}

void DrillFixture::later(int milliseconds, std::function<void()> what) {
    later_.push_back(loop.after(milliseconds, std::move(what)));
}

}  // namespace support
