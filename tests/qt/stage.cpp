#include "stage.h"

#include <QApplication>
#include <QKeyEvent>

Stage::Stage(const std::string& language)
    : Desk({.call = {.rechnername = "practice-room-3",
                     .programmOrdner = (suite::languageFolder() + "/..").toStdString()},
            .languages = &languages}),
      windows(programm.forms) {
    host.language = language;
    programm.forms.load("grd_einst");
    wait(10);
}

Stage::~Stage() { programm.forms.unloadAll(); }

QWidget& Stage::window(const std::string& name) const { return *windows.of(form(name)); }

void Stage::wait(std::int64_t milliseconds) {
    Desk::wait(milliseconds);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Stage::openSetup(const support::Way& way) {
    toSetUp(way);
    wait(50);
}

void Stage::openWorksheet() {
    button("cmdOK").click();
    wait(10);
}

void Stage::next() {
    Desk::next();
    wait(0);
}

bool Stage::task(bool right) {
    next();
    if (right)
        answerRight();
    else
        lose();
    return taskState() == engine::TaskState::Closed;
}

void Stage::leave() {
    Desk::leave();
    wait(0);
}

void Stage::press(QWidget& widget, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
    QApplication::processEvents();
}

void Stage::whenResult(const std::function<void()>& look) {
    Desk::whenResult([this, look] {
        wait(10);
        look();
    });
}
