// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/book.h"
#include "platform/help/word_index.h"
#include "shared/manual.h"
#include "support/files.h"

#include <QtWidgets>

namespace {

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
    expectSteps("core/asked.txt", [&index](const QString& question) {
        QStringList pages;
        for (const help::Hit& hit : index.find(question))
            pages += hit.page;
        return pages.first(qMin(pages.size(), 2)).join(' ');
    });
}

TEST(Manual, OpensByTheNumberOfAControlAndWithoutOneByTheNameOfItsWindow)
{
    const auto opened = [](int number, const char* name) {
        manual::open(number, name);
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (const auto* page = window->findChild<QTextBrowser*>("page"); page && window->isVisible())
                return page->source().path() + "#" + page->source().fragment();
        return QString();
    };
    EXPECT_EQ(opened(0, "frmExit"), "") << "the goodbye answers no key";
    EXPECT_EQ(opened(3001, "frmExport"), "/help/totals.html#top");
    EXPECT_EQ(opened(0, "frmExport"), "/help/export.html#window");
    QApplication::closeAllWindows();
}

} // namespace
