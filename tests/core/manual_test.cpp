// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/book.h"
#include "platform/help/word_index.h"
#include "shared/manual.h"
#include "support/harness.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>

namespace {

using Manual = ScreenTest;

TEST_F(Manual, OpensAtATopicOrElseAtAWindow)
{
    QStringList titles;
    QWidget* viewer = nullptr;
    for (const auto& [number, window] : {std::pair(1001, "frmCalendar"), {0, "frmCalendar"}}) {
        manual::open(number, window);
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->windowRole() == "help")
                viewer = each;
        titles += viewer->windowTitle();
    }
    EXPECT_EQ(titles, QStringList({"Main Menu - Kestrill Help", "The Calendar - Kestrill Help"}));
    EXPECT_FALSE(viewer->findChild<QPushButton*>()->icon().isNull());
    delete viewer;
}

class HelpPages : public testing::Test {
protected:
    /// Reads a page as the viewer does: its title, the places on it, and what it leads to.
    void read(const QString& page)
    {
        QTextDocument document;
        document.setHtml(book_.html(page));
        titles_.insert(document.metaInformation(QTextDocument::DocumentTitle) + ", " + page);
        there_.insert(page);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                const QString link = format.anchorHref();
                for (const QString& anchor : format.anchorNames())
                    there_.insert(page + '#' + anchor);
                needed_.insert(link.startsWith('#') ? page + link : link);
                needed_.insert(format.toImageFormat().name());
            }
    }

    const help::Book book_{":/help"};
    QSet<QString> titles_, there_{""}, needed_;
};

TEST_F(HelpPages, AreWhereTopicsContentsAndLinksLead)
{
    for (const QString& page : book_.pages())
        read(page);
    for (const QString& picture : QDir(":/help/pictures").entryList())
        there_.insert("pictures/" + picture);
    for (const QString& topic : book_.topics())
        needed_.insert(book_.placeOf(topic));
    for (const help::Chapter& chapter : book_.contents())
        EXPECT_TRUE(titles_.remove(chapter.title + ", " + chapter.place)) << chapter.title.toStdString();
    EXPECT_EQ(titles_, QSet<QString>()) << "no chapter leads there";
    EXPECT_EQ(QStringList((needed_ - there_).values()), QStringList());
}

TEST_F(HelpPages, AreFoundByPlainWords)
{
    const help::WordIndex index(book_);
    const std::pair<const char*, const char*> sought[] = {{"warranty", "warranty"}, {"backup", "earlier-backups"},
        {"back up", "earlier-backups"}, {"forgot", "questions"}, {"password", "questions"}, {"typo", "questions"},
        {"theft", "after-a-loss"}, {"fire", "after-a-loss"}, {"Receipts", "gathering"}, {"photo", "gathering"},
        {"new computer", "other-computer"}, {"quit", "closing"}};
    for (const auto& [words, page] : sought)
        EXPECT_EQ(index.find(words).at(0).page, QString(page) + ".html") << words;
}

} // namespace
