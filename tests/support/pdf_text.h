// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets>

#include <vector>

/// What another program reads in a PDF file.
namespace pdf {

/// A word of a page; its place in twips from the paper's top left corner.
struct Word {
    QString text;
    QRectF place;
};

struct Page {
    std::vector<Word> words;

    /// The words in the order of the file, with blanks between them.
    QString text() const;
};

std::vector<Page> read(const QString& path);

/// Where a word stands, wherever on the page.
std::vector<QRectF> placesOf(const Page& page, const QString& text);

/// What another program tells of it.
QString output(const QString& program, const QStringList& arguments);

} // namespace pdf
