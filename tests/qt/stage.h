#pragma once
#include "qt/language_files.h"
#include "qt/windows.h"
#include "support/whole_drill.h"

#include <QWidget>

#include <functional>
#include <string>

struct WithLanguages {
    qt::LanguageFiles languages{suite::languageFolder()};
};

/// The whole drill with real windows under virtual time: forms open and close as fast as they can.
struct Stage : support::WithHost, WithLanguages, support::WholeDrill {
    explicit Stage(const std::string& language = "Deutsch");
    ~Stage();

    QWidget& window(const std::string& name) const;
    template <class W>
    W& widget(const std::string& form, const std::string& id) const {
        return *window(form).findChild<W*>(QString::fromStdString(id));
    }
    void wait(std::int64_t milliseconds);
    /// On to the set-up form.
    void openSetup(bool theory = false, int type = 1);
    const std::string& setup() const { return setup_; }
    /// On to the worksheet of its choices.
    void openWorksheet();
    const std::string& sheet() const { return sheet_; }
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
