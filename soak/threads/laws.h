#pragma once
#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <string>

namespace soak {

using Clock = std::chrono::steady_clock;

/// Milliseconds from `begin` to now.
inline std::int64_t since(Clock::time_point begin) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin).count();
}

/// What must hold; one row of the table each.
enum class Law { Ends, Silence, Problems, Files, Outputs, Races };

/// The largest of the values that it was shown.
class Most {
  public:
    void see(std::int64_t value) {
        for (auto old = most_.load(); value > old && !most_.compare_exchange_weak(old, value);) {
        }
    }
    std::int64_t value() const { return most_; }

  private:
    std::atomic<std::int64_t> most_{0};
};

/// Counts what happened and remembers which laws did not hold. From any thread of any process that
/// shares its memory.
class Laws {
  public:
    /// Tells on stderr what broke a law, and who saw it.
    void broken(Law law, const std::string& who, const std::string& what);
    bool held(Law law) const { return faults_.at(static_cast<std::size_t>(law)) == 0; }

    using Count = std::atomic<std::int64_t>;
    Count outputs{0}, openings{0}, queues{0}, told{0}, cut{0}, stops{0}, losses{0};
    Count problems{0}, connections{0}, messages{0}, checks{0}, heard{0}, files{0};
    Count cards{0}, cardsOpen{0}, races{0};
    Most late, slowestStop, slowestEnd;  ///< milliseconds
    Most memoryBefore, memoryAfter;      ///< kilobytes of one process

  private:
    std::array<Count, 6> faults_{};
};

/// What a thread is doing, for the watchdog.
class Progress {
  public:
    void doing(const char* what) {
        what_ = what;
        begun_ = Clock::now().time_since_epoch().count();
    }
    const char* what() const { return what_; }
    std::int64_t milliseconds() const {
        return since(Clock::time_point(Clock::duration(begun_.load())));
    }

  private:
    std::atomic<const char*> what_{"begins"};
    std::atomic<Clock::rep> begun_{Clock::now().time_since_epoch().count()};
};

}  // namespace soak
