#include "zepha9/lazy_output.h"

#include "synth/loader.h"
#include "zepha9/silent_output.h"

#include <stdexcept>
#include <utility>

namespace zepha9 {

sound::MidiOutput& LazyOutput::real() {
    if (!real_) load();
    return *real_;
}

void LazyOutput::open(int id) {
    if (problem() == sound::SoundProblem::NoLibrary) load();
    real().open(id);
}

void LazyOutput::load() {
    try {
        real_ = synth::loadSynthOutput(post_);
    } catch (const std::runtime_error& fault) {
        if (const auto tell = std::exchange(missing_, nullptr)) tell(fault.what());
        real_ = std::make_unique<SilentOutput>();
    }
    real_->queueEmpty = [this] {
        if (queueEmpty) queueEmpty();
    };
    told_ = real_->problemChanged.connect([this] { problemChanged(); });
    known_ = real_->fitnessKnown.connect([this] { fitnessKnown(); });
}

}  // namespace zepha9
