// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/print_service.h"

#include "platform/report/patience.h"

#include <QPrintEngine>
#include <QPrinter>

#include <cups/cups.h>

#include <dlfcn.h>

namespace report {

namespace {

constexpr int secondsToFind = 5;

/// What is called of the print service's library, which is loaded when somebody prints: it brings along twenty others,
/// a twelfth of what the program takes of memory. None of it is there on a system without the library.
struct Service {
    decltype(&cupsGetDests) getPrinters;
    decltype(&cupsFreeDests) freePrinters;
    decltype(&cupsAddOption) addOption;
    decltype(&cupsFreeOptions) freeOptions;
    decltype(&cupsPrintFile) printFile;
};

// Where the linker would have found it.
template <class Function>
Function found(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_DEFAULT, name));
}

const Service* service()
{
    static const bool isLoaded = ::dlopen("libcups.so.2", RTLD_LAZY | RTLD_GLOBAL) != nullptr;
    static const Service the{found<decltype(&cupsGetDests)>("cupsGetDests"),
        found<decltype(&cupsFreeDests)>("cupsFreeDests"), found<decltype(&cupsAddOption)>("cupsAddOption"),
        found<decltype(&cupsFreeOptions)>("cupsFreeOptions"), found<decltype(&cupsPrintFile)>("cupsPrintFile")};
    return isLoaded ? &the : nullptr;
}

/// Options of a job, in the words of the print service.
class JobOptions {
public:
    JobOptions() = default;
    ~JobOptions() { service()->freeOptions(count_, options_); }
    JobOptions(const JobOptions&) = delete;
    JobOptions& operator=(const JobOptions&) = delete;

    void add(const char* name, const QString& value)
    {
        count_ = service()->addOption(name, value.toUtf8().constData(), count_, &options_);
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

// What the print dialogue keeps for the print service by itself: names and values in turn.
QStringList keptForService(const QPrinter& printer)
{
    constexpr auto serviceOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00); // no name is public
    return printer.printEngine()->property(serviceOptions).toStringList();
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

int countPrinters()
{
    if (!service())
        return 0;
    cups_dest_t* printers = nullptr;
    const int count = service()->getPrinters(&printers);
    service()->freePrinters(count, printers);
    return count;
}

} // namespace

Outcome findPrinters(QWidget* window)
{
    const Answer found = answerOf(countPrinters, {QStringLiteral("Looking for printers..."), secondsToFind}, window);
    if (found.kind == Answer::Kind::GivenUp)
        return Outcome::Cancelled;
    return found.number > 0 ? Outcome::Done : Outcome::Failed;
}

Outcome handOver(const QPrinter& printer, std::shared_ptr<const JobFile> file, QWidget* window)
{
    const auto options = std::make_shared<JobOptions>();
    describe(*options, printer);
    const QByteArray queue = printer.printerName().section(u'/', 0, 0).toUtf8();
    const QByteArray name = printer.docName().toUtf8();
    const auto send = [options, queue, name, file = std::move(file)] {
        return service()->printFile(queue.constData(), file->path().toLocal8Bit().constData(), name.constData(),
            options->count(), options->all());
    };
    const Answer job = answerOf(send, {QStringLiteral("Handing the pages to the printer...")}, window);
    if (job.kind != Answer::Kind::There)
        return Outcome::Unanswered;
    return job.number != 0 ? Outcome::Done : Outcome::Failed;
}

} // namespace report
