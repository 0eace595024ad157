// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Comma-separated values, as RFC 4180 has them, in bytes: what is written reads back bit for bit.
namespace values::csv {

/// What stands in front of a table for a spreadsheet program to know it for UTF-8.
inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// Adds a cell to a line, behind a separator where it isn't the first one. In quotation marks where it has to be.
void addCell(std::string& line, std::string_view cell, bool isFirst, char separator = ',');

/// Ends a line.
void endLine(std::string& line);

/// What a spreadsheet program is given for a cell, so that it takes no text for a formula: one that begins with =, +,
/// -, @, a tab or a line break, and is no plain number, gets an apostrophe in front, the usual mark of a text.
std::string neutral(std::string_view cell);

/// The cell that `neutral` was given, of any other cell itself.
std::string_view withoutApostrophe(std::string_view cell);

/// Reads row by row, and keeps no more than one in memory. Lines end in CR LF, LF or CR; a mark of the byte order at
/// the beginning is passed over, and so are empty lines. The separator may be another byte than a comma, as spreadsheet
/// programs write where the comma stands in numbers.
class Reader {
public:
    /// Gives the next bytes, at most so many; none at the end.
    using Source = std::function<std::size_t(char* room, std::size_t size)>;

    static constexpr std::size_t LongestRow = std::size_t{16} << 20;

    explicit Reader(Source source, std::size_t longestRow = LongestRow, char separator = ',');

    /// The next row; false at the end. Failures: TypeMismatch, with the line, where a quotation mark is never closed or
    /// text follows behind a closed one; Overflow, where a row is longer than agreed.
    bool next(std::vector<std::string>& cells);

    /// The line, counted from 1, on which the row that was read last begins.
    qint64 line() const { return rowLine_; }

private:
    int peek();
    int take();
    void passByteOrderMark();
    bool readCell(std::string& cell);
    void readQuoted(std::string& cell);
    bool isAtSeparator();
    bool endCell();
    void count();
    [[noreturn]] void refuse(const char* why) const;

    Source source_;
    std::size_t longestRow_;
    char separator_;
    std::size_t inRow_ = 0;
    std::string block_;
    std::size_t at_ = 0;
    qint64 line_ = 1;
    qint64 rowLine_ = 0;
};

} // namespace values::csv
