#pragma once
#include <QByteArray>
#include <QObject>
#include <QWidget>

#include <functional>

namespace suite {

/// Remembers where a window was: opens it there the first time that it is shown, as far as the
/// screens of today have that place, and keeps the place whenever it is hidden.
class WindowPlace final : public QObject {
  public:
    using Read = std::function<QByteArray()>;
    using Keep = std::function<void(const QByteArray& place)>;

    /// Lives as long as the window. @param read the place that was kept, empty when there is none
    WindowPlace(QWidget* window, const Read& read, Keep keep);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* window_;
    QByteArray place_;
    Keep keep_;
};

}  // namespace suite
