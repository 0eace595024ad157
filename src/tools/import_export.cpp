// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_export.h"

#include "platform/values/csv.h"
#include "platform/values/failure.h"
#include "tools/exit_codes.h"
#include "tools/exporting.h"
#include "tools/table_texts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using storage::TableDefinition;

namespace importing {

namespace {

[[noreturn]] void refuse(const QString& path, const QString& why)
{
    throw Refusal(exit_code::Unreadable, QStringLiteral("%1 is no whole export of this version: %2.").arg(path, why));
}

std::vector<const TableDefinition*> tablesOfExport()
{
    std::vector<const TableDefinition*> tables;
    for (const TableDefinition* table : databaseTables())
        if (!table->staging)
            tables.push_back(table);
    return tables;
}

std::string_view headingsOf(std::string_view text)
{
    text = withoutMark(text);
    return text.substr(0, text.find_first_of("\r\n"));
}

std::string headingsOf(const TableDefinition& table)
{
    return std::string(headingsOf(std::string_view(table_texts::csvHeadings(table))));
}

void refuseTooMany(std::size_t rows, const QString& path)
{
    if (rows > MostRows)
        throw Refusal(exit_code::Unreadable,
            QStringLiteral("%1 holds more than %2 assets, which are as many as a household takes.")
                .arg(path)
                .arg(MostRows));
}

std::vector<Row> rowsOf(std::string_view text, const TableDefinition& table, std::size_t further, const QString& path)
{
    if (!isUtf8(text))
        refuse(path, QStringLiteral("it is not UTF-8"));
    values::csv::Reader reader([&text](char* room, std::size_t size) {
        const std::size_t count = text.copy(room, size);
        text.remove_prefix(count);
        return count;
    });
    std::vector<Row> rows;
    Row row;
    reader.next(row.cells); // the headings, which were compared
    while (reader.next(row.cells)) {
        row.line = reader.line();
        if (row.cells.size() != table.columns.size() + further)
            refuse(path,
                QStringLiteral("line %1 has %2 cells instead of %3")
                    .arg(row.line)
                    .arg(row.cells.size())
                    .arg(table.columns.size() + further));
        row.cells.resize(table.columns.size());
        rows.push_back(row);
        if (&table == &databaseTable("Inventory"))
            refuseTooMany(rows.size(), path);
    }
    return rows;
}

std::vector<Row> rowsInFile(const QString& path, const TableDefinition& table)
{
    const std::string text = bytesOfFile(path);
    if (headingsOf(std::string_view(text)) != headingsOf(table))
        refuse(path, QStringLiteral("its headings are other ones"));
    try {
        return rowsOf(text, table, 0, path);
    } catch (const values::RuntimeFailure& failure) {
        refuse(path, failure.text().section(QStringLiteral(": "), 1));
    }
}

/// Goes through a text of JSON and takes the rows of its tables out of it, one by one: the toolkit's own objects for
/// all of them would take several times the file's size.
class JsonRows {
public:
    JsonRows(std::string_view json, const QString& path)
        : json_(json)
        , path_(path)
    {
    }

    Tables run();

private:
    void take(std::size_t at);
    void readRow(std::string_view object);
    std::string cellIn(const QJsonObject& row, const storage::Column& column, const QString& name) const;
    void refuseOtherFrame() const;

    std::string_view json_;
    const QString& path_;
    Tables tables_;
    std::string frame_; // what is left of the text without its rows
    std::string word_; // the last text of the level at which the tables are named
    std::size_t wordBegin_ = 0;
    std::size_t rowBegin_ = 0;
    int depth_ = 0;
    bool isInText_ = false;
    bool isEscaped_ = false;

    static constexpr int TableLevel = 2; // { "tables": { "Inventory": [
    static constexpr int RowLevel = 3;
};

Tables JsonRows::run()
{
    for (std::size_t at = 0; at < json_.size(); ++at)
        take(at);
    refuseOtherFrame();
    return std::move(tables_);
}

void JsonRows::take(std::size_t at)
{
    const char byte = json_[at];
    const bool isOfFrame = depth_ <= RowLevel;
    if (isInText_) {
        isInText_ = isEscaped_ || byte != '"';
        isEscaped_ = !isEscaped_ && byte == '\\';
        if (!isInText_ && depth_ == TableLevel)
            word_ = json_.substr(wordBegin_, at - wordBegin_);
    } else if (byte == '"') {
        isInText_ = true;
        wordBegin_ = at + 1;
    } else if (byte == '{' || byte == '[') {
        if (depth_++ == RowLevel) {
            rowBegin_ = at;
            return;
        }
    } else if (byte == '}' || byte == ']') {
        if (--depth_ == RowLevel && !isOfFrame)
            return readRow(json_.substr(rowBegin_, at + 1 - rowBegin_));
    }
    if (isOfFrame)
        frame_ += byte;
}

void JsonRows::readRow(std::string_view object)
{
    frame_ += '0';
    const auto tables = tablesOfExport();
    const auto table =
        std::find_if(tables.begin(), tables.end(), [this](const auto* each) { return word_ == each->name; });
    if (table == tables.end())
        return;
    const QJsonObject row =
        QJsonDocument::fromJson(QByteArray(object.data(), static_cast<qsizetype>(object.size()))).object();
    std::vector<Row>& rows = tables_[word_];
    Row& taken = rows.emplace_back();
    taken.line = static_cast<qint64>(rows.size());
    const QString name = QStringLiteral("row %1 of %2").arg(taken.line).arg(QLatin1String((*table)->name));
    if (row.isEmpty())
        refuse(path_, name + QStringLiteral(" is damaged"));
    for (const storage::Column& column : (*table)->columns)
        taken.cells.push_back(cellIn(row, column, name));
    if (row.size() > static_cast<qsizetype>(taken.cells.size()))
        refuse(path_, name + QStringLiteral(" has entries that this version doesn't know"));
    if (*table == &databaseTable("Inventory"))
        refuseTooMany(rows.size(), path_);
}

// As the schema has it: numbers where the table has some, and else texts. Another one would be changed on the way.
std::string JsonRows::cellIn(const QJsonObject& row, const storage::Column& column, const QString& name) const
{
    const QJsonValue cell = row.value(QLatin1String(column.name));
    if (cell.isUndefined())
        refuse(path_, QStringLiteral("%1 lacks \"%2\"").arg(name, column.name));
    const bool mayBeNumber =
        column.type == storage::ColumnType::Identity || column.type == storage::ColumnType::Integer;
    if (!cell.isString() && !(mayBeNumber && cell.isDouble()))
        refuse(path_, QStringLiteral("\"%1\" in %2 is no text").arg(column.name, name));
    return cell.toVariant().toString().toStdString();
}

void JsonRows::refuseOtherFrame() const
{
    QJsonParseError error{};
    const QJsonObject frame = QJsonDocument::fromJson(QByteArray::fromStdString(frame_), &error).object();
    if (error.error != QJsonParseError::NoError)
        refuse(path_, QStringLiteral("it is damaged or cut short"));
    if (frame.value(QStringLiteral("program")) != QStringLiteral("Kestrill"))
        refuse(path_, QStringLiteral("another program has written it"));
    const QJsonObject tables = frame.value(QStringLiteral("tables")).toObject();
    for (const TableDefinition* table : tablesOfExport()) {
        const QJsonValue found = tables.value(QLatin1String(table->name));
        if (!found.isArray())
            refuse(path_, QStringLiteral("%1 is missing").arg(QLatin1String(table->name)));
        const auto taken = tables_.find(table->name);
        const std::size_t rows = taken == tables_.end() ? 0 : taken->second.size();
        if (static_cast<std::size_t>(found.toArray().size()) != rows)
            refuse(
                path_, QStringLiteral("there is something else among the rows of %1").arg(QLatin1String(table->name)));
    }
}

void refuseWithoutHousehold(const Tables& tables, const QString& path)
{
    const auto household = tables.find("Personal_Info");
    if (household == tables.end() || household->second.size() != 1)
        refuse(path, QStringLiteral("it doesn't hold one household"));
}

} // namespace

Tables tablesInFolder(const QString& folder)
{
    Tables tables;
    for (const TableDefinition* table : tablesOfExport()) {
        const QString file = folder + u'/' + exporting::csvFileOf(*table);
        tables[table->name] = rowsInFile(file, *table);
    }
    refuseWithoutHousehold(tables, folder);
    return tables;
}

Tables tablesInJson(std::string_view json, const QString& path)
{
    Tables tables = JsonRows(json, path).run();
    refuseWithoutHousehold(tables, path);
    return tables;
}

bool isInventory(std::string_view text)
{
    const std::string own = headingsOf(databaseTable("Inventory"));
    const std::string_view headings = headingsOf(text);
    return headings == own || headings == own + ',' + ReasonHeading.toStdString();
}

std::vector<Row> inventoryRows(std::string_view text, const QString& path)
{
    const std::size_t further = headingsOf(text) == headingsOf(databaseTable("Inventory")) ? 0 : 1;
    try {
        return rowsOf(text, databaseTable("Inventory"), further, path);
    } catch (const values::RuntimeFailure& failure) {
        refuse(path, failure.text().section(QStringLiteral(": "), 1));
    }
}

} // namespace importing
