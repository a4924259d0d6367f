#include "worksheets/kept_training.h"

#include "base/runtime_error.h"
#include "core/formnamen.h"
#include "core/fortsetzung.h"

namespace worksheets {

namespace {

/// In place of a state: there is nothing to continue.
const core::Value::Array none{"False"};

}  // namespace

void KeptTraining::resume() {
    if (!p.host.LeseAbbruch("A" + core::satz(z)))
        throw base::RuntimeError(base::ErrorNumber::InvalidCall, "saved training: not there");
    run_.resume(z.gelesen_a);
}

void KeptTraining::keep() { offer(store(), z.uebungsmodus); }

/// What an older training left is taken back first: whatever fails in between, settings and state
/// that do not belong together are never offered. @return whether both were stored.
bool KeptTraining::store() {
    z.abbruch_stand = run_.save();
    const std::string record = core::satz(z);
    return p.host.HostSichern("A" + record, none) &&
           p.host.HostSichern("E" + record, z.gelesen_e) &&
           p.host.HostSichern("A" + record, z.abbruch_stand);
}

void KeptTraining::discard() {
    p.host.HostSichern("A" + core::satz(z), none);
    withdraw();
}

void KeptTraining::offer(bool available, int mode) {
    core::offerContinuation(p, core::setUpForm(z.theoriewahl), available, mode);
}

}  // namespace worksheets
