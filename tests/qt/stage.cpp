#include "stage.h"

#include "engine/arbeitsblatt.h"

#include <QApplication>
#include <QKeyEvent>

#include <filesystem>

Stage::Stage(const std::string& language, std::int64_t seed)
    : WholeDrill(host,
                 {.tempOrdner = std::filesystem::temp_directory_path().string(),
                  .rechnername = "practice-room-3",
                  .programmOrdner = (qt::LanguageFiles::installedFolder() + "/..").toStdString()},
                 seed, &languages),
      windows(drill.programm.forms) {
    host.language = language;
    drill.programm.forms.load("grd_einst");
    wait(10);
}

Stage::~Stage() { drill.programm.forms.unloadAll(); }

QWidget& Stage::window(const std::string& name) const { return *windows.of(form(name)); }

void Stage::wait(std::int64_t milliseconds) {
    loop.advance(milliseconds);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Stage::openSetup(bool theory, int type) {
    toSetUp(theory, type);
    wait(300);
}

void Stage::openWorksheet() {
    control<form::Button>(setup_, "cmdOK").click();
    wait(10);
}

void Stage::next() {
    on<form::Button>("CmdNextAufg").click();
    wait(22000);
}

bool Stage::task(bool right) {
    next();
    if (right)
        answerRight();
    else
        while (answerWrong()) continue;
    return static_cast<engine::Arbeitsblatt&>(form(sheet_)).aufgZustand() ==
           engine::AufgZustand::Geschlossen;
}

void Stage::leave() {
    on<form::Panel>("zurueck").click();
    wait(500);
}

void Stage::press(QWidget& widget, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
    QApplication::processEvents();
}

void Stage::whenResult(const std::function<void()>& look) {
    WholeDrill::whenResult([this, look] {
        wait(10);
        look();
    });
}
