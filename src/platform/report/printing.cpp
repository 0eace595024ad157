// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/printing.h"

#include "platform/report/pdf.h"
#include "platform/report/print_dialog.h"
#include "platform/report/print_service.h"

#include <QPrinter>

#include <algorithm>

namespace report {

namespace {

PrintQuestion questionFor(const Pages& pages)
{
    return {QStringLiteral("reportPrintDialog"),
        QAbstractPrintDialog::PrintPageRange | QAbstractPrintDialog::PrintCurrentPage
            | QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize
            | QAbstractPrintDialog::PrintToFile,
        pages.count(), true};
}

Paper paperOf(const QPrinter& printer)
{
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Inch);
    const QMarginsF unprintable = layout.minimumMargins();
    Paper paper{layout.pageSize()};
    for (const double edge : {unprintable.left(), unprintable.top(), unprintable.right(), unprintable.bottom()})
        paper.edge = std::max(paper.edge, edge * TwipsPerInch);
    return paper;
}

Outcome write(const Pages& printed, const std::vector<int>& chosen, const QString& path, QWidget* window)
{
    ProgressWindow progress(QStringLiteral("Printing..."), static_cast<int>(chosen.size()), window);
    return savePdf(printed, chosen, path, progress.progress());
}

// The job is a file that is whole before the print service hears of it: a run that is cancelled or fails prints
// nothing.
Printing printTo(const QPrinter& printer, const Pages& printed, const std::vector<int>& chosen, QWidget* window)
{
    if (chosen.empty())
        return {Outcome::NothingChosen};
    if (const QString file = printer.outputFileName(); !file.isEmpty())
        return {write(printed, chosen, file, window), file};
    const auto job = std::make_shared<JobFile>();
    const Outcome written = write(printed, chosen, job->path(), window);
    return {written == Outcome::Done ? handOver(printer, job, window) : written};
}

} // namespace

Printing print(const Pages& pages, int currentPage, QWidget* window)
{
    if (const Outcome found = findPrinters(window); found != Outcome::Done)
        return {found};
    QPrinter printer;
    printer.setDocName(pages.document()->names.document);
    printer.setPageSize(pages.paper().page);
    const std::optional<PageChoice> choice = askForPrinter(printer, questionFor(pages), window);
    if (!choice) // nor may there be pages any more
        return {Outcome::Cancelled};
    const Pages printed(pages.document(), paperOf(printer));
    return printTo(printer, printed, chosenPages(*choice, printed.count(), currentPage), window);
}

} // namespace report
