// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/pdf.h"

#include "platform/report/page_choice.h"
#include "platform/report/pdf_information.h"
#include "platform/report/whole_file.h"

#include <QPainter>
#include <QPdfWriter>

namespace report {

namespace {

void prepare(QPdfWriter& writer, const Pages& pages)
{
    writer.setResolution(static_cast<int>(TwipsPerInch)); // a unit of the painter is a twip
    writer.setPageSize(pages.paper().page);
    writer.setPageMargins({});
}

Outcome paintAll(QPdfWriter& writer, const Pages& pages, const std::vector<int>& chosen, const Progress& progress)
{
    QPainter painter;
    if (!painter.begin(&writer))
        return Outcome::Failed;
    int done = 0;
    for (const int page : chosen) {
        if (progress && !progress(done))
            return Outcome::Cancelled;
        if (done++ > 0 && !writer.newPage())
            return Outcome::Failed;
        pages.paint(painter, page);
    }
    return painter.end() ? Outcome::Done : Outcome::Failed;
}

Outcome write(QSaveFile& file, const Pages& pages, const std::vector<int>& chosen, const Progress& progress)
{
    PdfInformation information(file);
    QPdfWriter writer(&information);
    prepare(writer, pages);
    const Outcome outcome = paintAll(writer, pages, chosen, progress);
    if (outcome != Outcome::Done)
        return outcome;
    return information.add(pages.document()->names) && file.flush() ? Outcome::Done : Outcome::Failed;
}

} // namespace

Outcome savePdf(const Pages& pages, const QString& path, const Progress& progress, QString* reason)
{
    return savePdf(pages, chosenPages({}, pages.count(), 0), path, progress, reason);
}

Outcome savePdf(
    const Pages& pages, const std::vector<int>& chosen, const QString& path, const Progress& progress, QString* reason)
{
    QSaveFile file(path);
    const Outcome outcome = file.open(QIODevice::WriteOnly) ? write(file, pages, chosen, progress) : Outcome::Failed;
    if (reason && outcome == Outcome::Failed)
        *reason = reasonOf(file);
    if (outcome != Outcome::Done)
        return outcome; // what was written goes with the file object
    return commitWhole(file) ? Outcome::Done : Outcome::Failed;
}

} // namespace report
