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

TEST_F(HelpPages, AnswerTheQuestionsOfAHouseholder)
{
    const help::WordIndex index(book_);
    const std::pair<const char*, const char*> questions[] = {{"how do I print my list", "print-menu"},
        {"what is the price of a gift", "questions"}, {"I deleted a chair by mistake", "earlier-backups"},
        {"the letters are too small, how do I change the font", "questions"}, {"how do I get my list back", "restore"},
        {"my computer was stolen, what now", "safe"}, {"where do I put photos of my things", "gathering"},
        {"where does my car belong", "questions"}, {"how do I add a room", "add-name"},
        {"can I rename a category", "change-name"}, {"how much is everything worth", "totals"},
        {"how do I send the list to my insurer by email", "preview"}, {"nothing comes out of the printer", "trouble"},
        {"warenty", "warranty"}, {"how do I move it to a new computer", "other-computer"},
        {"which button saves my work", "closing"}, {"where is the serial number on a bicycle", "gathering"},
        {"why can't I type a date", "questions"}, {"how do I back up to a usb stick", "copy-outside"},
        {"the program has to close", "trouble"}};
    for (const auto& [question, page] : questions) {
        const std::vector<help::Hit> hits = index.find(question);
        const bool isFirst = hits.at(0).page == QString(page) + ".html";
        EXPECT_TRUE(isFirst || hits.at(1).page == QString(page) + ".html") << question;
    }
}

} // namespace
