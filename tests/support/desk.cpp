#include "support/desk.h"

#include "support/choices.h"

#include <stdexcept>

namespace support {

namespace {

core::Aufruf callOf(const Start& start, const rehearsal::TempFolder& folder) {
    core::Aufruf call = start.call;
    if (call.tempOrdner.empty()) call.tempOrdner = folder.path().string();
    if (call.rechnername.empty()) call.rechnername = "desk";
    return call;
}

}  // namespace

Desk::Desk(const Start& start)
    : host(start.host ? *start.host : own_),
      drill(ports(
                host, [seed = start.seed] { return seed; }, start.languages),
            callOf(start, folder_), midi) {}

form::Form& Desk::form(const std::string& name) const {
    form::Form* found = programm.forms.loaded(name);
    if (!found) throw std::out_of_range(name + " is not loaded");
    return *found;
}

form::Control& Desk::find(const std::string& formName, const std::string& name, int index) const {
    form::Control* found = form(formName).find(name, index);
    if (!found) throw std::out_of_range(formName + " has no " + name);
    return *found;
}

void Desk::toSetUp(const Way& way) {
    setup_ = way.theory ? "einstellung1b" : "einstellung1";
    sheet_ = "arbeitsblatt" + std::to_string(way.type) + (way.theory ? "b" : "");
    if (!loaded("grd_einst")) programm.forms.load("grd_einst");
    wait(5);
    control<form::Option>("grd_einst", "Theoriewahl", way.theory ? 1 : 0).click();
    control<form::Option>("grd_einst", "ueb_typ", way.type).click();
    control<form::Button>("grd_einst", "cmdOK").click();
    wait(250);
}

void Desk::later(int milliseconds, std::function<void()> what) {
    later_.push_back(loop.after(milliseconds, std::move(what)));
}

void Desk::whenResult(const std::function<void()>& look) {
    made_ = programm.forms.made.connect([this, look](form::Form& result) {
        if (result.name() != "testergebnis") return;
        shown_ = result.changed.connect([this, look, &result] {
            if (!result.visible()) return;
            shown_ = {};
            loop.post([this, look] {
                look();
                control<form::Button>("testergebnis", "cmdOK").click();
            });
        });
    });
}

void Desk::mark(int index) const {
    group(index).context();
    get<form::MenuEntry>("popExamToggle").click();
}

void Desk::pick(std::initializer_list<int> codes) const {
    option("ska_ausw", 1).click();
    for (const int code : codes) {
        int i = 0;
        while (i < list(0).count() && list(0).item(i).data != code) ++i;
        list(0).click(i);
    }
}

void Desk::begin() {
    button("cmdOK").click();
    wait(50);
}

void Desk::run() {
    if (z.einst_liste.empty()) z.einst_liste = {"0"};
    drill.wertung.vorbereiten();
    drill.xml.SkalaXmlNeu();
    programm.forms.hide(setup_);
    programm.forms.show(sheet_);
    wait(2);
}

void Desk::category(int skal_typ) { support::category(z, skal_typ); }
void Desk::choose(const std::vector<int>& codes) { support::choose(z, codes); }
std::map<int, int> Desk::weights() const { return support::weights(z); }

void Desk::click(const std::string& name) const {
    if (on(name).kind() == form::Kind::Button)
        on<form::Button>(name).click();
    else
        on<form::Panel>(name).click();
}

bool Desk::answer(int scale) const {
    if (!open(scale)) return false;
    if (z.an_zeig == 0)
        on<form::Picture>("ton_art", scale).click();
    else
        on<form::Panel>("tonart", scale).click();
    return true;
}

bool Desk::answerWrong() const {
    for (int i = 0; i <= z.skal_anz; ++i)
        if (i != task().skala_nr && answer(i)) return true;
    return false;
}

void Desk::lose() const {
    while (answerWrong()) continue;
}

bool Desk::ready() const {
    return exerciseRun().exercise().isWritten() ? on("cmdOK").usable() : open(task().skala_nr);
}

void Desk::next() {
    using worksheets::Worksheet;
    constexpr int longest = 30000;  // milliseconds
    bool open = false;
    const form::Connection turns = sheet().turn.connect(
        [&](Worksheet::Turn turn) { open = open || turn == Worksheet::Turn::AnswerOpen; });
    const auto end = loop.elapsed() + longest;
    if (z.abfrage == 0) click("CmdNextAufg");
    loop.runUntil([&] { return open || !running() || loop.elapsed() > end; });
}

void Desk::task(bool right) {
    next();
    if (!right) answerWrong();
    answerRight();
    wait(100);
}

void Desk::leave(bool keep) {
    dialogs.answers = {keep};
    click("zurueck");
    wait(500);
}

}  // namespace support
