// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/trial_form.h"
#include "platform/help/viewer.h"
#include "platform/help/word_index.h"
#include "support/files.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

namespace {

/// The viewer of a small book, beside a screen that is in front, and one to be shown over it.
class HelpViewer : public FormInFront {
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
        QImage(160, 40, QImage::Format_RGB32).save(folder_.filePath("wide.png"));
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

    template <class Widget>
    Widget& part(const char* name)
    {
        return *viewer_->findChild<Widget*>(name);
    }

    QTextBrowser& text() { return part<QTextBrowser>("page"); }

    /// The page, the part that has the focus, what is selected, what search and find say, which ways are shut.
    QString state()
    {
        settle();
        QString all = viewer_->windowTitle().remove(" - Help") + ", " + QApplication::focusWidget()->objectName();
        if (text().textCursor().hasSelection())
            all += " [" + text().textCursor().selectedText() + ']';
        for (const char* words : {"searchState", "findState"})
            all += part<QLabel>(words).isVisible() ? ": " + part<QLabel>(words).text() : QString();
        for (const char* way : {"back", "forward"})
            all += part<QPushButton>(way).isEnabled() ? QString() : QString(", no ") + way;
        return all;
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& thenTyped = {})
    {
        QTest::keyClick(viewer_->windowHandle(), key, modifiers);
        settle();
        QTest::keyClicks(QApplication::focusWidget(), thenTyped);
        settle();
    }

    /// F1, a search and Esc.
    void read(const char* where)
    {
        SCOPED_TRACE(where);
        press(Qt::Key_F1);
        EXPECT_TRUE(state().startsWith("Lists, page"));
        EXPECT_TRUE(viewer_->isActiveWindow());
        key(Qt::Key_K, Qt::ControlModifier, "backup\r");
        EXPECT_TRUE(state().startsWith("Backup"));
        key(Qt::Key_Escape);
        EXPECT_FALSE(viewer_->isVisible());
        settle();
    }

    QTemporaryDir folder_;
    TrialForm modal{journal, "Modal"};
    std::optional<help::Viewer> viewer_;
};

TEST_F(HelpViewer, LeadsByTopicsLinksContentsFindingAndSearch)
{
    const std::pair<std::function<void()>, QString> steps[] = {
        {[this] { viewer_->open("9"); }, "Welcome, page, no back, no forward"},
        {[this] { key(Qt::Key_Tab, {}, "\r"); }, "Backup, page, no forward"},
        {[this] { key(Qt::Key_Left, Qt::AltModifier); }, "Welcome, page [More], no back"},
        {[this] { QTest::mouseClick(&part<QPushButton>("forward"), Qt::LeftButton); },
            "Backup, toContents, no forward"},
        {[this] { key(Qt::Key_F1); }, "Welcome, toContents, no forward"},
        {[this] { key(Qt::Key_F, Qt::ControlModifier, "RECEIPT"); }, "Welcome, findWords [receipt], no forward"},
        {[this] { key(Qt::Key_F3, Qt::ShiftModifier); },
            "Welcome, findWords [receipt]: From the bottom again., no forward"},
        {[this] { key(Qt::Key_Escape); }, "Welcome, page [receipt], no forward"},
        {[this] { key(Qt::Key_K, Qt::ControlModifier, "nowhere"); },
            "Welcome, sought [receipt]: Nothing was found about \"nowhere\". Try another word., no forward"},
        {[this] { key(Qt::Key_A, Qt::ControlModifier, "receipts"); },
            "Welcome, sought [receipt]: 2 topics were found, the best first:, no forward"},
        {[this] { key(Qt::Key_Down, {}, "\r"); },
            "Lists, found [Receipts]: 2 topics were found, the best first:, no forward"},
    };
    for (const auto& [step, leadsTo] : steps) {
        step();
        EXPECT_EQ(state(), leadsTo);
    }
    viewer_->open("2001");
    settle();
    EXPECT_GT(text().verticalScrollBar()->value(), text().viewport()->height()) << "not at the place of the topic";
    const auto hits = help::WordIndex(help::Book(folder_.path())).find("back up");
    EXPECT_TRUE(hits.at(0).title == "Backup" && hits.at(1).excerpt.contains("has its backup in a drawer"));
}

TEST_F(HelpViewer, KeepsTheSizeOfTypeWhileItLivesAndFitsPicturesIntoThePage)
{
    viewer_->open("1001");
    const double size = text().font().pointSizeF();
    for (int steps = 0; steps < 20; ++steps)
        key(Qt::Key_Plus, Qt::ControlModifier);
    viewer_->resize(viewer_->minimumSizeHint());
    viewer_->close();
    viewer_->open("1001");
    EXPECT_LT(viewer_->width(), viewer_->screen()->availableSize().width()) << "its captions give way";
    EXPECT_GT(text().width(), part<QTreeWidget>("contents").width()) << "and the contents";
    part<QLineEdit>("sought").setText("receipts");
    settle();
    const auto& found = part<QListWidget>("found");
    EXPECT_EQ(found.visualItemRect(found.item(0)).height(), found.sizeHintForRow(0)) << "the hits overlap";
    EXPECT_GE(text().font().pointSizeF(), 2 * size);
    const QVariant picture = text().document()->resource(QTextDocument::ImageResource, QUrl("wide.png"));
    EXPECT_LT(picture.value<QImage>().width(), text().viewport()->width());
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(text().font().pointSizeF(), size);
    const QVariant usual = text().document()->resource(QTextDocument::ImageResource, QUrl("wide.png"));
    EXPECT_LT(usual.value<QImage>().width(), picture.value<QImage>().width());
}

TEST_F(HelpViewer, IsNoScreenAndServesBehindModalOnes)
{
    useRealBoxes();
    whileModal([this] {
        settle();
        taken();
        read("beside a modal screen");
        whileModal([this] {
            QWidget& box = *QApplication::activeModalWidget();
            read("beside a box on the modal screen");
            press(Qt::Key_F1); // stays open behind the box
            box.activateWindow();
            settle();
            press(Qt::Key_Return);
        });
        forms::MsgBox("Text", forms::box::Information, "Title");
        EXPECT_TRUE(viewer_->isVisible());
        viewer_->activateWindow();
        settle();
        key(Qt::Key_W, Qt::ControlModifier);
        EXPECT_FALSE(viewer_->isVisible());
        EXPECT_EQ(taken(), "");
        EXPECT_EQ(forms::activeForm(), &modal);
        modal.hide();
    });
    modal.show_Modal(form);
}

} // namespace
