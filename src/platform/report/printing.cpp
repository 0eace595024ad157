// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/printing.h"

#include "platform/report/page_choice.h"
#include "platform/report/pdf.h"
#include "platform/report/print_service.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <algorithm>

namespace report {

namespace {

// ---- what the user chose

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

QString keptFor(const QPrinter& printer, const char* option)
{
    const QStringList kept = keptForService(printer);
    const auto name = kept.indexOf(QLatin1StringView(option));
    return name < 0 ? QString() : kept.value(name + 1);
}

// Some versions of the dialogue leave ranges to the service and tell the printer of all pages.
QPageRanges rangesOf(const QPrinter& printer)
{
    const QString forService = keptFor(printer, "page-ranges");
    if (!forService.isEmpty())
        return QPageRanges::fromString(forService);
    return printer.printRange() == QPrinter::PageRange ? printer.pageRanges() : QPageRanges();
}

// The dialogue has a service in mind that counts the chosen pages alone: odd pages are even ones to it, and the other
// way round, where the first of them is even.
QString setOf(const QPrinter& printer)
{
    const QString odd = QStringLiteral("odd");
    const QString even = QStringLiteral("even");
    QString set = keptFor(printer, "page-set");
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() % 2 != 0)
        return set;
    return set == odd ? even : set == even ? odd : set;
}

PageChoice choiceOf(const QPrinter& printer)
{
    PageChoice choice;
    choice.currentOnly = printer.printRange() == QPrinter::CurrentPage;
    choice.ranges = rangesOf(printer);
    choice.set = setOf(printer);
    choice.lastFirst = printer.pageOrder() == QPrinter::LastPageFirst;
    return choice;
}

bool asksUser(QPrinter& printer, const Pages& pages, QWidget* window)
{
    printer.setDocName(pages.document()->names.document);
    printer.setPageSize(pages.paper().page);
    QPrintDialog dialog(&printer, window);
    dialog.setObjectName(QStringLiteral("reportPrintDialog"));
    dialog.setOptions(QAbstractPrintDialog::PrintPageRange | QAbstractPrintDialog::PrintCurrentPage
        | QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize
        | QAbstractPrintDialog::PrintToFile);
    dialog.setMinMax(1, pages.count());
    dialog.setFromTo(1, pages.count());
    dialog.setPrintRange(QAbstractPrintDialog::AllPages);
    return dialog.exec() == QDialog::Accepted;
}

// ---- the job

// The job is a file that is whole before the print service hears of it: a run that is cancelled or fails prints
// nothing.
Outcome printTo(const QPrinter& printer, const Pages& pages, int currentPage, QWidget* window)
{
    const Pages printed(pages.document(), paperOf(printer));
    const std::vector<int> chosen = chosenPages(choiceOf(printer), printed.count(), currentPage);
    if (chosen.empty())
        return Outcome::NothingChosen;
    ProgressWindow progress(QStringLiteral("Printing..."), static_cast<int>(chosen.size()), window);
    if (!printer.outputFileName().isEmpty())
        return savePdf(printed, chosen, printer.outputFileName(), progress.progress());
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("report.pdf"));
    const Outcome outcome = savePdf(printed, chosen, file, progress.progress());
    if (outcome != Outcome::Done)
        return outcome;
    return handOver(printer, file) ? Outcome::Done : Outcome::Failed;
}

} // namespace

Outcome print(const Pages& pages, int currentPage, QWidget* window)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        return Outcome::Failed;
    QPrinter printer;
    if (!asksUser(printer, pages, window))
        return Outcome::Cancelled;
    return printTo(printer, pages, currentPage, window);
}

} // namespace report
