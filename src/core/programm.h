#pragma once
#include "base/rnd.h"
#include "core/host.h"
#include "core/katalog.h"
#include "core/wort.h"
#include "core/worte.h"
#include "core/zustand.h"
#include "form/forms.h"
#include "form/message_loop.h"
#include "form/ports.h"

#include <functional>
#include <string>

namespace core {

/// Everything outside that the program works with. The owner outlives the program.
struct Ports {
    form::MessageLoop& loop;
    form::Dialogs& dialogs;
    form::Printer& printer;
    form::Help& help;
    /// A seed for the chance of a run, from the clock; asked once for each.
    std::function<std::int64_t()> saat;
    Host::Factory host;
    SprachListe* sprachen = nullptr;
};

/// What the shell gave at the start.
struct Aufruf {
    std::string kommandozeile = {};
    std::string tempOrdner = {};       ///< folder of the result record, without a slash at
                                       ///< its end; "" for the current one
    std::string rechnername = {};      ///< the computer's name
    std::string programmOrdner = {};   ///< folder of the texts that come with the program
    std::string stueckeOrdner = {};    ///< folder of the settings files, without a slash at its end
    std::string startdatei = {};       ///< settings file to begin with, "" for none
    int startTyp = uebung::bestimmen;  ///< the exercise type that it is for
    bool pruefEdit = false;            ///< settings may be marked, written and read
};

/// The program as one value: state, catalogue, words, host, chance and forms. Forms keep a
/// reference to it.
class Programm {
  public:
    Programm(Ports ports, Aufruf aufruf);

    const std::string& Wort(wort::Id wort) { return worte.Wort(wort); }
    /// The branch and the exercise type in force, as the start form captions them.
    const std::string& zweig() {
        return Wort(isEarTraining(zustand) ? wort::earTraining : wort::musicTheory);
    }
    const std::string& uebungsart() {
        return Wort(zustand.ueb_typ == uebung::bestimmen ? wort::identify : wort::write);
    }
    /// Shows the small message form with a longer text.
    void Melden(const std::string& titel, const std::string& text);

    Ports ports;
    Aufruf aufruf;
    Zustand zustand;
    Katalog katalog;
    Worte worte;
    Host host;
    base::Rnd rnd;
    form::Forms forms;
};

}  // namespace core
