// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/print_service.h"

#include <QPrintEngine>
#include <QPrinter>

#include <cups/cups.h>

namespace report {

namespace {

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

} // namespace

QStringList keptForService(const QPrinter& printer)
{
    constexpr auto serviceOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00); // no name is public
    return printer.printEngine()->property(serviceOptions).toStringList();
}

bool handOver(const QPrinter& printer, const QString& file)
{
    JobOptions options;
    describe(options, printer);
    const QByteArray queue = printer.printerName().section(u'/', 0, 0).toUtf8();
    const int job = cupsPrintFile(queue.constData(), file.toLocal8Bit().constData(),
        printer.docName().toUtf8().constData(), options.count(), options.all());
    return job != 0;
}

} // namespace report
