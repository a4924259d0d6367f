#pragma once
#include "core/programm.h"
#include "core/wort.h"
#include "form/controls.h"
#include "form/form.h"

#include <initializer_list>
#include <string>

namespace core {

/// What all forms of the program have in common: captions from the words, help, and the common
/// error path.
class Formular : public form::Form {
  public:
    Formular(Programm& programm, std::string name)
        : Form(programm.forms, std::move(name)), p(programm), z(programm.zustand) {}

    /// F1 opens the help page of the form.
    bool key(form::Key key) override;

    /// A caption and its word.
    struct Beschriftung {
        form::Control& control;
        wort::Id wort;
    };
    void beschriften(std::initializer_list<Beschriftung> beschriftungen);
    /// The same for what a screen reader says.
    void benennen(std::initializer_list<Beschriftung> namen);

  protected:
    const std::string& Wort(wort::Id wort) { return p.Wort(wort); }
    void HilfeZeigen();

    /// The common error path: the host's log, a warning of four lines, then `nachFehler`.
    void failed(const std::string& prozedur, const std::exception& fehler) final;
    /// How the log names a procedure of this form.
    virtual std::string logText(const std::string& prozedur) const { return name() + prozedur; }
    /// What the form does after the warning.
    virtual void nachFehler(const std::string& prozedur) { (void)prozedur; }

    Programm& p;
    Zustand& z;
};

}  // namespace core
