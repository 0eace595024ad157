// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/book.h"
#include "support/print.h"

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace {

const help::Book& book()
{
    static const help::Book the(":/help");
    return the;
}

/// What a page of the book has in it.
struct Page {
    explicit Page(const QString& html)
    {
        QTextDocument document;
        document.setHtml(html);
        title = document.metaInformation(QTextDocument::DocumentTitle);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                take(part.fragment().charFormat());
    }

    QString title;
    QStringList links;
    QStringList anchors;
    QStringList pictures;

private:
    void take(const QTextCharFormat& format)
    {
        anchors += format.anchorNames();
        if (!format.anchorHref().isEmpty())
            links += format.anchorHref();
        if (format.isImageFormat())
            pictures += format.toImageFormat().name();
    }
};

const std::map<QString, Page>& pages()
{
    static const auto all = [] {
        std::map<QString, Page> read;
        for (const QString& name : book().pages())
            read.emplace(name, book().html(name));
        return read;
    }();
    return all;
}

bool exists(const QString& place)
{
    const auto page = pages().find(place.section('#', 0, 0));
    const QString anchor = place.section('#', 1);
    return page != pages().end() && (anchor.isEmpty() || page->second.anchors.contains(anchor));
}

TEST(HelpPages, AreWhereTopicsContentsAndLinksLead)
{
    QStringList missing;
    const auto need = [&missing](const QString& place, bool isThere) {
        if (!isThere)
            missing += place;
    };
    for (const QString& topic : book().topics())
        need("topic " + topic, exists(book().placeOf(topic)));
    QStringList unread = book().pages();
    for (const help::Chapter& chapter : book().contents()) {
        const QString page = chapter.place.section('#', 0, 0);
        need(chapter.title + " at " + chapter.place, exists(chapter.place) && pages().at(page).title == chapter.title);
        unread.removeAll(page);
    }
    EXPECT_EQ(unread, QStringList());
    for (const auto& [name, page] : pages()) {
        for (const QString& link : page.links)
            need(name + ": " + link, exists(link.startsWith('#') ? name + link : link));
        for (const QString& picture : page.pictures)
            need(name + ": " + picture, QFile::exists(":/help/" + picture));
    }
    EXPECT_EQ(missing, QStringList());
}

} // namespace
