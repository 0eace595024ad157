// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/book.h"

#include <QDir>
#include <QFile>

namespace help {

namespace {

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A field in quotation marks may hold commas.
QStringList fieldsOf(const QString& line)
{
    QStringList fields{QString()};
    bool quoted = false;
    for (const QChar character : line) {
        if (character == u'"')
            quoted = !quoted;
        else if (character == u',' && !quoted)
            fields.append(QString());
        else
            fields.back() += character;
    }
    return fields;
}

// The rows below the line of headings, each with as many fields as that.
std::vector<QStringList> rowsOf(const QString& path)
{
    const QStringList lines = textOf(path).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    std::vector<QStringList> rows;
    for (const QString& line : lines)
        rows.push_back(fieldsOf(line));
    for (QStringList& row : rows)
        row.resize(rows.front().size());
    if (!rows.empty())
        rows.erase(rows.begin());
    return rows;
}

} // namespace

Book::Book(const QString& folder)
    : folder_(folder)
{
    for (const QStringList& row : rowsOf(folder + QStringLiteral("/contents.csv")))
        contents_.push_back({row.at(0).toInt(), row.at(1), row.at(2)});
    for (const QStringList& row : rowsOf(folder + QStringLiteral("/topics.csv")))
        topics_.insert(row.at(0), row.at(2).isEmpty() ? row.at(1) : row.at(1) + u'#' + row.at(2));
}

QString Book::placeOf(const QString& topic) const
{
    return topics_.value(topic, contents_.empty() ? QString() : contents_.front().place);
}

QStringList Book::pages() const
{
    return QDir(folder_).entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
}

QUrl Book::url(const QString& place) const
{
    const QString folder =
        folder_.startsWith(u':') ? QStringLiteral("qrc") + folder_ : QStringLiteral("file:") + folder_;
    return QUrl(folder + u'/' + place);
}

QString Book::html(const QString& page) const
{
    return textOf(folder_ + u'/' + page);
}

} // namespace help
