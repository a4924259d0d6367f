#include "sim/options.h"

#include "sim/number.h"
#include "sim/usage_error.h"

#include <limits>

namespace sim {

namespace {

constexpr int mostTasks = 100'000;

}  // namespace

const char* const helpText = R"(zepha9-sim: the drill without a screen, with a simulated learner

  --form NAME          worksheet: arbeitsblatt1 (default), arbeitsblatt4 (a heard scale is written),
                       arbeitsblatt1b, arbeitsblatt4b (music theory: named, written)
  --set FIELD=VALUE    a field of the exercise, for example skal_typ=0, richtung=2, uebungsmodus=1,
                       einzel_wahl=1,-1,2,-2 (chosen scales, negative for descending)
  --tasks N            leave a run after N tasks, at most 100,000; 0 (default): it ends by itself
  --runs N             runs, one after the other (default 1)
  --seed N             the same seed gives the same runs (default 1)
  --learner KIND       perfect (default), wrong, random:P (right with chance P), confuse:A:B (takes
                       scale A for B and B for A, from 0), slow:SECONDS (right, but late), enharmonic
                       (writes what sounds alike)
  --keep               a training that is left is saved, and the next run continues it
  --bare               mass runs without forms, sound, clock and record: the same tasks and answers,
                       several times as fast; not with --trace, --record, --words, --through-setup
  --through-setup      take the whole road: start form, set-up form, worksheet, result form
  --words FILE         words of a language (.ts); without it a word tells its number
  --trace FILE         everything that happens, as JSON lines; "-" for standard output
  --record FILE        a copy of the last run's record
  --help               this text

Exit status: 0; 1 when the drill met an error; 2 for a wrong command line.
)";

Options parseOptions(std::span<const char* const> arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string option = arguments[i];
        const auto value = [&]() -> std::string {
            if (++i == arguments.size()) throw UsageError(option + " needs a value");
            return arguments[i];
        };
        const auto count = [&](int least) {
            return static_cast<int>(
                wholeNumber(option, value(), least, std::numeric_limits<int>::max()));
        };
        if (option == "--help") {
            options.help = true;
        } else if (option == "--form") {
            options.form = value();
        } else if (option == "--set") {
            const std::string text = value();
            const auto equals = text.find('=');
            if (equals == std::string::npos)
                throw UsageError("--set " + text + ": field=value is wanted");
            options.assignments.push_back({text.substr(0, equals), text.substr(equals + 1)});
        } else if (option == "--tasks") {
            options.tasks = count(0);
        } else if (option == "--runs") {
            options.runs = count(1);
        } else if (option == "--seed") {
            using Limits = std::numeric_limits<std::int64_t>;
            options.seed = wholeNumber(option, value(), Limits::min(), Limits::max());
        } else if (option == "--learner") {
            options.learner = Learner(value());
        } else if (option == "--trace") {
            options.trace = value();
        } else if (option == "--record") {
            options.record = value();
        } else if (option == "--words") {
            options.words = value();
        } else if (option == "--keep") {
            options.keep = true;
        } else if (option == "--bare") {
            options.bare = true;
        } else if (option == "--through-setup") {
            options.throughSetup = true;
        } else {
            throw UsageError("no option " + option + "; see --help");
        }
    }
    if (options.tasks > mostTasks && !options.bare)
        throw UsageError("--tasks: at most " + std::to_string(mostTasks) +
                         ", since a run keeps its whole record in memory; use --runs or --bare");
    return options;
}

core::Zustand exerciseState(const Options& options) {
    core::Zustand z = exerciseState(exercise(options.form), options.assignments);
    if (z.uebungsmodus == core::modus::ausprobieren && options.tasks == 0)
        throw UsageError("uebungsmodus 0 does not end by itself: --tasks is needed");
    return z;
}

}  // namespace sim
