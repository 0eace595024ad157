// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/printing.h"

#include "platform/report/print_service.h"

#include <QApplication>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

#include <algorithm>
#include <memory>

namespace help {

namespace {

using report::Outcome;

constexpr double margins = 2 * 2 / 2.54; // inches that the toolkit leaves free on both sides of a page

// Paper has more dots than a display, and less room: the pictures are printed as they were made, in the size in which
// they are shown, or as wide as the page.
void fitPictures(QTextDocument& copy, QTextBrowser& page, const QPageLayout& paper)
{
    const double room = (paper.paintRect(QPageLayout::Inch).width() - margins) * page.logicalDpiX();
    for (QTextBlock block = copy.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QUrl name(part.fragment().charFormat().toImageFormat().name());
            if (name.isEmpty())
                continue;
            const auto shown = copy.resource(QTextDocument::ImageResource, name).value<QImage>();
            const QVariant file =
                page.QTextBrowser::loadResource(QTextDocument::ImageResource, page.source().resolved(name));
            QImage made = QImage::fromData(file.toByteArray());
            made.setDevicePixelRatio(made.width() / std::min(shown.deviceIndependentSize().width(), room));
            copy.addResource(QTextDocument::ImageResource, name, made);
        }
}

bool writePdf(QTextBrowser& page, const QPrinter& chosen, const QString& file)
{
    QPrinter pdf;
    pdf.setOutputFormat(QPrinter::PdfFormat);
    pdf.setOutputFileName(file);
    pdf.setPageLayout(chosen.pageLayout());
    pdf.setDocName(chosen.docName());
    const std::unique_ptr<QTextDocument> copy(page.document()->clone(&page)); // which knows the pictures
    copy->setDefaultFont(QApplication::font());
    fitPictures(*copy, page, chosen.pageLayout());
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
