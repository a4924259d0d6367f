#pragma once
#include "qt/language_files.h"
#include "qt/windows.h"
#include "support/desk.h"

#include <QWidget>

#include <functional>
#include <string>

struct WithLanguages {
    qt::LanguageFiles languages{suite::languageFolder()};
};

/// A desk with real windows: forms open and close as fast as they can.
struct Stage : WithLanguages, support::Desk {
    explicit Stage(const std::string& language = "Deutsch");
    ~Stage();

    QWidget& window(const std::string& name) const;
    template <class W>
    W& widget(const std::string& form, const std::string& id) const {
        return *window(form).findChild<W*>(QString::fromStdString(id));
    }
    /// Lets time pass, and the windows follow.
    void wait(std::int64_t milliseconds);
    /// On to the set-up form.
    void openSetup(const support::Way& way = {});
    /// On to the worksheet of its choices.
    void openWorksheet();
    /// Calls the next task and waits until its answers are open.
    void next();
    /// Plays the task in hand to its end and answers it. @return false when the run is over.
    bool task(bool right);
    void leave();
    /// Presses a key in a widget, in the window of a form.
    static void press(QWidget& widget, Qt::Key key);
    void press(const std::string& form, Qt::Key key) { press(window(form), key); }
    /// Calls `look` with the result form on screen, then closes it.
    void whenResult(const std::function<void()>& look);

    qt::Windows windows;
};
