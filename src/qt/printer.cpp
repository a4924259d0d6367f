#include "qt/printer.h"

#include "base/environment.h"
#include "qt/bar_widget.h"

#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <vector>

namespace qt {

namespace {

/// The labels and bars of a widget on paper, in the printer's own units: text as text, bars as
/// lines, nothing grey or coloured.
class Page {
  public:
    explicit Page(const QWidget& widget) {
        for (const QWidget* child : widget.findChildren<QWidget*>()) {
            if (!child->isVisibleTo(&widget)) continue;
            const QRect place(child->mapTo(&widget, QPoint()), child->size());
            if (const auto* label = qobject_cast<const QLabel*>(child))
                texts_.push_back({label, place});
            else if (const auto* bar = dynamic_cast<const BarWidget*>(child))
                bars_.push_back({bar, place});
            else
                continue;
            extent_ |= place;
        }
    }

    /// As large as the paper allows, in its upper middle.
    void print(QPainter& painter, const QRectF& paper) {
        scale_ = std::min(paper.width() / extent_.width(), paper.height() / extent_.height());
        painter.translate((paper.width() - extent_.width() * scale_) / 2, 0);
        painter.setPen(QPen(Qt::black, 0.5 * scale_));
        for (const auto& [label, place] : texts_) text(painter, *label, onPaper(place));
        for (const auto& [bar, place] : bars_) outline(painter, *bar, onPaper(place));
    }

  private:
    template <class W>
    struct Item {
        const W* widget;
        QRect place;
    };

    QRectF onPaper(const QRect& place) const {
        return {QPointF(place.topLeft() - extent_.topLeft()) * scale_,
                QSizeF(place.size()) * scale_};
    }

    void text(QPainter& painter, const QLabel& label, const QRectF& place) const {
        QFont font = label.font();
        font.setPixelSize(std::max(1, static_cast<int>(QFontInfo(font).pixelSize() * scale_)));
        painter.setFont(font);
        const int wrap = label.wordWrap() ? int(Qt::TextWordWrap) : int(Qt::TextSingleLine);
        painter.drawText(place, static_cast<int>(label.alignment()) | wrap | Qt::TextDontClip,
                         label.text());
    }

    /// The whole, and in it the part that was reached.
    void outline(QPainter& painter, const BarWidget& bar, QRectF whole) const {
        painter.drawRect(whole);
        if (bar.percent() == 0) return;
        whole.adjust(2 * scale_, 2 * scale_, -2 * scale_, -2 * scale_);
        whole.setWidth(whole.width() * bar.percent() / 100);
        painter.drawRect(whole);
    }

    std::vector<Item<QLabel>> texts_;
    std::vector<Item<BarWidget>> bars_;
    QRect extent_;
    double scale_ = 1;
};

}  // namespace

void printWidget(const QWidget& widget, const std::string& pdf) {
    QPrinter printer(QPrinter::HighResolution);
    if (!pdf.empty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(pdf));
    } else if (QPrinterInfo::defaultPrinter().isNull()) {
        throw form::PrintFault("");
    }
    const std::string target = pdf.empty() ? printer.printerName().toStdString() : pdf;
    printer.setPageOrientation(QPageLayout::Landscape);
    QPainter painter;
    if (!painter.begin(&printer)) throw form::PrintFault(target);
    Page(widget).print(painter, printer.pageRect(QPrinter::DevicePixel));
    if (!painter.end()) throw form::PrintFault(target);
}

void QtPrinter::print(form::Form& form) {
    QWidget* paper = paperOf_(form);
    if (!paper) return;
    // MELVORA_PRINT_FILE stands for a printer where there is none.
    printWidget(*paper, base::environment("MELVORA_PRINT_FILE"));
}

}  // namespace qt
