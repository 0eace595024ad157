// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/printing.h"

#include "platform/report/print_dialog.h"
#include "platform/report/print_service.h"
#include "platform/report/whole_file.h"

#include <QApplication>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

#include <algorithm>
#include <memory>

namespace help {

namespace {

using report::Outcome;
using report::Printing;

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

// By the toolkit's writer and not by its printer, which would ask the print service before it writes to a file.
bool writePdf(QTextBrowser& page, const QPrinter& chosen, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QPdfWriter pdf(&file);
    pdf.setResolution(page.logicalDpiX());
    pdf.setPageLayout(chosen.pageLayout());
    pdf.setTitle(chosen.docName());
    pdf.setCreator(QApplication::applicationName());
    const std::unique_ptr<QTextDocument> copy(page.document()->clone(&page)); // which knows the pictures
    copy->setDefaultFont(QApplication::font());
    fitPictures(*copy, page, chosen.pageLayout());
    copy->print(&pdf);
    return report::commitWhole(file);
}

} // namespace

Printing print(QTextBrowser& page, QWidget* window)
{
    if (const Outcome found = report::findPrinters(window); found != Outcome::Done)
        return {found};
    QPrinter printer;
    printer.setDocName(page.documentTitle());
    const auto choices = QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize
        | QAbstractPrintDialog::PrintToFile;
    if (!report::askForPrinter(printer, {QStringLiteral("helpPrintDialog"), choices}, window))
        return {Outcome::Cancelled};
    return printTo(printer, page);
}

Printing printTo(const QPrinter& chosen, QTextBrowser& page)
{
    const QString toFile = chosen.outputFileName();
    const auto job = std::make_shared<report::JobFile>();
    if (!writePdf(page, chosen, toFile.isEmpty() ? job->path() : toFile))
        return {Outcome::Failed};
    if (!toFile.isEmpty())
        return {Outcome::Done, toFile};
    return {report::handOver(chosen, job, page.window())};
}

} // namespace help
