#pragma once
#include <QApplication>

#include <functional>

namespace suite {

/// The application of a program, with a last net under its event loop: what an event handler
/// throws and nobody catches is told here, instead of ending the program without a word.
class Application final : public QApplication {
  public:
    using QApplication::QApplication;

    /// Told what was thrown. It may end the program; else the program goes on.
    std::function<void(const std::exception& fault)> uncaught;

    bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace suite
