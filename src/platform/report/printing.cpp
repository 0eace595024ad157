// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/printing.h"

#include "platform/report/pdf.h"

#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <cups/cups.h>

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

// What the dialogue keeps for the print service by itself: names and values in turn.
QStringList keptForService(const QPrinter& printer)
{
    constexpr auto serviceOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00); // no name is public
    return printer.printEngine()->property(serviceOptions).toStringList();
}

// For sheets that are turned by hand and printed on both sides.
void keepPageSet(std::vector<int>& pages, const QStringList& kept)
{
    const auto name = kept.indexOf(QStringLiteral("page-set"));
    const QString set = name < 0 ? QString() : kept.value(name + 1);
    if (set == QStringLiteral("odd"))
        std::erase_if(pages, [](int page) { return page % 2 != 0; }); // counted from 0
    else if (set == QStringLiteral("even"))
        std::erase_if(pages, [](int page) { return page % 2 == 0; });
}

std::vector<int> chosenPages(const QPrinter& printer, const Pages& pages, int currentPage)
{
    if (printer.printRange() == QPrinter::CurrentPage)
        return {std::min(currentPage, pages.count() - 1)};
    const QPageRanges ranges = printer.pageRanges();
    std::vector<int> chosen = allPages(pages);
    if (printer.printRange() == QPrinter::PageRange && !ranges.isEmpty())
        std::erase_if(chosen, [&ranges](int page) { return !ranges.contains(page + 1); });
    keepPageSet(chosen, keptForService(printer));
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(chosen.begin(), chosen.end());
    return chosen;
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

/// Options of a job, in the words of the print service.
class JobOptions {
public:
    JobOptions() = default;
    ~JobOptions() { cupsFreeOptions(count_, options_); }
    JobOptions(const JobOptions&) = delete;
    JobOptions& operator=(const JobOptions&) = delete;

    void add(const char* name, const QString& value)
    {
        count_ = cupsAddOption(name, value.toUtf8().constData(), count_, &options_);
    }

    int count() const { return count_; }
    cups_option_t* all() const { return options_; }

private:
    int count_ = 0;
    cups_option_t* options_ = nullptr;
};

QString sidesOf(QPrinter::DuplexMode duplex)
{
    switch (duplex) {
    case QPrinter::DuplexLongSide:
        return QStringLiteral("two-sided-long-edge");
    case QPrinter::DuplexShortSide:
        return QStringLiteral("two-sided-short-edge");
    case QPrinter::DuplexNone:
        return QStringLiteral("one-sided");
    default:
        return {}; // as the printer is set
    }
}

// What is carried out already, the pages, doesn't go on to the service.
void passOn(JobOptions& options, const QStringList& kept)
{
    for (const char* name :
        {"number-up", "number-up-layout", "job-hold-until", "job-billing", "job-priority", "job-sheets"})
        if (const auto at = kept.indexOf(QLatin1StringView(name)); at >= 0)
            options.add(name, kept.value(at + 1));
}

void describe(JobOptions& options, const QPrinter& printer)
{
    options.add("media", printer.pageLayout().pageSize().key());
    options.add("copies", QString::number(printer.copyCount()));
    options.add("collate", printer.collateCopies() ? QStringLiteral("true") : QStringLiteral("false"));
    if (const QString sides = sidesOf(printer.duplex()); !sides.isEmpty())
        options.add("sides", sides);
    if (printer.colorMode() == QPrinter::GrayScale)
        options.add("print-color-mode", QStringLiteral("monochrome"));
    passOn(options, keptForService(printer));
}

// The job is a file that is whole before the print service hears of it: a run that is cancelled or fails prints
// nothing, and the service's answer is known.
bool handOver(const QPrinter& printer, const QString& file)
{
    JobOptions options;
    describe(options, printer);
    const QByteArray queue = printer.printerName().section(u'/', 0, 0).toUtf8();
    const int job = cupsPrintFile(queue.constData(), file.toLocal8Bit().constData(),
        printer.docName().toUtf8().constData(), options.count(), options.all());
    return job != 0;
}

Outcome printTo(const QPrinter& printer, const Pages& pages, int currentPage, QWidget* window)
{
    const Pages printed(pages.document(), paperOf(printer));
    const std::vector<int> chosen = chosenPages(printer, printed, currentPage);
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
