#pragma once
#include "form/signal.h"
#include "staff/canvas.h"
#include "suite/look.h"

#include <QPixmap>
#include <QWidget>

#include <vector>

namespace qt {

/// Shows a drawn canvas with the canvases that it holds, as large as sensible and in the middle,
/// sharp at the screen's scale. The user may drag its picture away, drop such a picture on it and
/// write on it by keys; positions are told in the pixels of the canvas.
class StaffWidget final : public QWidget {
  public:
    explicit StaffWidget(staff::Canvas& canvas, QWidget* parent = nullptr);

    staff::Canvas& canvas() const { return canvas_; }
    /// Enter writes here now.
    bool takesEnter() const { return canvas_.takesEnter && canvas_.takesEnter(); }
    /// Logical pixels of the screen to one of the canvas.
    double scale() const;
    /// The same where the canvas has that much room.
    double scaleIn(QSizeF room) const;
    /// Asks for room to show the canvas at this scale, rather than at that of the texts.
    void askForScale(double scale);
    /// Where a point of a canvas shown here lies in this widget.
    QPointF placeOf(const staff::Canvas& canvas, QPointF point) const;

    /// A drag is over this widget: it enters and leaves the canvas that is seen, not the room
    /// around it. @return whether a drop here would be taken.
    bool dragTo(const form::Control& source, QPointF position);
    /// It ends here with a drop. @return whether there was a canvas to drop on.
    bool dropAt(const form::Control& source, QPointF position);
    /// It ends elsewhere, or has left.
    void dragAway();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void canvasChanged(form::Aspect aspect);
    const QPixmap& drawn();
    void paintMark(QPainter& painter) const;
    QPointF origin() const;
    /// The visible canvas inside this one that takes drops; nullptr for none.
    staff::Canvas* target() const;
    bool within(const staff::Canvas& canvas, QPointF position) const;
    staff::Drag dragAt(const form::Control& source, QPointF position) const;

    staff::Canvas& canvas_;
    std::vector<staff::Canvas*> held_;
    std::vector<form::Connection> connections_;
    QPixmap drawn_;
    double askedScale_ = suite::scale();
    staff::Rect size_;
    QPoint pressed_;
    staff::Canvas* entered_ = nullptr;
    const form::Control* source_ = nullptr;
};

}  // namespace qt
