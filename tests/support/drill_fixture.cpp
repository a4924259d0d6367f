#include "support/drill_fixture.h"

#include <cstdlib>

namespace support {

namespace {

std::filesystem::path freshFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "drillXXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no folder " + pattern);
    return pattern;
}

/// What a worksheet sees of the set-up form.
struct SetUpForm final : core::Formular {
    explicit SetUpForm(core::Programm& programm) : Formular(programm, "einstellung1") {
        for (const std::string& name : programm.katalog.modus_name) training_Combo.add(name);
    }
    void closeBox() override {}
    form::Combo training_Combo{*this, {"training_Combo"}};
};

}  // namespace

/// A timer on a form of its own, so that it goes on whatever happens to the drill's forms.
struct DrillFixture::Alarm : private form::Forms, form::Form {
    Alarm(form::MessageLoop& messages, int milliseconds, std::function<void()> what)
        : form::Forms(messages),
          Form(static_cast<form::Forms&>(*this), "alarm"),
          timer(*this, {"alarm"}, milliseconds) {
        timer.onTick = {"alarm", [this, call = std::move(what)] {
                            timer.stop();
                            call();
                        }};
        timer.start();
    }
    void closeBox() override {}
    void failed(const std::string&, const std::exception&) override { throw; }
    form::Timer timer;
};

DrillFixture::DrillFixture(std::int64_t seed)
    : midiOut(loop),
      folder(freshFolder()),
      programm({loop, dialogs, printer, help, [seed] { return seed; },
                [this] { return host.connect(); }, &words},
               {"", folder.string(), "desk12"}),
      z(programm.zustand),
      midi(loop, programm.host),
      wertung(programm) {
    programm.host.HostVerbinden("zepha9");
    programm.worte.SprachenLaden();
    programm.worte.SpracheSetzen("Deutsch");
    programm.katalog.KatalogInit(programm.worte);
    for (int i = 0; i < z.tempo_dauer.size(); ++i)
        z.tempo_dauer[i] = core::katalog::tempo_dauer[static_cast<std::size_t>(i)];
    z.einst_liste = {"4", "Tempo", "60", "Tonraum", "2"};
    z.an_zeig = 1;
    midi.MidiGeraete(midiOut);
    midi.MidiInit(midiOut);
    programm.forms.add("einstellung1", [this] { return std::make_unique<SetUpForm>(programm); });
    programm.forms.add("arbeitsblatt1", [this] {
        return std::make_unique<determine::Arbeitsblatt1>(programm, midi, wertung);
    });
    programm.forms.add("testergebnis", [this] {
        return std::make_unique<results::Testergebnis>(programm, wertung);
    });
    category(0);
}

DrillFixture::~DrillFixture() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

void DrillFixture::category(int skal_typ) {
    z.skal_typ = skal_typ;
    z.skal_anz = core::katalog::kategorien.at(static_cast<std::size_t>(skal_typ)).skal_max;
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
    wertung.xml.SkalaXmlNeu();
    programm.forms.hide("einstellung1");
    programm.forms.show("arbeitsblatt1");
    wait(2);
}

void DrillFixture::next() {
    click("CmdNextAufg");
    wait(taskLength());
}

bool DrillFixture::open(int scale) const {
    return control(z.an_zeig == 0 ? "ton_art" : "tonart", scale).usable();
}

bool DrillFixture::answer(int scale) {
    if (!open(scale)) return false;
    if (z.an_zeig == 0)
        static_cast<form::Picture&>(control("ton_art", scale)).click();
    else
        static_cast<form::Panel&>(control("tonart", scale)).click();
    return true;
}

bool DrillFixture::answerWrong() {
    for (int i = 0; i <= z.skal_anz; ++i)
        if (i != z.skala_nr && answer(i)) return true;
    return false;
}

void DrillFixture::click(const std::string& name) {
    form::Control& found = control(name);
    if (found.kind() == form::Kind::Button)
        static_cast<form::Button&>(found).click();
    else
        static_cast<form::Panel&>(found).click();
}

void DrillFixture::dismissResults() {
    watch_ = programm.forms.made.connect([this](form::Form& made) {
        if (made.name() != "testergebnis") return;
        later(5, [this] {
            auto& form = static_cast<results::Testergebnis&>(programm.forms.load("testergebnis"));
            rows = form.zeilen();
            total = form.gesamtText();
            static_cast<form::Button*>(form.find("cmdOK"))->click();
        });
    });
}

determine::Arbeitsblatt1* DrillFixture::sheet() const {
    return static_cast<determine::Arbeitsblatt1*>(programm.forms.loaded("arbeitsblatt1"));
}

form::Control& DrillFixture::control(const std::string& name, int index) const {
    form::Control* found = sheet() ? sheet()->find(name, index) : nullptr;
    if (!found) throw std::logic_error("the worksheet has no " + name);
    return *found;
}

int DrillFixture::taskLength() const {
    return static_cast<form::Timer&>(control("spieltimer")).interval();
}

void DrillFixture::later(int milliseconds, std::function<void()> what) {
    alarms_.push_back(std::make_unique<Alarm>(loop, milliseconds, std::move(what)));
}

}  // namespace support
