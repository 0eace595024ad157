// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/help/viewer.h"
#include "platform/help/word_index.h"
#include "support/forms_test.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

using help::Book;
using help::Viewer;

/// A screen of the program, which notes what happens to it.
class TrialScreen : public forms::Form {
public:
    explicit TrialScreen(const QString& name)
        : forms::Form(name)
    {
        auto* column = new QVBoxLayout(canvas());
        for (forms::Control* control : {static_cast<forms::Control*>(&box), static_cast<forms::Control*>(&button)}) {
            column->addWidget(control->widget());
            control->setTabIndex(column->count());
            control->GotFocus = [this] { ++events; };
            control->LostFocus = [this] { ++events; };
        }
        setHelpNumber(2001);
    }

    forms::TextBox box{*this, "box"};
    forms::CommandButton button{*this, "button"};
    int events = 0;

private:
    void Form_Activate() override { ++events; }
    void Form_Deactivate() override { ++events; }
};

class HelpViewer : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        write("contents.csv",
            "level,title,page\n1,Welcome,index.html\n2,\"Lists, long and short\",lists.html#short\n"
            "1,Backup,backup.html\n");
        write("topics.csv", "number,page,anchor\n1001,index.html,\n2001,lists.html,short\ntrial,backup.html,\n");
        write("index.html",
            page("Welcome",
                "<p>Each receipt has its backup in a drawer.</p><p><a href='backup.html'>"
                "More</a></p><p><img src='wide.png' width='9'></p>"));
        write("lists.html",
            page("Lists",
                QStringLiteral("<p>Line</p>").repeated(80) + "<h2 id='short'>Short</h2>"
                    + QStringLiteral("<p>Receipts, Line</p>").repeated(80)));
        write("backup.html", page("Backup", "<p>A copy of all.</p>"));
        QImage picture(400, 100, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(folder_.filePath("wide.png"));
        viewer_ = std::make_unique<Viewer>(Book(folder_.path()), "Help");
        forms::setHelpDoor([this](int number, const QString&) { viewer_->open(QString::number(number)); });
        screen_.show();
        user::settle();
        screen_.events = 0;
    }

    void TearDown() override
    {
        viewer_.reset();
        FormsTest::TearDown();
    }

    static QString page(const QString& title, const QString& body)
    {
        return "<html><head><title>" + title + "</title></head><body><h1>" + title + "</h1>" + body + "</body></html>";
    }

    void write(const QString& name, const QString& text)
    {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    void open(const QString& topic)
    {
        viewer_->open(topic);
        user::settle();
    }

    template <class Widget>
    Widget& part(const char* name)
    {
        auto* found = viewer_->findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error(std::string("There is no ") + name);
        return *found;
    }

    QTextBrowser& text() { return part<QTextBrowser>("page"); }
    QString title() { return viewer_->windowTitle(); }
    QString findState() { return part<QLabel>("findState").text(); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(viewer_->windowHandle(), key, modifiers);
        user::settle();
    }

    void typeWords(const QString& words)
    {
        QTest::keyClicks(QApplication::focusWidget(), words);
        user::settle();
    }

    void click(const char* button) { QTest::mouseClick(&part<QPushButton>(button), Qt::LeftButton); }

    bool isEnabled(const char* button) { return part<QPushButton>(button).isEnabled(); }

    /// F1, and what a reader does: reads on, seeks, goes back, changes the type, closes.
    void read(const char* where)
    {
        user::press(Qt::Key_F1);
        user::settle();
        EXPECT_TRUE(viewer_->isActiveWindow()) << where;
        EXPECT_EQ(title(), "Lists - Help") << where;
        key(Qt::Key_K, Qt::ControlModifier);
        typeWords("backup");
        key(Qt::Key_Return);
        EXPECT_EQ(title(), "Backup - Help");
        click("back");
        EXPECT_EQ(title(), "Lists - Help");
        key(Qt::Key_Escape);
        EXPECT_FALSE(viewer_->isVisible());
        user::settle();
    }

    QTemporaryDir folder_;
    TrialScreen screen_{"Trial"};
    std::unique_ptr<Viewer> viewer_;
};

TEST_F(HelpViewer, OpensTopicsAtTheirPlacesAndUnknownOnesAtTheFirstChapter)
{
    open("2001");
    EXPECT_GT(text().verticalScrollBar()->value(), text().viewport()->height());
    EXPECT_EQ(part<QTreeWidget>("contents").currentItem()->text(0), "Lists, long and short");
    open("trial");
    EXPECT_EQ(title(), "Backup - Help");
    EXPECT_EQ(text().accessibleName(), "Backup");
    open("9");
    EXPECT_EQ(title(), "Welcome - Help");
    EXPECT_TRUE(text().hasFocus());
}

TEST_F(HelpViewer, GoesBackForwardAndByTheContents)
{
    open("1001");
    EXPECT_FALSE(isEnabled("back"));
    key(Qt::Key_Tab); // to the link
    key(Qt::Key_Return);
    EXPECT_EQ(title(), "Backup - Help");
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(title(), "Welcome - Help");
    EXPECT_TRUE(isEnabled("forward"));
    click("forward");
    EXPECT_EQ(title(), "Backup - Help");
    EXPECT_FALSE(isEnabled("forward"));
    key(Qt::Key_F6);
    key(Qt::Key_Up);
    key(Qt::Key_Return);
    EXPECT_EQ(title(), "Lists - Help");
    key(Qt::Key_F1);
    EXPECT_EQ(title(), "Welcome - Help");
}

TEST_F(HelpViewer, FindsOnThePageAndTellsWhatIsNotThere)
{
    open("2001");
    key(Qt::Key_F, Qt::ControlModifier);
    typeWords("receipt");
    EXPECT_EQ(text().textCursor().selectedText(), "Receipt");
    const int first = text().textCursor().position();
    key(Qt::Key_F3);
    EXPECT_GT(text().textCursor().position(), first);
    key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(text().textCursor().position(), first);
    EXPECT_EQ(findState(), "");
    click("findPrevious");
    EXPECT_EQ(findState(), "From the bottom again.");
    key(Qt::Key_F3);
    EXPECT_EQ(findState(), "From the top again.");
    EXPECT_EQ(text().textCursor().position(), first);
    key(Qt::Key_F, Qt::ControlModifier);
    typeWords("zebra");
    EXPECT_EQ(findState(), "Not found on this page.");
    EXPECT_EQ(text().textCursor().selectionStart(), first - 7);
    key(Qt::Key_Escape);
    EXPECT_FALSE(part<QLineEdit>("findWords").isVisible());
    EXPECT_TRUE(viewer_->isVisible());
}

TEST_F(HelpViewer, SearchesAllTopicsTheBestFirst)
{
    const help::WordIndex index{Book(folder_.path())};
    const auto hits = index.find("back up");
    ASSERT_EQ(hits.size(), 2U);
    EXPECT_EQ(hits[0].title, "Backup");
    EXPECT_TRUE(hits[1].excerpt.contains("has its backup in a drawer"));
    EXPECT_EQ(index.find("receipt drawer").at(0).page, "index.html"); // has both, if once
    EXPECT_EQ(index.find("RECEIPT").size(), 2U); // the plural of another page, too

    open("1001");
    key(Qt::Key_K, Qt::ControlModifier);
    typeWords("nowhere");
    EXPECT_EQ(part<QLabel>("searchState").text(), "Nothing was found about \"nowhere\". Try another word.");
    part<QLineEdit>("sought").clear();
    EXPECT_TRUE(part<QTreeWidget>("contents").isVisible());
    typeWords("receipts");
    EXPECT_EQ(part<QLabel>("searchState").text(), "2 topics were found, the best first:");
    key(Qt::Key_Down);
    EXPECT_TRUE(part<QListWidget>("found").hasFocus());
    key(Qt::Key_Return);
    EXPECT_EQ(title(), "Lists - Help");
    EXPECT_EQ(text().textCursor().selectedText(), "Receipts");
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
    for (int steps = 0; steps < 20 && isEnabled("larger"); ++steps)
        key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GE(text().font().pointSizeF(), 2 * size);
    EXPECT_GT(pictureWidth(), natural);
    viewer_->resize(viewer_->minimumSizeHint());
    user::settle();
    EXPECT_LT(pictureWidth(), text().viewport()->width());
    viewer_->close();
    open("2001");
    EXPECT_GE(text().font().pointSizeF(), 2 * size);
    click("smaller");
    EXPECT_TRUE(isEnabled("larger"));
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(text().font().pointSizeF(), size);
}

TEST_F(HelpViewer, IsNoScreenAndServesBehindModalOnes)
{
    read("screen");
    EXPECT_EQ(screen_.events, 0);
    EXPECT_EQ(forms::activeForm(), &screen_);
    EXPECT_TRUE(screen_.button.hasFocus() || screen_.box.hasFocus());

    TrialScreen modal("Modal");
    whileModal([&] {
        user::settle();
        modal.events = screen_.events = 0;
        read("modal");
        useRealBoxes();
        whileModal([&] { // a box on top of the modal screen
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            read("box");
            user::press(Qt::Key_F1); // stays open behind the box
            box->activateWindow();
            user::settle();
            user::clickInBox("OK");
        });
        forms::MsgBox("Text", forms::box::Information, "Title");
        EXPECT_TRUE(viewer_->isVisible());
        viewer_->activateWindow();
        user::settle();
        key(Qt::Key_Escape);
        EXPECT_FALSE(viewer_->isVisible());
        EXPECT_EQ(modal.events + screen_.events, 0);
        EXPECT_EQ(forms::activeForm(), &modal);
        modal.hide();
    });
    modal.show_Modal(screen_);
    screen_.events = 0;
    user::press(Qt::Key_F1);
    key(Qt::Key_F1);
    EXPECT_EQ(title(), "Welcome - Help");
    key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(screen_.events, 0);
}

TEST_F(HelpViewer, TellsThatNothingCanBePrintedWithoutAPrinter)
{
    qputenv("CUPS_SERVER", folder_.filePath("none").toLocal8Bit());
    open("1001");
    click("print");
    EXPECT_TRUE(part<QLabel>("status").text().contains("could not be printed"));
}

} // namespace
