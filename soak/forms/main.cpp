// The whole drill under virtual time, and a user who does anything at any moment.
#include "forms/user.h"
#include "forms/watch.h"
#include "forms/world.h"
#include "rehearsal/number_words.h"
#include "rehearsal/recording_help.h"
#include "rehearsal/temp_folder.h"
#include "setup/einstellungsdatei.h"
#include "sim/file_words.h"
#include "sim/number.h"
#include "sim/usage_error.h"

#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <limits>
#include <optional>
#include <sstream>

#if defined(__SANITIZE_ADDRESS__)
/// What was freed is kept for a while, and would look like growth.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() { return "quarantine_size_mb=8"; }
extern "C" void __sanitizer_set_death_callback(void (*)());
#endif

namespace {

using soak::oncePer;
using soak::Tally;

struct Options {
    double seconds = 10;
    std::int64_t seed = 1;
    std::optional<std::int64_t> user;  ///< only this one, to see a failure again
};

Options optionsOf(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string name = argv[i];
        if (++i == argc) throw sim::UsageError(name + " needs a value");
        constexpr auto most = std::numeric_limits<std::int64_t>::max();
        if (name == "--seconds")
            options.seconds = sim::decimalNumber(name, argv[i], 0, 1e6);
        else if (name == "--seed")
            options.seed = sim::wholeNumber(name, argv[i], 0, most);
        else if (name == "--user")
            options.user = sim::wholeNumber(name, argv[i], 0, most);
        else
            throw sim::UsageError("no option " + name + ": --seconds, --seed and --user");
    }
    return options;
}

/// Who is at the program, and what came to pass: also told when a sanitizer ends it.
std::int64_t seat = 0;
Tally tally;

void tellLast() {
    std::cerr << "soak_forms --user " << seat << ": " << tally.broken << "\nlast of all:\n";
    for (const std::string& doing : tally.last) std::cerr << "  " << doing << '\n';
}

/// A user who comes to no end is one whom the program does not let go.
constexpr unsigned patience = 120;  // seconds

[[noreturn]] void standsStill(int) {
    tally.law(false, "the program stands still");
    tellLast();
    std::_Exit(1);
}

/// Megabytes of memory in use.
double memory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::stod(line.substr(6)) / 1024;
    return 0;
}

soak::Weather weatherOf(base::Rnd& chance) {
    soak::Weather weather;
    switch (chance.below(8)) {
        case 0:
            weather.lostCalls = chance.upTo(60);
            break;
        case 1:
            weather.refusals = chance.upTo(4);
            break;
        case 2:
            weather.damaged = chance.upTo(4);
            break;
        case 3:
            weather.goneFor = true;
            break;
        case 4:
            weather.badFolder = oncePer(chance, 3);
            break;
        default:
            break;
    }
    return weather;
}

/// From a start of the program to its end, on a host that was there before.
class Episode {
  public:
    /// @param foreign what is saved may be of another language.
    Episode(soak::UnsteadyHost& host, core::SprachListe& words, bool foreign,
            const std::filesystem::path& folder, base::Rnd& chance)
        : host_(host),
          foreign_(foreign),
          chance_(chance),
          dialogs_(loop_, chance, tally, folder),
          printer_(chance),
          output_(loop_, tally),
          drill_(
              {loop_, dialogs_, printer_, help_,
               [&chance] { return std::int64_t{chance.below(1 << 24)}; }, host.factory(), &words},
              call(folder), output_),
          watch_(drill_, loop_, tally, !host.weather.badFolder) {
        host.error = [this](int number, const std::string& where) { error(number, where); };
        dialogs_.damages = oncePer(chance, 3);
        output_.volume = oncePer(chance, 4) ? sound::MidiOutput::maxVolume : 0;
        if (oncePer(chance, 5)) output_.trouble = sound::SoundProblem::NoAudioDevice;
        output_.mayPlay = [this] { return drill_.programm.zustand.theoriewahl == 0; };
    }

    void run() {
        host_.gone = false;
        host_.present = !oncePer(chance_, 60);
        try {
            drill_.programm.forms.load("grd_einst");
        } catch (const core::ProgrammEnde&) {
            tally.law(!host_.present || host_.weather.lostCalls > 0,
                      "the program ends at its start");
            ++tally.reached["starts without a host"];
            return;
        }
        soak::User user(drill_, loop_, dialogs_, watch_, chance_, tally);
        const int actions = oncePer(chance_, 3) ? chance_.upTo(60) : 200 + chance_.below(3000);
        const int goes = chance_.below(actions);
        while (goesOn() && user.done() < actions) {
            step();
            host_.gone = host_.gone || (host_.weather.goneFor && user.done() >= goes);
            if (oncePer(chance_, 3000)) output_.problemChanged();
        }
        ++tally.reached["episodes"];
        if (oncePer(chance_, 20)) return;  // the process is killed
        wayOut(user);
    }

  private:
    core::Aufruf call(const std::filesystem::path& folder) {
        core::Aufruf call;
        call.tempOrdner =
            host_.weather.badFolder ? (folder / "missing" / "folder").string() : folder.string();
        call.stueckeOrdner = folder.string();
        call.programmOrdner = SOAK_WORDS "/..";
        call.rechnername = "soak";
        call.pruefEdit = oncePer(chance_, 2);
        if (oncePer(chance_, 8)) {
            call.startdatei = dialogs_.path();
            if (!call.startdatei.empty()) call.startTyp = setup::uebungstyp(call.startdatei);
        }
        return call;
    }

    bool goesOn() const { return tally.broken.empty() && !watch_.ended(); }

    void step() {
        loop_.advance(chance_.upTo(300));
        watch_.lookClosely();
    }

    /// From wherever the user is, leaving leads to the end, in a bounded number of actions.
    void wayOut(soak::User& user) {
        constexpr int mostActions = 200;
        constexpr std::int64_t longest = 30LL * 60 * 1000;
        user.leave();
        const std::int64_t begin = loop_.elapsed();
        while (goesOn()) {
            step();
            tally.law(user.left() < mostActions && loop_.elapsed() - begin < longest,
                      "no way out: " + forms());
        }
        if (!tally.broken.empty()) return;
        ++tally.reached["ways out"];
        loop_.advance(20000);
        watch_.lookClosely();
    }

    std::string forms() const {
        std::string all;
        for (const auto& [name, times] : tally.forms)
            if (const form::Form* form = drill_.programm.forms.loaded(name))
                all += name + (form->visible() ? " " : " (hidden) ");
        return all;
    }

    /// What the program tells as an error must come from what it was given.
    void error(int number, const std::string& where) {
        watch_.excuse();
        tally.note("error " + std::to_string(number) + " " + where);
        const auto in = [&](const char* text) { return where.find(text) != std::string::npos; };
        constexpr int path = static_cast<int>(base::ErrorNumber::PathAccess);
        if (number == path) return;
        // A saved training that is offered may be another branch's, or its scales have other
        // names, or the host that had it is gone.
        constexpr int call = static_cast<int>(base::ErrorNumber::InvalidCall);
        const bool elsewhere = drill_.programm.zustand.theoriewahl == 1 || foreign_ || host_.gone ||
                               host_.weather.lostCalls > 0;
        if (number == call && in("start_timer") && in("saved training") && elsewhere) return;
        if (host_.weather.damaged > 0) return;
        if (dialogs_.damages && (in("cmdSave") || in("cmdOption") || in("Startdatei"))) return;
        // More scales are chosen than there is room for.
        const form::Form* ear = drill_.programm.forms.loaded("einstellung1");
        const form::Form* form = ear ? ear : drill_.programm.forms.loaded("einstellung1b");
        const auto* chosen =
            form ? dynamic_cast<const form::ListBox*>(form->find("lst_ska", 1)) : nullptr;
        if (number == 9 && in("cmdOK_click") && chosen && chosen->count() > 15) {
            ++tally.reached["too many scales"];
            return;
        }
        tally.law(false, "error " + std::to_string(number) + " in " + where);
    }

    soak::UnsteadyHost& host_;
    bool foreign_;
    base::Rnd& chance_;
    form::VirtualTime loop_;
    soak::Answers dialogs_;
    soak::NoPrinter printer_;
    rehearsal::RecordingHelp help_;
    soak::TimedOutput output_;
    drill::Drill drill_;
    soak::Watch watch_;
};

using Languages = std::vector<std::unique_ptr<core::SprachListe>>;

/// One user: some episodes on one host.
void useIt(const Languages& languages) {
    base::Rnd chance(seat);
    soak::UnsteadyHost host(chance, tally);
    const rehearsal::TempFolder folder;
    // A training is known only in the language in which it was kept.
    const bool oneLanguage = oncePer(chance, 2);
    const auto anyLanguage = [&] { return int(chance.below(int(languages.size()))); };
    const int mother = anyLanguage();
    for (int i = chance.upTo(6); i > 0 && tally.broken.empty(); --i) {
        host.weather = weatherOf(chance);
        auto& words = *languages[static_cast<std::size_t>(oneLanguage ? mother : anyLanguage())];
        const soak::Weather& weather = host.weather;
        tally.note("the program starts; lost calls " + std::to_string(weather.lostCalls) +
                   ", refusals " + std::to_string(weather.refusals) + ", damaged " +
                   std::to_string(weather.damaged) + (weather.goneFor ? ", gone" : "") +
                   (weather.badFolder ? ", bad folder" : ""));
        try {
            Episode(host, words, !oneLanguage, folder.path(), chance).run();
        } catch (const std::exception& fault) {
            tally.law(false, std::string("uncaught: ") + fault.what());
        }
    }
}

std::string figures(const std::map<std::string, long>& counted) {
    std::string text;
    for (const auto& [name, times] : counted)
        text += (text.empty() ? "" : ", ") + name + " " + std::to_string(times);
    return text;
}

int soakFor(const Options& options) {
    using Clock = std::chrono::steady_clock;
    Languages languages;
    languages.push_back(std::make_unique<rehearsal::NumberWords>());
    for (const char* suffix : {"de", "en", "es", "fr"})
        languages.push_back(std::make_unique<sim::FileWords>(SOAK_WORDS "/melvoralang." +
                                                             std::string(suffix) + ".ts"));
    const auto begin = Clock::now();
    const auto passed = [&] { return std::chrono::duration<double>(Clock::now() - begin).count(); };
    double first = 0;  // memory after the first tenth, when everything was used once
    seat = options.user.value_or(options.seed * 1'000'000);
    constexpr std::size_t allForms = 11;
    do {
        alarm(patience);
        useIt(languages);
        if (!tally.broken.empty()) break;
        ++seat;
        if (first == 0 && passed() > options.seconds / 10) first = memory();
        // A short run goes on, up to four times as long, until it was everywhere.
    } while (!options.user && passed() < options.seconds * (tally.forms.size() < allForms ? 4 : 1));

    const double seconds = passed(), last = memory();
    const bool held = tally.broken.empty();
    if (!held) tellLast();
    const auto row = [](const std::string& what, const std::string& tried, bool well,
                        const std::string& told) {
        std::cout << what << '\t' << tried << '\t' << (well ? "held" : "FAILED") << '\t' << told
                  << '\n';
    };
    std::ostringstream speed, memories;
    speed.precision(0);
    speed << std::fixed << static_cast<double>(tally.actions) / seconds << " actions/s; "
          << figures(tally.reached);
    row("forms: a user who does anything", std::to_string(tally.actions) + " actions", held,
        speed.str());
    const bool everywhere = options.user || tally.forms.size() == allForms;
    row("forms: each was there", std::to_string(tally.forms.size()) + " forms", everywhere,
        figures(tally.forms));
    constexpr double growth = 64;  // megabytes
    const bool steady = options.user || last - first < growth;
    memories.precision(0);
    memories << std::fixed << first << " MB after a tenth, " << last << " MB at the end";
    row("forms: memory", std::to_string(static_cast<int>(seconds)) + " s", steady, memories.str());
    return held && everywhere && steady ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    std::signal(SIGALRM, standsStill);
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(tellLast);
#endif
    try {
        return soakFor(optionsOf(argc, argv));
    } catch (const std::exception& error) {
        std::cerr << "soak_forms: " << error.what() << '\n';
        return 2;
    }
}
