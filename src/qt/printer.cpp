#include "qt/printer.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QWidget>

#include <stdexcept>

namespace qt {

void printWidget(QWidget& widget, const std::string& pdf) {
    QPrinter printer(QPrinter::HighResolution);
    if (!pdf.empty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(pdf));
    } else if (QPrinterInfo::defaultPrinter().isNull()) {
        throw std::runtime_error(
            "no printer is set up; install and choose one in the system's settings (CUPS)");
    }
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Landscape);
    QPainter painter;
    if (!painter.begin(&printer))
        throw std::runtime_error("the printer " + printer.printerName().toStdString() +
                                 " does not answer");
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const double scale = std::min(page.width() / widget.width(), page.height() / widget.height());
    painter.translate((page.width() - widget.width() * scale) / 2, 0);
    painter.scale(scale, scale);
    widget.render(&painter, QPoint(), QRegion(),
                  QWidget::DrawWindowBackground | QWidget::DrawChildren);
}

void QtPrinter::print(form::Form& form) {
    QWidget* window = windowOf_(form);
    if (!window) return;
    // MELVORA_PRINT_FILE stands for a printer where there is none.
    printWidget(*window, qEnvironmentVariable("MELVORA_PRINT_FILE").toStdString());
}

}  // namespace qt
