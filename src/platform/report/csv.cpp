// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/csv.h"

#include "platform/report/whole_file.h"

namespace report {

namespace {

// Tells a spreadsheet that the file is UTF-8.
constexpr const char* byteOrderMark = "\xEF\xBB\xBF";

QString quoted(const QString& value)
{
    const bool needsQuotes = value.contains(u',') || value.contains(u'"') || value.contains(u'\n')
        || value.contains(u'\r') || value.startsWith(u' ') || value.endsWith(u' ');
    return needsQuotes ? u'"' + QString(value).replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"' : value;
}

QByteArray lineOf(const QStringList& values)
{
    QStringList line;
    for (const QString& value : values)
        line.append(quoted(value));
    return (line.join(u',') + QStringLiteral("\r\n")).toUtf8();
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
    file.write(byteOrderMark);
    file.write(headingsOf(fields));
    for (int row = 0; row < document.rows->count(); ++row)
        file.write(rowOf(fields, *document.rows, row));
    return commitWhole(file);
}

} // namespace report
