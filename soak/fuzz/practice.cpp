#include "soak/fuzz/practice.h"

#include "sim/writer.h"
#include "soak/fuzz/law.h"

#include <cstdlib>

namespace soak {

namespace {

/// Where result records go.
std::string folder() {
    const char* given = std::getenv("TMPDIR");
    return given ? given : "/tmp";
}

}  // namespace

Practice::Practice(rehearsal::MemoryHost& host, const std::string& exercise)
    : support::Practice({.host = &host, .call = {.tempOrdner = folder(), .pruefEdit = true}},
                        {exercise.ends_with('b'), exercise.starts_with('4') ? 4 : 1}),
      writes_(exercise.starts_with('4')) {
    law(setUp().visible(), "the set-up form is open");
}

void Practice::expectInRange() const {
    const auto within = [](int v, int most) { return v >= 0 && v <= most; };
    law(within(z.skal_typ, 6) && within(z.richtung, 2) && within(z.final, 2), "scales");
    law(within(z.tempoIdx, 9) && within(z.stimmung, 2) && within(z.oktAnz, 3), "sound");
    law(within(z.abfrage, 1) && within(z.abfolge, 1) && within(z.ska_ausw, 1), "course");
    law(within(z.uebungsmodus, 4) && within(z.frequenz, 1) && within(z.an_zeig, 1), "mode");
    law(z.FrquMinAkt >= 36 && z.FrquMaxAkt <= 96 && z.FrquMinAkt < z.FrquMaxAkt, "range");
}

/// Until a task can be answered.
void Practice::await() {
    loop.advance(100);
    for (int second = 0; second < 60 && !ready(); ++second) loop.advance(1000);
}

/// Once wrong, if wanted, then right; what is written stays wrong until the task is closed.
void Practice::answer(bool right) {
    bool closed = false;
    const form::Connection turns = sheet().turn.connect([&](worksheets::Worksheet::Turn turn) {
        closed = closed || turn == worksheets::Worksheet::Turn::Closed;
    });
    const bool open = ready();
    if (!writes_ && !right) answerWrong();
    if (!writes_) answerRight();
    for (int tries = 0; writes_ && open && !closed && tries < 10; ++tries) {
        sim::writeScale(sheet(), right ? sim::Writing::Right : sim::Writing::Wrong, chance_);
        // The same once more cannot be handed in.
        if (on<form::Button>("cmdOK").usable()) on<form::Button>("cmdOK").click();
        loop.advance(10);
    }
    loop.advance(100);
    law(closed == open, "a task that is answered is closed");
}

bool Practice::run(bool keep) {
    if (!button("cmdOK").usable()) return false;
    begin();
    loop.advance(1000);
    const auto shown = [this](const std::string& name) {
        return loaded(name) && form(name).visible();
    };
    if (!running()) {
        law(shown(setup_) || shown("grd_einst"), "after a failure there is a way on");
        return false;
    }
    const bool training = z.uebungsmodus == 1 || z.uebungsmodus == 2;
    law(!training ||
            weights().size() == static_cast<std::size_t>(int(exerciseRun().pool().potSkala())),
        "each scale has one weight");
    for (const bool right : {false, true}) {
        if (z.abfrage == 0) on<form::Button>("CmdNextAufg").click();
        await();
        answer(right);
        law(exerciseRun().pool().matbox_zahl() >= 0, "weights");
    }
    const bool closed = exerciseRun().standing().schalter_frei;
    leave(keep);
    law(!running() && shown(setup_), "the worksheet can be left");
    return closed;
}

}  // namespace soak
