#include "melvora/turns.h"

#include "melvora/database.h"

namespace melvora {

namespace {

constexpr std::chrono::milliseconds pause{50};
constexpr qint64 longestSlice = 30;  // milliseconds

}  // namespace

Turns::Turns() {
    timer_.setInterval(pause);
    connect(&timer_, &QTimer::timeout, this, &Turns::goOn);
}

void Turns::run(Operation operation, End end) {
    Turn turn{std::move(operation), std::move(end), {}};
    turn.since.start();
    if (waiting_.empty() && ended(turn)) return;
    waiting_.push_back(std::move(turn));
    timer_.start();
}

void Turns::goOn() {
    QElapsedTimer slice;
    slice.start();
    while (!waiting_.empty() && slice.elapsed() < longestSlice) {
        Turn turn = std::move(waiting_.front());
        waiting_.pop_front();
        if (ended(turn)) continue;
        waiting_.push_front(std::move(turn));
        return;
    }
    if (waiting_.empty()) timer_.stop();
}

/// False when it has to wait.
bool Turns::ended(const Turn& turn) {
    try {
        turn.operation();
    } catch (const StoreBusy& held) {
        if (!turn.since.hasExpired(patience.count())) return false;
        turn.end(&held);
        return true;
    } catch (const std::exception& fault) {
        turn.end(&fault);
        return true;
    }
    turn.end(nullptr);
    return true;
}

}  // namespace melvora
