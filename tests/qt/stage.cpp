#include "stage.h"

#include "engine/arbeitsblatt.h"

#include <QApplication>
#include <QKeyEvent>

#include <filesystem>

Stage::Stage(const std::string& language, std::int64_t seed)
    : midi(loop),
      drill({loop, dialogs, printer, help, [seed] { return seed; },
             [this] { return host.connect(); }, &languages},
            {.tempOrdner = std::filesystem::temp_directory_path().string(),
             .rechnername = "practice-room-3",
             .programmOrdner = (qt::LanguageFiles::installedFolder() + "/..").toStdString()},
            midi),
      windows(drill.programm.forms) {
    host.language = language;
    drill.programm.forms.load("grd_einst");
    wait(10);
}

Stage::~Stage() { drill.programm.forms.unloadAll(); }

form::Form& Stage::form(const std::string& name) const {
    form::Form* found = drill.programm.forms.loaded(name);
    if (!found) throw std::out_of_range(name + " is not loaded");
    return *found;
}

QWidget& Stage::window(const std::string& name) const { return *windows.of(form(name)); }

void Stage::wait(std::int64_t milliseconds) {
    loop.advance(milliseconds);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Stage::openSetup(bool theory, int type) {
    setup_ = theory ? "einstellung1b" : "einstellung1";
    sheet_ = "arbeitsblatt" + std::to_string(type) + (theory ? "b" : "");
    control<form::Option>("grd_einst", "Theoriewahl", theory ? 1 : 0).click();
    control<form::Option>("grd_einst", "ueb_typ", type).click();
    control<form::Button>("grd_einst", "cmdOK").click();
    wait(300);
}

void Stage::openWorksheet() {
    control<form::Button>(setup_, "cmdOK").click();
    wait(10);
}

void Stage::press(const std::string& name, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&window(name), &event);
    QApplication::processEvents();
}

bool Stage::task(bool right) {
    auto& sheet = static_cast<engine::Arbeitsblatt&>(form("arbeitsblatt1"));
    const core::Zustand& z = drill.programm.zustand;
    control<form::Button>("arbeitsblatt1", "CmdNextAufg").click();
    wait(22000);
    for (int i = 0; i <= z.skal_anz && right; ++i)
        if (i == z.skala_nr) control<form::Picture>("arbeitsblatt1", "ton_art", i).click();
    for (int i = 0; i <= z.skal_anz && !right; ++i)
        if (i != z.skala_nr) control<form::Picture>("arbeitsblatt1", "ton_art", i).click();
    return sheet.aufgZustand() == engine::AufgZustand::Geschlossen;
}

void Stage::whenResult(std::function<void()> look) {
    made_ = drill.programm.forms.made.connect([this, look](form::Form& made) {
        if (made.name() != "testergebnis") return;
        shown_ = made.changed.connect([this, look, &made, done = false]() mutable {
            if (done || !made.visible()) return;
            done = true;
            loop.post([this, look] {
                wait(10);
                look();
                control<form::Button>("testergebnis", "cmdOK").click();
            });
        });
    });
}
