#pragma once
#include <QFrame>
#include <QLabel>
#include <QToolButton>

namespace melvora {

/// A line across the window that says what happened, until it is closed. Blocks nothing. Shows the
/// first 300 characters; the whole is in the log.
class NoticeBar final : public QFrame {
    Q_OBJECT
  public:
    explicit NoticeBar(QWidget* parent = nullptr);
    void show(const QString& text);
    void setCloseText(const QString& text);

  private:
    QLabel* text_;
    QToolButton* close_;
};

}  // namespace melvora
