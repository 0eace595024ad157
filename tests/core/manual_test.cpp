// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/manual.h"

#include "core/frmMain.h"
#include "platform/help/book.h"
#include "platform/help/viewer.h"
#include "platform/help/word_index.h"
#include "reports/data_report.h"
#include "reports/reports.h"
#include "support/harness.h"

#include <QApplication>
#include <QFile>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

using forms::screen;

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

TEST(HelpPages, AreFoundByPlainWords)
{
    const help::WordIndex index(book());
    const std::pair<const char*, const char*> sought[] = {{"warranty", "warranty.html"}, {"receipt", "gathering.html"},
        {"calendar", "calendar.html"}, {"insurance policy", "insurance.html"}};
    for (const auto& [word, page] : sought)
        EXPECT_EQ(index.find(word).at(0).page, page) << word;
    for (const char* word : {"backup", "back up", "forgot", "password", "photo", "theft"})
        EXPECT_FALSE(index.find(word).empty()) << word;
}

class HelpWindow : public ScreenTest {
protected:
    HelpWindow() { forms::setHelpDoor(manual::open); }
    ~HelpWindow() override { delete window(); }

    static QWidget* window()
    {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->objectName() == "help")
                return each;
        return nullptr;
    }
    static QString shown() { return window()->isVisible() ? window()->windowTitle() : QString(); }
};

TEST_F(HelpWindow, OpensOnScreensAndReports)
{
    screen<frmMain>().show();
    press(Qt::Key_F1);
    EXPECT_EQ(shown(), "Main Menu - Kestrill Help");
    reports::FillOutForm().show();
    settle();
    QTest::keyClick(reportWindow()->windowHandle(), Qt::Key_F1);
    EXPECT_EQ(shown(), "The Print Window - Kestrill Help");
}

} // namespace
