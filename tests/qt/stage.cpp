#include "stage.h"

#include <QApplication>
#include <QKeyEvent>

#include <filesystem>

Stage::Stage(const std::string& language)
    : WholeDrill(host,
                 {.tempOrdner = std::filesystem::temp_directory_path().string(),
                  .rechnername = "practice-room-3",
                  .programmOrdner = (suite::languageFolder() + "/..").toStdString()},
                 1, &languages),
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
    button("cmdOK").click();
    wait(10);
}

void Stage::next() {
    WholeDrill::next();
    wait(0);
}

bool Stage::task(bool right) {
    next();
    if (right)
        answerRight();
    else
        while (answerWrong()) continue;
    return turn() == engine::AufgZustand::Geschlossen;
}

void Stage::leave() {
    WholeDrill::leave();
    wait(0);
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
