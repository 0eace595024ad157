// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/csv.h"

#include "platform/report/whole_file.h"
#include "platform/values/csv.h"

#include <utility>

namespace report {

namespace {

QByteArray lineOf(const QStringList& cells)
{
    std::string line;
    bool isFirst = true;
    for (const QString& cell : cells)
        values::csv::addCell(line, values::csv::neutral(cell.toStdString()), std::exchange(isFirst, false));
    values::csv::endLine(line);
    return QByteArray::fromStdString(line);
}

QByteArray headingsOf(const std::vector<const Field*>& fields)
{
    QStringList headings;
    for (const Field* field : fields)
        headings.append(field->heading);
    return lineOf(headings);
}

QByteArray rowOf(const std::vector<const Field*>& fields, const Rows& rows, int row)
{
    QStringList values;
    for (const Field* field : fields)
        values.append(plain(rows.text(row, field->column), field->format));
    return lineOf(values);
}

} // namespace

bool hasTable(const Document& document)
{
    return !fieldsOf(document.layout.detail).empty();
}

bool saveCsv(const Document& document, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const std::vector<const Field*> fields = fieldsOf(document.layout.detail);
    file.write(values::csv::ByteOrderMark.data());
    file.write(headingsOf(fields));
    for (int row = 0; row < document.rows->count(); ++row)
        file.write(rowOf(fields, *document.rows, row));
    return commitWhole(file);
}

} // namespace report
