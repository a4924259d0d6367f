#pragma once
#include "drill/drill.h"
#include "form/virtual_time.h"
#include "qt/language_files.h"
#include "qt/windows.h"
#include "support/fake_host.h"
#include "support/fake_ports.h"
#include "support/recording_midi.h"

#include <QWidget>

#include <functional>
#include <string>

/// The whole drill with real windows under virtual time: forms open and close as fast as they can.
struct Stage {
    explicit Stage(const std::string& language = "Deutsch", std::int64_t seed = 1);
    ~Stage();

    form::Form& form(const std::string& name) const;
    QWidget& window(const std::string& form) const;
    template <class W>
    W& widget(const std::string& form, const std::string& id) const {
        return *window(form).findChild<W*>(QString::fromStdString(id));
    }
    template <class C>
    C& control(const std::string& form, const std::string& name,
               int index = form::Place::noIndex) const {
        return static_cast<C&>(*this->form(form).find(name, index));
    }
    void wait(std::int64_t milliseconds);
    /// From the start form to the set-up form. @param theory the second branch.
    /// @param type 1 naming, 4 writing.
    void openSetup(bool theory = false, int type = 1);
    /// On to the worksheet of its choices.
    void openWorksheet();
    const std::string& setup() const { return setup_; }
    const std::string& sheet() const { return sheet_; }
    /// Presses a key in the window of a form.
    void press(const std::string& form, Qt::Key key);
    /// Plays the task in hand to its end and answers it. @return false when the run is over.
    bool task(bool right);
    /// Calls `look` with the result form on screen, then closes it.
    void whenResult(std::function<void()> look);

    form::VirtualTime loop;
    support::FakeHost host;
    support::ScriptedDialogs dialogs;
    support::FakePrinter printer;
    support::FakeHelp help;
    support::RecordingMidi midi;
    qt::LanguageFiles languages{qt::LanguageFiles::installedFolder()};
    drill::Drill drill;
    qt::Windows windows;

  private:
    std::string setup_ = "einstellung1", sheet_ = "arbeitsblatt1";
    form::Connection made_, shown_;
};
