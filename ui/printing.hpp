#pragma once
// The image of a window on paper: to the default printer with nothing asked,
// or, on a machine with no printer at all, to a PDF in the documents folder.
#include <QDate>
#include <QImage>
#include <QString>

namespace bm::ui {

struct PrintOutcome {
    enum class Where { Printer, Pdf, Failed };
    Where where = Where::Failed;
    QString target;  // the printer's name or the PDF's path
};

struct PrintSettings {
    bool forcePdf = false;  // a PDF even when there is a printer
    QString pdfDirectory;   // empty: the user's documents folder
    QDate date;             // invalid: today
};

// "frmEH 2026-11-21.pdf", or with " (2)", " (3)", ... when that file exists already.
QString PdfFileFor(const QString& directory, const QString& windowName, const QDate& date);

PrintOutcome PrintImage(const QImage& image, const QString& windowName, const PrintSettings& settings);

}  // namespace bm::ui
