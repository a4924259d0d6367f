#pragma once
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include <functional>

namespace melvora {

/// A line across the window that says what happened, until it is closed, with a button that leads
/// to where it belongs. Blocks nothing. Shows the first 300 characters.
class NoticeBar final : public QFrame {
    Q_OBJECT
  public:
    /// A way on. Without a text there is none.
    struct Way {
        QString text;
        std::function<void()> go;
    };

    explicit NoticeBar(QWidget* parent = nullptr);
    void show(const QString& text, const Way& way = {});
    void setCloseText(const QString& text);

  private:
    QLabel* text_;
    QPushButton* way_;
    QToolButton* close_;
    std::function<void()> go_;
};

}  // namespace melvora
