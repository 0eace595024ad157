// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/csv.h"

#include "platform/values/failure.h"

#include <algorithm>
#include <utility>

namespace values::csv {

namespace {

constexpr std::size_t BlockSize = std::size_t{1} << 16;
constexpr int End = -1;

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

// "-12.50"
bool isPlainNumber(std::string_view cell)
{
    if (cell.starts_with('-') || cell.starts_with('+'))
        cell.remove_prefix(1);
    const auto isPartOfNumber = [](char byte) { return isDigit(byte) || byte == '.'; };
    return std::ranges::any_of(cell, isDigit) && std::ranges::all_of(cell, isPartOfNumber)
        && std::ranges::count(cell, '.') <= 1;
}

bool isFormula(std::string_view cell)
{
    const bool beginsSo = !cell.empty() && std::string_view("=+-@\t\r\n").find(cell.front()) != std::string_view::npos;
    return beginsSo && !isPlainNumber(cell);
}

} // namespace

void addCell(std::string& line, std::string_view cell, bool isFirst, char separator)
{
    if (!isFirst)
        line += separator;
    const auto needsQuotes = [separator](char byte) {
        return byte == '"' || byte == '\r' || byte == '\n' || byte == separator;
    };
    if (std::ranges::none_of(cell, needsQuotes) && !cell.starts_with(' ') && !cell.ends_with(' ')) {
        line.append(cell);
        return;
    }
    line += '"';
    for (const char byte : cell)
        line.append(byte == '"' ? 2 : 1, byte);
    line += '"';
}

void endLine(std::string& line)
{
    line += "\r\n";
}

std::string neutral(std::string_view cell)
{
    return (isFormula(cell) ? "'" : "") + std::string(cell);
}

std::string_view withoutApostrophe(std::string_view cell)
{
    const bool isNeutral = cell.starts_with('\'') && isFormula(cell.substr(1));
    return cell.substr(isNeutral ? 1 : 0);
}

Reader::Reader(Source source, std::size_t longestRow, char separator)
    : source_(std::move(source))
    , longestRow_(longestRow)
    , separator_(separator)
{
}

bool Reader::next(std::vector<std::string>& cells)
{
    cells.clear();
    if (rowLine_ == 0)
        passByteOrderMark();
    while (peek() == '\r' || peek() == '\n')
        endCell();
    rowLine_ = line_;
    inRow_ = 0;
    if (peek() == End)
        return false;
    while (readCell(cells.emplace_back())) { }
    return true;
}

int Reader::peek()
{
    if (at_ == block_.size()) {
        block_.resize(BlockSize);
        block_.resize(source_(block_.data(), BlockSize));
        at_ = 0;
    }
    return block_.empty() ? End : static_cast<unsigned char>(block_[at_]);
}

int Reader::take()
{
    const int byte = peek();
    if (byte != End)
        ++at_;
    return byte;
}

void Reader::passByteOrderMark()
{
    if (peek() != End && std::string_view(block_).starts_with(ByteOrderMark))
        at_ = ByteOrderMark.size();
}

// Whether another cell of the row follows.
bool Reader::readCell(std::string& cell)
{
    if (peek() == '"')
        readQuoted(cell);
    for (; !isAtSeparator(); count())
        cell += static_cast<char>(take());
    return endCell();
}

void Reader::readQuoted(std::string& cell)
{
    take();
    while (true) {
        const int byte = take();
        if (byte == End)
            refuse("a quotation mark is never closed");
        if (byte == '"' && peek() != '"')
            break;
        if (byte == '"')
            take();
        line_ += byte == '\n' ? 1 : 0;
        cell += static_cast<char>(byte);
        count();
    }
    if (!isAtSeparator())
        refuse("text follows behind a closing quotation mark");
}

bool Reader::isAtSeparator()
{
    const int byte = peek();
    return byte == End || byte == static_cast<unsigned char>(separator_) || byte == '\r' || byte == '\n';
}

bool Reader::endCell()
{
    const int byte = take();
    count();
    if (byte == static_cast<unsigned char>(separator_))
        return true;
    if (byte == '\r' && peek() == '\n')
        take();
    ++line_;
    return false;
}

// Empty cells take memory, too.
void Reader::count()
{
    if (++inRow_ > longestRow_)
        throw RuntimeFailure(FailureKind::Overflow,
            QStringLiteral("line %1: a row of more than %2 bytes").arg(rowLine_).arg(longestRow_));
}

void Reader::refuse(const char* why) const
{
    throw RuntimeFailure(
        FailureKind::TypeMismatch, QStringLiteral("line %1: %2").arg(rowLine_).arg(QLatin1String(why)));
}

} // namespace values::csv
