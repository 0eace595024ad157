// SPDX-License-Identifier: GPL-3.0-or-later
// The files that an import writes beside the household's: wrong rows, and the template.
#include "platform/system/paths.h"
#include "platform/values/csv.h"
#include "platform/values/failure.h"
#include "platform/values/file_name.h"
#include "tools/exit_codes.h"
#include "tools/importing.h"
#include "tools/table_texts.h"
#include "tools/text_file.h"

#include <optional>
#include <utility>

#include <unistd.h>

namespace importing {

namespace {

using Cells = std::vector<std::string>;

std::string lineOf(const Cells& cells, char separator)
{
    std::string line;
    bool isFirst = true;
    for (const std::string& cell : cells)
        values::csv::addCell(line, cell, std::exchange(isFirst, false), separator);
    values::csv::endLine(line);
    return line;
}

// In a file for a spreadsheet no cell is a formula. What an export holds stays as it is.
std::string cellFor(const std::string& cell, const Source& source)
{
    return source.kind() == Source::Kind::Table ? values::csv::neutral(cell) : cell;
}

Cells headingsOf(const Source& source)
{
    Cells headings;
    if (source.kind() == Source::Kind::Table) {
        for (const ColumnSeen& column : source.columns())
            headings.push_back(column.heading.toStdString());
    } else {
        for (const storage::Column& column : databaseTable("Inventory").columns)
            headings.emplace_back(column.name);
    }
    headings.push_back(ReasonHeading.toStdString());
    return headings;
}

// A row that is too long keeps its cells: the reason stands behind them.
Cells wrongRow(const Source& source, const WrongRow& wrong, std::size_t width)
{
    Cells cells;
    for (const std::string& cell : source.rows()[wrong.row].cells)
        cells.push_back(cellFor(cell, source));
    if (cells.size() < width)
        cells.resize(width);
    cells.push_back(wrong.reasons.join(QStringLiteral("; ")).toStdString());
    return cells;
}

// What could be written of it, where it isn't whole, is taken away again.
template <class Write>
void writeFile(const QString& path, Write write)
{
    if (sys::kindOf(path) != sys::Kind::Nothing)
        throw Refusal(exit_code::Failed, QStringLiteral("%1 is there already. Give the name of a new file.").arg(path));
    std::optional<TextFile> out;
    try {
        out.emplace(path);
        write(*out);
        out->finish();
    } catch (const values::RuntimeFailure& failure) {
        if (out)
            remove_File(path);
        throw Refusal(exit_code::Failed,
            QStringLiteral("%1 can't be written: %2.").arg(path, failure.text().section(QStringLiteral(": "), -1)));
    }
}

} // namespace

void remove_File(const QString& file)
{
    ::unlink(values::bytesOfName(file).constData());
}

void write_Wrong_Rows(const Source& source, const Plan& plan, const QString& file)
{
    const Cells headings = headingsOf(source);
    writeFile(file, [&](TextFile& out) {
        if (source.kind() == Source::Kind::Table)
            out.write(values::csv::ByteOrderMark);
        out.write(lineOf(headings, source.separator()));
        for (const WrongRow& wrong : plan.wrong)
            out.write(lineOf(wrongRow(source, wrong, headings.size() - 1), source.separator()));
    });
}

void write_Template(const QString& file)
{
    const Cells lines[] = {
        {"Area", "Location", "Category", "Item", "Year", "Make", "Model", "Serial", "New Or Used", "Purchase Date",
            "Purchase Price", "Receipt On File", "Receipt Location", "Description"},
        {"Indoor", "Living Room", "Electronics", "Television", "2022", "Acme", "TV-40", "A1234567", "New", "2022-11-25",
            "$499.00", "Yes", "Blue folder in the desk", "40 inches, on the wall"},
        {"Outdoor", "Garage", "Tools", "Lawn Mower", "2018", "Unknown", "Unknown", "Unknown", "Used", "2020-04-18",
            "$85.50", "No", "", ""},
    };
    writeFile(file, [&lines](TextFile& out) {
        out.write(values::csv::ByteOrderMark);
        for (const Cells& cells : lines)
            out.write(lineOf(cells, ','));
    });
}

} // namespace importing
