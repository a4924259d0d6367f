#pragma once
#include "base/colour.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace qt {

/// Shows a picture of notes as large as it fits, sharp at the screen's scale, and can be clicked.
class PictureWidget final : public QWidget {
  public:
    explicit PictureWidget(QWidget* parent = nullptr);
    void setPicture(int number);
    void setColour(const QColor& colour);
    std::function<void()> clicked;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    const QImage& drawn();

    int number_ = -1;
    QColor colour_ = Qt::white;
    QImage drawn_;
};

}  // namespace qt
