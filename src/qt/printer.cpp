#include "qt/printer.h"

#include "qt/bar_widget.h"

#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace qt {

namespace {

/// Puts the labels and bars of a widget on paper, in the printer's own units: text as text, bars as
/// lines, nothing grey or coloured.
class Page {
  public:
    Page(QPainter& painter, const QWidget& widget, double scale)
        : painter_(painter), widget_(widget), scale_(scale) {
        painter_.setPen(QPen(Qt::black, 0.5 * scale_));
    }

    void print() {
        for (const QLabel* label : widget_.findChildren<QLabel*>())
            if (label->isVisibleTo(&widget_)) text(*label);
        for (const BarWidget* bar : widget_.findChildren<BarWidget*>())
            if (bar->isVisibleTo(&widget_)) outline(*bar);
    }

  private:
    QRectF place(const QWidget& child) const {
        const QRectF at(child.mapTo(&widget_, QPoint()), child.size());
        return {at.topLeft() * scale_, at.size() * scale_};
    }

    void text(const QLabel& label) {
        QFont font = label.font();
        font.setPixelSize(std::max(1, static_cast<int>(QFontInfo(font).pixelSize() * scale_)));
        painter_.setFont(font);
        const int wrap = label.wordWrap() ? int(Qt::TextWordWrap) : int(Qt::TextSingleLine);
        painter_.drawText(place(label),
                          static_cast<int>(label.alignment()) | wrap | Qt::TextDontClip,
                          label.text());
    }

    /// The whole, and in it the part that was reached.
    void outline(const BarWidget& bar) {
        QRectF whole = place(bar);
        painter_.drawRect(whole);
        if (bar.percent() == 0) return;
        whole.adjust(2 * scale_, 2 * scale_, -2 * scale_, -2 * scale_);
        whole.setWidth(whole.width() * bar.percent() / 100);
        painter_.drawRect(whole);
    }

    QPainter& painter_;
    const QWidget& widget_;
    double scale_;
};

}  // namespace

void printWidget(QWidget& widget, const std::string& pdf) {
    QPrinter printer(QPrinter::HighResolution);
    if (!pdf.empty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(pdf));
    } else if (QPrinterInfo::defaultPrinter().isNull()) {
        throw form::PrintFault("");
    }
    printer.setPageOrientation(QPageLayout::Landscape);
    QPainter painter;
    if (!painter.begin(&printer))
        throw form::PrintFault(pdf.empty() ? printer.printerName().toStdString() : pdf);
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const double scale = std::min(page.width() / widget.width(), page.height() / widget.height());
    painter.translate((page.width() - widget.width() * scale) / 2, 0);
    Page(painter, widget, scale).print();
    if (!painter.end()) throw form::PrintFault(printer.printerName().toStdString());
}

void QtPrinter::print(form::Form& form) {
    QWidget* paper = paperOf_(form);
    if (!paper) return;
    // MELVORA_PRINT_FILE stands for a printer where there is none.
    printWidget(*paper, qEnvironmentVariable("MELVORA_PRINT_FILE").toStdString());
}

}  // namespace qt
