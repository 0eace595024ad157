// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_source.h"

#include "platform/system/paths.h"
#include "platform/values/csv.h"
#include "platform/values/failure.h"
#include "tools/exit_codes.h"
#include "tools/import_export.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace importing {

namespace {

constexpr char separators[] = {',', ';', '\t'};
constexpr std::size_t LongestRow = std::size_t{1} << 20;
constexpr std::size_t MostColumns = 256;
constexpr int LinesAbove = 50; // among them the headings are looked for

[[noreturn]] void refuse(const QString& path, const QString& why)
{
    throw Refusal(exit_code::Unreadable, QStringLiteral("%1 %2.").arg(path, why));
}

QString textOf(const std::string& cell)
{
    return QString::fromStdString(cell);
}

bool isBlank(const Row& row)
{
    return std::all_of(
        row.cells.begin(), row.cells.end(), [](const std::string& cell) { return textOf(cell).trimmed().isEmpty(); });
}

values::csv::Reader readerOf(std::string_view text, char separator)
{
    const auto source = [text](char* room, std::size_t size) mutable {
        const std::size_t count = text.copy(room, size);
        text.remove_prefix(count);
        return count;
    };
    return values::csv::Reader(source, LongestRow, separator);
}

/// The beginning of a table, read with one of the separators.
class Beginning {
public:
    Beginning(std::string_view text, char separator, const QStringList& named)
        : separator_(separator)
    {
        try {
            values::csv::Reader reader = readerOf(text, separator);
            for (Row row; rows_.size() < LinesAbove && reader.next(row.cells); rows_.push_back(row)) {
                row.line = reader.line();
                row.cells.resize(std::min(row.cells.size(), MostColumns + 1)); // enough to be told from a table
            }
        } catch (const values::RuntimeFailure&) {
            // What can be read so far tells enough; the failure is met again.
        }
        look(named);
    }

    char separator() const { return separator_; }
    qint64 headingLine() const { return headingLine_; }

    /// How good a reading it is: by the headings that are known, then by the rows that are as long as these, then by
    /// the length.
    std::tuple<int, qint64, std::size_t> goodness() const { return {known_, alike_, width_}; }

private:
    void look(const QStringList& named)
    {
        for (const Row& row : rows_) {
            const int known = knownIn(row, named);
            const bool isBetter = known > std::max(known_, 1) || (headingLine_ == 0 && mayHead(row));
            if (!isBetter)
                continue;
            known_ = known;
            headingLine_ = row.line;
            width_ = row.cells.size();
        }
        alike_ = std::count_if(rows_.begin(), rows_.end(), [this](const Row& row) {
            return headingLine_ > 0 && row.line > headingLine_ && row.cells.size() == width_;
        });
    }

    static int knownIn(const Row& row, const QStringList& named)
    {
        return static_cast<int>(std::count_if(row.cells.begin(), row.cells.end(), [&named](const std::string& cell) {
            const QString heading = textOf(cell).simplified();
            return isKnownHeading(heading) || named.contains(heading, Qt::CaseInsensitive);
        }));
    }

    // Words alone, at least two of them: a number or a date heads nothing.
    static bool mayHead(const Row& row)
    {
        static const QRegularExpression value(QStringLiteral("^[^\\p{L}]*$"));
        int words = 0;
        for (const std::string& cell : row.cells) {
            const QString text = textOf(cell).trimmed();
            if (text.isEmpty())
                continue;
            if (value.match(text).hasMatch() && text != "#")
                return false;
            ++words;
        }
        return words >= 2 && words * 2 > static_cast<int>(row.cells.size());
    }

    char separator_;
    std::vector<Row> rows_;
    int known_ = 0;
    qint64 headingLine_ = 0;
    std::size_t width_ = 0;
    qint64 alike_ = 0;
};

Beginning bestBeginning(std::string_view text, const QStringList& named)
{
    std::vector<Beginning> beginnings;
    for (const char separator : separators)
        beginnings.emplace_back(text, separator, named);
    return *std::max_element(beginnings.begin(), beginnings.end(),
        [](const Beginning& a, const Beginning& b) { return a.goodness() < b.goodness(); });
}

QString letterOf(std::size_t column)
{
    const QString last(QChar(u'A' + static_cast<char16_t>(column % 26)));
    return column < 26 ? last : letterOf(column / 26 - 1) + last;
}

QString headingOf(const std::string& cell, std::size_t column)
{
    const QString heading = textOf(cell).simplified();
    return heading.isEmpty() ? QStringLiteral("Column ") + letterOf(column) : heading;
}

void refuseEqual(const std::vector<ColumnSeen>& columns, const QString& path)
{
    QSet<QString> met;
    for (const ColumnSeen& column : columns) {
        const QString heading = column.heading.toLower();
        if (met.contains(heading))
            refuse(path, QStringLiteral("has two columns headed \"%1\"").arg(column.heading));
        met.insert(heading);
    }
}

// Cells behind the last heading are none where nothing stands in them.
void dropEmptyEnd(Row& row, std::size_t width)
{
    while (row.cells.size() > width && textOf(row.cells.back()).trimmed().isEmpty())
        row.cells.pop_back();
}

// Some programs leave out empty cells at the end of a row. A last line without an end may lack others, too.
void fillUp(std::vector<Row>& rows, std::size_t width, bool mayBeCutOff)
{
    for (Row& row : rows)
        if (row.cells.size() < width && !(mayBeCutOff && &row == &rows.back()))
            row.cells.resize(width);
}

} // namespace

Source::Source(const QString& path, const QStringList& headings)
    : path_(path)
{
    if (sys::kindOf(path) == sys::Kind::Folder)
        readExport(path);
    else
        readTable(bytesOfFile(path), headings);
    lookAtColumns();
}

void Source::readExport(const QString& folder)
{
    if (sys::kindOf(folder + QStringLiteral("/Inventory.csv")) != sys::Kind::File)
        refuse(folder, QStringLiteral("is a folder and holds no export of Kestrill"));
    kind_ = Kind::Export;
    tables_ = tablesInFolder(folder);
    rows_ = std::move(tables_["Inventory"]);
}

void Source::readTable(const std::string& bytes, const QStringList& headings)
{
    if (isInventory(bytes)) {
        kind_ = Kind::Inventory;
        rows_ = inventoryRows(bytes, path_);
        return;
    }
    const std::string_view plain = withoutMark(bytes);
    refuseOtherPrograms(plain, path_);
    const std::size_t first = plain.find_first_not_of(" \t\r\n");
    if (first != std::string::npos && plain[first] == '{') {
        kind_ = Kind::Export;
        tables_ = tablesInJson(plain, path_);
        rows_ = std::move(tables_["Inventory"]);
        return;
    }
    const Text text = importing::textOf(bytes, path_);
    encoding_ = text.encoding;
    const Beginning beginning = bestBeginning(text.utf8, headings);
    separator_ = beginning.separator();
    headingLine_ = beginning.headingLine();
    if (headingLine_ == 0)
        refuse(path_, QStringLiteral("has no line of headings"));
    try {
        readRows(text.utf8);
    } catch (const values::RuntimeFailure& failure) {
        refuse(path_, QStringLiteral("is no table: ") + failure.text().section(QStringLiteral(": "), 1));
    }
}

void Source::readRows(std::string_view text)
{
    values::csv::Reader reader = readerOf(text, separator_);
    for (Row row; reader.next(row.cells);) {
        row.line = reader.line();
        if (row.line < headingLine_ || isBlank(row))
            continue;
        if (row.cells.size() > MostColumns)
            refuse(path_, QStringLiteral("has more than %1 columns").arg(MostColumns));
        if (columns_.empty()) {
            for (std::size_t i = 0; i < row.cells.size(); ++i)
                columns_.push_back({headingOf(row.cells[i], i), {}, 0});
            refuseEqual(columns_, path_);
            continue;
        }
        dropEmptyEnd(row, columns_.size());
        if (rows_.size() == MostRows)
            refuse(
                path_, QStringLiteral("has more than %1 rows, which are as many as a household takes").arg(MostRows));
        rows_.push_back(row);
    }
    if (rows_.empty())
        refuse(path_, QStringLiteral("has headings and nothing below them"));
    const bool mayBeCutOff = !text.ends_with('\n') && !text.ends_with('\r');
    fillUp(rows_, columns_.size(), mayBeCutOff);
}

void Source::lookAtColumns()
{
    if (kind_ != Kind::Table)
        return;
    for (const Row& row : rows_) {
        for (std::size_t i = 0; i < std::min(row.cells.size(), columns_.size()); ++i) {
            const QString text = textOf(row.cells[i]).simplified();
            if (!text.isEmpty() && columns_[i].filled++ == 0)
                columns_[i].example = text.left(60);
        }
    }
    targets_ = targetsOf(columns_);
}

QString Source::described() const
{
    if (kind_ != Kind::Table)
        return isExport() ? QStringLiteral("An export of Kestrill")
                          : QStringLiteral("The assets of an export of Kestrill");
    const QString between = separator_ == ',' ? QStringLiteral("commas")
        : separator_ == ';'                   ? QStringLiteral("semicolons")
                                              : QStringLiteral("tabs");
    return QStringLiteral("A table: %1, %2, headings in line %3").arg(nameOf(encoding_), between).arg(headingLine_);
}

const std::vector<Row>& Source::rowsOf(std::string_view table) const
{
    static const std::vector<Row> none;
    const auto found = tables_.find(table);
    return found == tables_.end() ? none : found->second;
}

} // namespace importing
