// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/trial_form.h"
#include "platform/help/viewer.h"
#include "platform/help/word_index.h"
#include "support/files.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

namespace {

/// The viewer of a small book, beside a screen that is in front, and one to be shown over it.
class HelpViewer : public FormInFront<TwoBoxes> {
protected:
    HelpViewer()
    {
        put("contents.csv",
            "level,title,page\n1,Welcome,index.html\n2,\"Lists, long and short\",lists.html#short\n"
            "1,Backup,backup.html\n");
        put("topics.csv", "number,page,anchor\n1001,index.html,\n2001,lists.html,short\ntrial,backup.html,\n");
        putPage("index.html", "Welcome",
            "<p>Each receipt has its backup in a drawer.</p><p><a href='backup.html'>More</a></p>"
            "<p><img src='wide.png' width='9'></p>");
        putPage("lists.html", "Lists",
            QByteArray("<p>Line</p>").repeated(80) + "<h2 id='short'>Short</h2>"
                + QByteArray("<p>Receipts, Line</p>").repeated(80));
        putPage("backup.html", "Backup", "<p>A copy of all.</p>");
        QImage(400, 100, QImage::Format_RGB32).save(folder_.filePath("wide.png"));
        viewer_.emplace(help::Book(folder_.path()), "Help");
        forms::setHelpDoor([this](int number, const QString&) { viewer_->open(QString::number(number)); });
        form.setHelpNumber(2001);
        modal.setHelpNumber(2001);
    }

    void put(const char* name, const QByteArray& text) { putFile(folder_.filePath(name), text); }

    void putPage(const char* name, const QByteArray& title, const QByteArray& body)
    {
        put(name,
            "<html><head><title>" + title + "</title></head><body><h1>" + title + "</h1>" + body + "</body></html>");
    }

    void open(const QString& topic)
    {
        viewer_->open(topic);
        settle();
    }

    template <class Widget>
    Widget& part(const char* name)
    {
        return *viewer_->findChild<Widget*>(name);
    }

    QTextBrowser& text() { return part<QTextBrowser>("page"); }
    int selection() { return text().textCursor().selectionStart(); }

    /// The page, the part that has the focus, what is selected on the page, what the window says.
    QString state()
    {
        QString all = viewer_->windowTitle().remove(" - Help") + ", " + QApplication::focusWidget()->objectName();
        if (text().textCursor().hasSelection())
            all += " [" + text().textCursor().selectedText() + ']';
        for (const char* label : {"findState", "searchState"})
            all += ' ' + (part<QLabel>(label).isVisible() ? part<QLabel>(label).text() : QString());
        return all.simplified();
    }

    bool isOpen(const char* way) { return part<QPushButton>(way).isEnabled(); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& thenTyped = {})
    {
        QTest::keyClick(viewer_->windowHandle(), key, modifiers);
        settle();
        QTest::keyClicks(QApplication::focusWidget(), thenTyped);
        settle();
    }

    void click(const char* button) { QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton); }

    /// F1, and what a reader does: reads on, seeks, goes back, closes.
    void read(const char* where)
    {
        SCOPED_TRACE(where);
        press(Qt::Key_F1);
        settle();
        EXPECT_TRUE(viewer_->isActiveWindow());
        EXPECT_EQ(state().section(' ', 0, 1), "Lists, page");
        key(Qt::Key_K, Qt::ControlModifier, "backup\r");
        EXPECT_EQ(viewer_->windowTitle(), "Backup - Help");
        click("back");
        EXPECT_EQ(viewer_->windowTitle(), "Lists - Help");
        key(Qt::Key_Escape);
        EXPECT_FALSE(viewer_->isVisible());
        settle();
    }

    QTemporaryDir folder_;
    TwoBoxes modal{journal, "Modal"};
    std::optional<help::Viewer> viewer_;
};

TEST_F(HelpViewer, LeadsByTopicsLinksKeysAndContents)
{
    const std::tuple<std::function<void()>, QString, bool, bool> steps[] = {
        {[this] { open("9"); }, "Welcome, page", false, false},
        {[this] { key(Qt::Key_Tab, {}, "\r"); }, "Backup, page", true, false},
        {[this] { key(Qt::Key_Left, Qt::AltModifier); }, "Welcome, page [More]", false, true},
        {[this] { click("forward"); }, "Backup, toContents", true, false},
        {[this] { key(Qt::Key_F6); }, "Backup, contents", true, false},
        {[this] { key(Qt::Key_Up, {}, "\r"); }, "Lists, contents", true, false},
        {[this] { key(Qt::Key_F1); }, "Welcome, contents", true, false},
        {[this] { open("trial"); }, "Backup, page", true, false},
        {[this] { open("2001"); }, "Lists, page", true, false},
    };
    for (const auto& [step, leadsTo, canGoBack, canGoForward] : steps) {
        step();
        EXPECT_EQ(state(), leadsTo);
        EXPECT_EQ(isOpen("back"), canGoBack) << leadsTo.toStdString();
        EXPECT_EQ(isOpen("forward"), canGoForward) << leadsTo.toStdString();
    }
    EXPECT_EQ(text().accessibleName(), "Lists");
    EXPECT_GT(text().verticalScrollBar()->value(), text().viewport()->height()) << "not at the place of the topic";
}

TEST_F(HelpViewer, FindsOnThePageAndInTheWholeBook)
{
    open("2001");
    key(Qt::Key_F, Qt::ControlModifier, "receipt");
    const int first = selection();
    const std::tuple<std::function<void()>, QString, bool> steps[] = {
        {[] {}, "Lists, findWords [Receipt]", true},
        {[this] { key(Qt::Key_F3); }, "Lists, findWords [Receipt]", false},
        {[this] { key(Qt::Key_F3, Qt::ShiftModifier); }, "Lists, findWords [Receipt]", true},
        {[this] { click("findPrevious"); }, "Lists, findPrevious [Receipt] From the bottom again.", false},
        {[this] { key(Qt::Key_F3); }, "Lists, findPrevious [Receipt] From the top again.", true},
        {[this] { key(Qt::Key_F, Qt::ControlModifier, "zebra"); }, "Lists, findWords Not found on this page.", true},
        {[this] { key(Qt::Key_Escape); }, "Lists, page", true},
        {[this] { key(Qt::Key_K, Qt::ControlModifier, "nowhere"); },
            "Lists, sought Nothing was found about \"nowhere\". Try another word.", true},
        {[this] { key(Qt::Key_A, Qt::ControlModifier, "receipts"); },
            "Lists, sought 2 topics were found, the best first:", true},
        {[this] { key(Qt::Key_Down, {}, "\r"); }, "Lists, found [Receipts] 2 topics were found, the best first:", true},
    };
    for (const auto& [step, leadsTo, isTheFirst] : steps) {
        step();
        EXPECT_EQ(state(), leadsTo);
        EXPECT_EQ(selection() == first, isTheFirst) << leadsTo.toStdString();
    }
    EXPECT_TRUE(viewer_->isVisible());

    const help::WordIndex index{help::Book(folder_.path())};
    const auto hits = index.find("back up");
    ASSERT_EQ(hits.size(), 2U);
    EXPECT_EQ(hits[0].title, "Backup");
    EXPECT_TRUE(hits[1].excerpt.contains("has its backup in a drawer"));
    EXPECT_EQ(index.find("receipt drawer").at(0).page, "index.html"); // has both, if once
    EXPECT_EQ(index.find("RECEIPT").size(), 2U); // the plural of another page, too
}

TEST_F(HelpViewer, ChangesTheTypeForAsLongAsItLivesAndFitsPictures)
{
    open("1001");
    const double size = text().font().pointSizeF();
    const auto pictureWidth = [this] {
        return text().document()->resource(QTextDocument::ImageResource, QUrl("wide.png")).value<QImage>().width();
    };
    const int natural = pictureWidth();
    EXPECT_GE(natural, 400); // whatever the page says
    for (int steps = 0; steps < 20; ++steps)
        key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(pictureWidth(), natural);
    viewer_->resize(viewer_->minimumSizeHint());
    settle();
    EXPECT_LT(pictureWidth(), text().viewport()->width());
    viewer_->close();
    open("2001");
    EXPECT_GE(text().font().pointSizeF(), 2 * size);
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(text().font().pointSizeF(), size);
}

TEST_F(HelpViewer, IsNoScreenAndServesBehindModalOnes)
{
    read("beside a screen");
    EXPECT_TRUE(form.one.hasFocus());
    EXPECT_EQ(journal.taken(), "");
    whileModal([&] {
        settle();
        journal.taken();
        read("beside a modal screen");
        useRealBoxes();
        whileModal([&] {
            QWidget& box = *QApplication::activeModalWidget();
            read("beside a box on the modal screen");
            press(Qt::Key_F1); // stays open behind the box
            box.activateWindow();
            settle();
            clickInBox("OK");
        });
        forms::MsgBox("Text", forms::box::Information, "Title");
        EXPECT_TRUE(viewer_->isVisible());
        viewer_->activateWindow();
        settle();
        key(Qt::Key_W, Qt::ControlModifier);
        EXPECT_FALSE(viewer_->isVisible());
        EXPECT_EQ(journal.taken(), "");
        EXPECT_EQ(forms::activeForm(), &modal);
        modal.hide();
    });
    modal.show_Modal(form);
}

TEST_F(HelpViewer, TellsThatNothingCanBePrintedWithoutAPrinter)
{
    qputenv("CUPS_SERVER", folder_.filePath("none").toLocal8Bit());
    open("1001");
    click("print");
    EXPECT_TRUE(part<QLabel>("status").text().contains("could not be printed"));
}

} // namespace
