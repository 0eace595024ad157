// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/table_texts.h"

#include <QString>
#include <QUtf8StringView>

#include <charconv>
#include <optional>

using storage::Column;
using storage::ColumnType;
using storage::Snapshot;

namespace table_texts {

namespace {

std::optional<qint64> numberIn(std::string_view text)
{
    qint64 number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = failure == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

// Without a detour by floating point. A cell that is no number stays as it is.
std::string decimalOf(std::string_view tenThousandths)
{
    if (!numberIn(tenThousandths))
        return std::string(tenThousandths);
    const bool isNegative = tenThousandths.front() == '-';
    std::string digits(tenThousandths.substr(isNegative ? 1 : 0));
    if (digits.size() < 5)
        digits.insert(0, 5 - digits.size(), '0');
    digits.insert(digits.size() - 4, 1, '.');
    return (isNegative ? "-" : "") + digits;
}

std::string cellOf(const Snapshot& table, int row, int column)
{
    const std::string_view bytes = table.utf8(row, column);
    const bool isAmount = table.definition().columns[static_cast<std::size_t>(column)].type == ColumnType::Currency;
    return isAmount ? decimalOf(bytes) : std::string(bytes);
}

std::string csvField(std::string_view text)
{
    if (text.find_first_of("\",\r\n") == std::string_view::npos && !text.starts_with(' ') && !text.ends_with(' '))
        return std::string(text);
    std::string quoted = "\"";
    for (const char byte : text)
        quoted.append(byte == '"' ? 2 : 1, byte);
    return quoted += '"';
}

void appendEscaped(std::string& text, char byte)
{
    constexpr char digits[] = "0123456789abcdef";
    if (byte == '"' || byte == '\\')
        text.append(1, '\\').append(1, byte);
    else if (static_cast<unsigned char>(byte) < 0x20)
        text.append("\\u00").append(1, digits[byte >> 4]).append(1, digits[byte & 15]);
    else
        text.append(1, byte);
}

std::string jsonCell(const Snapshot& table, int row, int column)
{
    const std::string cell = cellOf(table, row, column);
    const ColumnType type = table.definition().columns[static_cast<std::size_t>(column)].type;
    const bool isNumber = (type == ColumnType::Integer || type == ColumnType::Identity) && numberIn(cell);
    return isNumber ? cell : jsonText(cell);
}

const char* schemaOf(ColumnType type)
{
    switch (type) {
    case ColumnType::Identity:
    case ColumnType::Integer:
        return R"({"type": "integer"})";
    case ColumnType::Currency:
        return R"({"type": "string", "pattern": "^-?[0-9]+\\.[0-9]{4}$"})";
    case ColumnType::Text:
    case ColumnType::Money:
        break;
    }
    return R"({"type": "string"})";
}

std::string tableSchema(const storage::TableDefinition& table)
{
    std::string properties;
    std::string required;
    for (const Column& column : table.columns) {
        const char* separator = required.empty() ? "" : ", ";
        properties.append(required.empty() ? "\n          " : ",\n          ");
        properties.append(jsonText(column.name)).append(": ").append(schemaOf(column.type));
        required.append(separator).append(jsonText(column.name));
    }
    return R"({"type": "array", "items": {
        "type": "object", "additionalProperties": false,
        "required": [)"
        + required + "],\n        \"properties\": {" + properties + "}}}";
}

} // namespace

std::string csvHeadings(const storage::TableDefinition& table)
{
    std::string line;
    for (const Column& column : table.columns)
        line.append(line.empty() ? "" : ",").append(csvField(column.name));
    return line += "\r\n";
}

std::string csvRow(const Snapshot& table, int row)
{
    std::string line;
    const int columns = static_cast<int>(table.definition().columns.size());
    for (int column = 0; column < columns; ++column)
        line.append(column == 0 ? "" : ",").append(csvField(cellOf(table, row, column)));
    return line += "\r\n";
}

std::string jsonText(std::string_view text)
{
    const QUtf8StringView bytes(text.data(), static_cast<qsizetype>(text.size()));
    if (!bytes.isValidUtf8())
        return jsonText(bytes.toString().toStdString());
    std::string quoted = "\"";
    for (const char byte : text)
        appendEscaped(quoted, byte);
    return quoted += '"';
}

std::string jsonRow(const Snapshot& table, int row)
{
    std::string object = "{";
    int column = 0;
    for (const Column& each : table.definition().columns) {
        object.append(column == 0 ? "" : ", ").append(jsonText(each.name)).append(": ");
        object.append(jsonCell(table, row, column++));
    }
    return object += '}';
}

std::string jsonSchema(const std::vector<Snapshot>& tables)
{
    std::string properties;
    std::string required;
    for (const Snapshot& table : tables) {
        const std::string name = jsonText(table.definition().name);
        properties.append(properties.empty() ? "" : ",\n      ");
        properties.append(name).append(": ").append(tableSchema(table.definition()));
        required.append(required.empty() ? "" : ", ").append(name);
    }
    return R"({
  "$schema": "https://json-schema.org/draft/2020-12/schema",
  "title": "All that Kestrill holds of a household",
  "type": "object",
  "required": ["program", "version", "made", "tables"],
  "properties": {
    "$schema": {"type": "string"},
    "program": {"const": "Kestrill"},
    "version": {"type": "string"},
    "made": {"type": "string", "format": "date-time"},
    "tables": {"type": "object", "additionalProperties": false, "required": [)"
        + required + "], \"properties\": {\n      " + properties + "}}}}\n";
}

} // namespace table_texts
