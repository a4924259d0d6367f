#pragma once
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <deque>
#include <exception>
#include <functional>

namespace melvora {

/// Operations on the store, one after the other. Where another program holds the store, the first
/// is tried again from time to time and the others wait behind it, and the event loop goes on.
class Turns : public QObject {
    Q_OBJECT
  public:
    /// Does all its work in the store before anything else, since it is begun anew after a
    /// StoreBusy.
    using Operation = std::function<void()>;
    /// Hears once how the operation ended. @param fault what it threw, nullptr when all went well
    using End = std::function<void(const std::exception* fault)>;

    /// After so long an operation that waits is given up: StoreBusy.
    static constexpr std::chrono::milliseconds patience{2000};

    Turns();

    /// Runs the operation now, when none waits and the store is free, else in its turn.
    void run(Operation operation, End end);

  private:
    struct Turn {
        Operation operation;
        End end;
        QElapsedTimer since;
    };
    static bool ended(const Turn& turn);
    void goOn();

    std::deque<Turn> waiting_;
    QTimer timer_;
};

}  // namespace melvora
