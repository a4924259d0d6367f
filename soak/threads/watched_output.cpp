#include "threads/watched_output.h"

#include "threads/port.h"

#include <algorithm>
#include <utility>

namespace soak {

WatchedOutput::WatchedOutput(std::unique_ptr<sound::MidiOutput> real, Machine& machine,
                             std::string who, Pace pace)
    : machine_(machine),
      laws_(machine.laws()),
      who_(std::move(who)),
      pace_(pace),
      real_(std::move(real)) {
    ++laws_.outputs;
    real_->queueEmpty = [this] { ended(); };
    told_ = real_->problemChanged.connect([this] { changed(); });
}

WatchedOutput::~WatchedOutput() {
    cut();
    const auto begin = Clock::now();
    real_.reset();
    machine_.endOutput();
    laws_.slowestEnd.see(since(begin));
}

void WatchedOutput::open(int id) {
    cut();
    length_ = 0;
    ++laws_.openings;
    real_->open(id);
    machine_.hush();
    onPort_ = real_->volumeLeft() == 0;
}

void WatchedOutput::close() {
    cut();
    length_ = 0;
    real_->close();
    machine_.hush();
    onPort_ = false;
}

void WatchedOutput::queue(const sound::MidiEvent& event) {
    if (isOpen()) length_ = std::max(length_, event.time);
    real_->queue(event);
}

void WatchedOutput::start() {
    if (isOpen()) {
        cut();
        ++laws_.queues;
        due_ = Clock::now() + std::chrono::milliseconds(std::exchange(length_, 0));
        machine_.expectSound();
    }
    real_->start();
}

void WatchedOutput::stop() {
    cut();
    length_ = 0;
    ++laws_.stops;
    real_->stop();
    machine_.hush();
    if (!onPort_) return;
    mark_ = (mark_ + 1) % 128;
    real_->send({.status = Port::markStatus, .data1 = Port::markControl, .data2 = mark_});
}

void WatchedOutput::ended() {
    onDrillsThread(Law::Ends, "the end of a queue");
    if (!due_) return laws_.broken(Law::Ends, who_, "an end was told of no queue that plays");
    const auto early = *std::exchange(due_, std::nullopt) - Clock::now();
    if (early > (onPort_ ? pace_.port : pace_.builtIn))
        laws_.broken(Law::Ends, who_, "an end was told before its time");
    laws_.late.see(std::chrono::duration_cast<std::chrono::milliseconds>(-early).count());
    ++laws_.told;
    if (queueEmpty) queueEmpty();
}

void WatchedOutput::changed() {
    onDrillsThread(Law::Problems, "a problem");
    toldProblem_ = real_->problem();
    ++laws_.problems;
    if (toldProblem_ == sound::SoundProblem::DeviceLost) ++laws_.losses;
    problemChanged();
}

void WatchedOutput::cut() {
    if (std::exchange(due_, std::nullopt)) ++laws_.cut;
}

void WatchedOutput::onDrillsThread(Law law, const char* what) {
    if (std::this_thread::get_id() != thread_)
        laws_.broken(law, who_, std::string(what) + " was told on another thread");
}

}  // namespace soak
