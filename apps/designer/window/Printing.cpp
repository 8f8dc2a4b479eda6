#include "window/Printing.h"

#include "window/Pictures.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <algorithm>

namespace designer {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kPreviewDpi = 200.0; ///< that a screen, which shows it smaller, still draws smoothly
constexpr QSize kPreviewSize{960, 720};

/// A page that lies as the chart does.
void Prepare(QPrinter& printer, const millichart::LaidOutChart& chart, const QString& title) {
    const penlode::SizeF size = PageSizeOf(chart);
    printer.setDocName(title);
    printer.setPageOrientation(size.Width > size.Height ? QPageLayout::Landscape : QPageLayout::Portrait);
}

} // namespace

void PrintChart(QPrinter& printer, const millichart::LaidOutChart& chart, double maxDpi) {
    const penlode::SizeF size = PageSizeOf(chart);
    const double perMillimetre = printer.resolution() / kMillimetresPerInch;
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    const QSizeF whole(static_cast<double>(size.Width) * perMillimetre,
                       static_cast<double>(size.Height) * perMillimetre);
    const double scale = std::min({1.0, page.width() / whole.width(), page.height() / whole.height()});
    const QSizeF shown = whole * scale;
    const QRectF place((page.width() - shown.width()) / 2.0, (page.height() - shown.height()) / 2.0,
                       shown.width(), shown.height());
    QPainter painter(&printer);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place,
                      ImageOf(chart, std::min(maxDpi, static_cast<double>(printer.resolution())) * scale));
}

void PreviewPrint(const millichart::LaidOutChart& chart, const QString& title, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    Prepare(printer, chart, title);
    QPrintPreviewDialog dialog(&printer, parent);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, parent,
                     [&chart](QPrinter* asked) { PrintChart(*asked, chart, kPreviewDpi); });
    dialog.resize(kPreviewSize);
    dialog.exec();
}

void Print(const millichart::LaidOutChart& chart, const QString& title, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    Prepare(printer, chart, title);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() == QDialog::Accepted) {
        PrintChart(printer, chart);
    }
}

} // namespace designer
