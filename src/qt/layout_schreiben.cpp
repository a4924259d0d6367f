// The worksheets on which a scale is written.
#include "qt/staff_widget.h"
#include "qt/windows.h"
#include "qt/worksheet_page.h"
#include "suite/look.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace qt {

namespace {

/// Shows the palette's signs as large as those on the staff. Both share the room of one area: what
/// they get follows from the area alone, so that neither chases the other.
class SameScale final : public QObject {
  public:
    SameScale(QWidget& area, StaffWidget& staff, std::vector<StaffWidget*> signs)
        : QObject(&area), area_(area), staff_(staff), signs_(std::move(signs)) {
        area.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Resize && event->type() != QEvent::LayoutRequest) return false;
        const auto heightOf = [](const StaffWidget& shown) { return shown.sizeHint().height(); };
        const StaffWidget& sign = *signs_.front();
        const int others = area_.layout()->sizeHint().height() - heightOf(staff_) - heightOf(sign);
        const double staffHeight = staff_.canvas().bounds().height;
        const double share = staffHeight / (staffHeight + sign.canvas().bounds().height);
        const QSizeF room(area_.width(), (area_.height() - others) * share);
        const double scale = staff_.scaleIn(room);
        for (StaffWidget* shown : signs_) {
            shown->askForScale(scale);
            for (QWidget* w = shown->parentWidget(); w != &area_; w = w->parentWidget())
                w->layout()->activate();  // the area's turn is next
        }
        return false;
    }

  private:
    QWidget& area_;
    StaffWidget& staff_;
    std::vector<StaffWidget*> signs_;
};

/// The five fields with their keys, in their coloured frames.
QWidget* palette(Binder& bind, std::vector<StaffWidget*>& signs) {
    QWidget* frame = bind("pbNoten");
    auto* fields = new QHBoxLayout(frame);
    fields->setContentsMargins(suite::gap, suite::gap, suite::gap, suite::gap);
    fields->setSpacing(suite::gap);
    for (int i = 0; bind.has("NotP", i); ++i) {
        auto* number = new QLabel(QString::number(i + 1));
        suite::font(*number, 0.9, QFont::Bold);
        fields->addWidget(number);
        QWidget* field = bind("grdnot", i);
        auto* inside = new QHBoxLayout(field);
        inside->setContentsMargins(4, 4, 4, 4);
        signs.push_back(static_cast<StaffWidget*>(bind("NotP", i)));
        inside->addWidget(signs.back());
        fields->addWidget(field);
    }
    frame->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    return frame;
}

QWidget* writingArea(Binder& bind, std::vector<QWidget*>& steps) {
    QWidget* area = bind("PicArb2");
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(suite::margin);
    auto* tools = new QHBoxLayout;
    std::vector<StaffWidget*> signs;
    tools->addWidget(palette(bind, signs));
    tools->addStretch();
    QWidget* hand = bind("cmdOK");
    hand->setMinimumSize(static_cast<int>(130 * suite::scale()), 48);
    suite::font(*hand, 1.15, QFont::Bold);
    tools->addWidget(hand, 0, Qt::AlignTop);
    column->addLayout(tools);
    auto* staff = static_cast<StaffWidget*>(bind("PicBNot"));
    column->addWidget(staff, 1);
    new SameScale(*area, *staff, std::move(signs));
    steps = {staff, hand};
    QWidget* hint = bind("HinweisMeldung");
    hint->setFixedHeight(12 * hint->fontMetrics().lineSpacing());
    // The staff stays where it is when the hint goes.
    QSizePolicy keeps = hint->sizePolicy();
    keeps.setRetainSizeWhenHidden(true);
    hint->setSizePolicy(keeps);
    column->addWidget(hint);
    return area;
}

}  // namespace

void layoutSchreiben(FormWindow& window) {
    std::vector<QWidget*> steps;
    QWidget* area = writingArea(window.binder(), steps);
    worksheetPage(window, area, steps);
}

}  // namespace qt
