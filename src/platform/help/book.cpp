// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/book.h"

#include "platform/values/csv.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace help {

namespace {

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The rows below the line of headings, each with as many fields as that.
std::vector<QStringList> rowsOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    values::csv::Reader reader([&file](char* room, std::size_t size) {
        return static_cast<std::size_t>(std::max<qint64>(file.read(room, static_cast<qint64>(size)), 0));
    });
    std::vector<QStringList> rows;
    for (std::vector<std::string> cells; reader.next(cells);) {
        QStringList& row = rows.emplace_back();
        for (const std::string& cell : cells)
            row.append(QString::fromStdString(cell));
    }
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

QString Book::words() const
{
    return textOf(folder_ + QStringLiteral("/words.csv"));
}

} // namespace help
