// The two records of a saved training, as a host may give them back: the exercise in the first
// line, then the settings "E" and the state "A", as soak/fuzz/lines.h reads them.
#include "hostlink/variant.h"
#include "soak/fuzz/law.h"
#include "soak/fuzz/lines.h"
#include "soak/fuzz/practice.h"
#include "soak/fuzz/seeds.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace soak {

namespace {

using core::Value;

constexpr const char* exercises[] = {"1", "4", "1b", "4b"};

std::string keyOf(char kind, const std::string& exercise) {
    return std::string("zepha9/") + kind + exercise;
}

void tryTraining(std::string_view text) {
    Lines lines(text);
    const std::string_view named = lines.line();
    const auto* const known = std::ranges::find(exercises, named);
    const std::string exercise = known == std::end(exercises) ? "1" : *known;
    const Value settings = hostlink::fromVariant(lines.value()).value_or(Value()),
                state = hostlink::fromVariant(lines.value()).value_or(Value());

    rehearsal::MemoryHost host;
    host.records[keyOf('E', exercise)] = settings;
    host.records[keyOf('A', exercise)] = state;
    // Whether there is something to continue is asked for the records of ear training.
    if (exercise.ends_with('b'))
        for (const char kind : {'E', 'A'})
            host.records[keyOf(kind, exercise.substr(0, 1))] = Value::Array{"true", ""};
    const auto before = host.records;
    Practice pupil(host, exercise);
    pupil.mode(2);
    pupil.expectInRange();
    law(pupil.z.uebungsmodus == 1 || pupil.z.uebungsmodus == 2, "a training, new or continued");
    law(pupil.dialogs.messages.empty() && host.faults.empty(), "settings are taken silently");
    const bool kept = pupil.run(true);
    for (const Value& fault : host.faults)
        law(fault.at(0).text() == "zepha9.start_timer.arbeitsblatt" + exercise,
            "only a start may fail");
    host.records.erase(keyOf('L', exercise));  // the choices, kept when a run begins
    if (!host.faults.empty()) law(!kept && host.records == before, "what is refused stays");
    if (!kept) return;
    const Value& saved = host.records.at(keyOf('A', exercise));
    law(saved.at(0) == Value("true"), "what was left can be continued");
    law(saved.items().size() == 6 * pupil.weights().size() + 4, "length");
}

/// Trainings that were left, with all scales, chosen ones and melodies.
std::map<std::string, std::string> honest() {
    std::map<std::string, std::string> inputs;
    for (const std::string exercise : exercises)
        for (int choice = 0; choice < 3; ++choice) {
            rehearsal::MemoryHost host;
            Practice pupil(host, exercise);
            if (choice == 1) pupil.pick({1, -1, 2, -2});
            if (choice == 2) pupil.option("abfolge", 1).click();
            pupil.mode(1);
            if (!pupil.run(true)) continue;
            inputs[exercise + "-" + std::to_string(choice)] =
                exercise + "\n" + described(host.records.at(keyOf('E', exercise))) +
                described(host.records.at(keyOf('A', exercise)));
        }
    return inputs;
}

}  // namespace

}  // namespace soak

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    soak::onSeeds(*argc, *argv, soak::honest);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    soak::tryTraining({reinterpret_cast<const char*>(data), size});
    return 0;
}
