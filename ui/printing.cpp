#include "ui/printing.hpp"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

namespace bm::ui {

namespace {

// The window at its size on the screen, shrunk only when the page is smaller,
// in the top-left corner of the printable area.
bool PaintPage(QPrinter& printer, const QImage& image) {
    QPainter p;
    if (!p.begin(&printer)) return false;
    const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
    const double perScreenPixel = printer.resolution() / 96.0;
    QSizeF size(image.width() * perScreenPixel, image.height() * perScreenPixel);
    if (size.width() > page.width() || size.height() > page.height())
        size.scale(QSizeF(page.size()), Qt::KeepAspectRatio);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(QRectF(QPointF(0, 0), size), image);
    return p.end();
}

QString SafeFileName(const QString& name) {
    QString s;
    for (QChar c : name) s += (c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_')) ? c : QLatin1Char('_');
    return s.isEmpty() ? QStringLiteral("finestra") : s;
}

}  // namespace

QString PdfFileFor(const QString& directory, const QString& windowName, const QDate& date) {
    const QString stem = SafeFileName(windowName) + QLatin1Char(' ') + date.toString(Qt::ISODate);
    QString path = QDir(directory).filePath(stem + QStringLiteral(".pdf"));
    for (int n = 2; QFileInfo::exists(path); ++n)
        path = QDir(directory).filePath(stem + QStringLiteral(" (%1).pdf").arg(n));
    return path;
}

PrintOutcome PrintImage(const QImage& image, const QString& windowName, const PrintSettings& settings) {
    PrintOutcome outcome;
    const QList<QPrinterInfo> printers = QPrinterInfo::availablePrinters();
    if (!settings.forcePdf && !printers.isEmpty()) {
        QPrinterInfo target = QPrinterInfo::defaultPrinter();
        if (target.isNull()) target = printers.first();
        QPrinter printer(target, QPrinter::HighResolution);
        printer.setColorMode(QPrinter::Color);
        printer.setDocName(windowName);
        printer.setPageOrientation(image.width() > image.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
        if (PaintPage(printer, image)) {
            outcome.where = PrintOutcome::Where::Printer;
            outcome.target = target.printerName();
        }
        return outcome;
    }
    QString dir = settings.pdfDirectory;
    if (dir.isEmpty()) dir = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (dir.isEmpty()) dir = QDir::homePath();
    QDir().mkpath(dir);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(PdfFileFor(dir, windowName, settings.date.isValid() ? settings.date : QDate::currentDate()));
    printer.setColorMode(QPrinter::Color);
    printer.setDocName(windowName);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(image.width() > image.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (PaintPage(printer, image)) {
        outcome.where = PrintOutcome::Where::Pdf;
        outcome.target = printer.outputFileName();
    }
    return outcome;
}

}  // namespace bm::ui
