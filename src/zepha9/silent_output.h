#pragma once
#include "sound/null_output.h"

#include <QTimer>

#include <algorithm>

namespace zepha9 {

/// Plays to nothing where the sound library is missing: a queue ends when it would have ended.
class SilentOutput final : public sound::NullOutput {
  public:
    SilentOutput() {
        end_.setSingleShot(true);
        QObject::connect(&end_, &QTimer::timeout, &end_, [this] {
            if (queueEmpty) queueEmpty();
        });
    }

    void queue(const sound::MidiEvent& event) override { length_ = std::max(length_, event.time); }
    void start() override { end_.start(length_); }
    void stop() override {
        end_.stop();
        length_ = 0;
    }
    sound::SoundProblem problem() const override { return sound::SoundProblem::NoLibrary; }

  private:
    QTimer end_;
    std::int32_t length_ = 0;  ///< of the queue, milliseconds
};

}  // namespace zepha9
