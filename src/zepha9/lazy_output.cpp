#include "zepha9/lazy_output.h"

#include "base/runtime_error.h"
#include "synth/loader.h"

namespace zepha9 {

sound::MidiOutput& LazyOutput::real() {
    if (real_) return *real_;
    try {
        real_ = synth::loadSynthOutput(post_);
    } catch (const std::runtime_error& fault) {
        throw base::RuntimeError(base::ErrorNumber::DeviceIo, fault.what());
    }
    real_->queueEmpty = [this] {
        if (queueEmpty) queueEmpty();
    };
    real_->problemChanged = [this] {
        if (problemChanged) problemChanged();
    };
    return *real_;
}

}  // namespace zepha9
