// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/printing.h"

#include "platform/report/print_service.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTextDocument>

#include <memory>

namespace help {

namespace {

using report::Outcome;

bool writePdf(QTextBrowser& page, const QPrinter& chosen, const QString& file)
{
    QPrinter pdf;
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(file);
    pdf.setPageLayout(chosen.pageLayout());
    pdf.setDocName(chosen.docName());
    const std::unique_ptr<QTextDocument> copy(page.document()->clone(&page)); // which knows the pictures
    copy->setDefaultFont(QApplication::font());
    copy->print(&pdf);
    return pdf.printerState() != QPrinter::Error && QFileInfo(file).size() > 0;
}

} // namespace

Outcome print(QTextBrowser& page, QWidget* window)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        return Outcome::Failed;
    QPrinter printer;
    printer.setDocName(page.documentTitle());
    QPrintDialog dialog(&printer, window);
    dialog.setObjectName(QStringLiteral("helpPrintDialog"));
    dialog.setOptions(QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize
        | QAbstractPrintDialog::PrintToFile);
    if (dialog.exec() != QDialog::Accepted)
        return Outcome::Cancelled;
    return printTo(printer, page);
}

Outcome printTo(const QPrinter& chosen, QTextBrowser& page)
{
    const QTemporaryDir folder;
    const bool toFile = !chosen.outputFileName().isEmpty();
    const QString file = toFile ? chosen.outputFileName() : folder.filePath(QStringLiteral("help.pdf"));
    if (!writePdf(page, chosen, file))
        return Outcome::Failed;
    return toFile || report::handOver(chosen, file) ? Outcome::Done : Outcome::Failed;
}

} // namespace help
