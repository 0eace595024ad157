// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/manual.h"

#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "assets/frmWar.h"
#include "core/frmCalendar.h"
#include "core/frmMain.h"
#include "household/frmGenInfo.h"
#include "household/frmInsInfo.h"
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "household/frmTotals.h"
#include "lists/editing.h"
#include "lists/frmAddField.h"
#include "lists/frmDelField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/frmUpdate.h"
#include "platform/help/book.h"
#include "platform/help/viewer.h"
#include "platform/help/word_index.h"
#include "reports/data_report.h"
#include "reports/frmPrint.h"
#include "reports/reports.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"
#include "support/harness.h"

#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

namespace {

using forms::screen;

const help::Book& book()
{
    static const help::Book the(":/help");
    return the;
}

/// All that F1 is pressed on, and the topics that it asks for.
class HelpOnF1 : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        forms::setMessageDoor([](const forms::Message&) { return forms::Answer::No; }); // of what a focus says
        forms::setHelpDoor([this](int number, const QString& window) {
            asked_.append(number > 0 ? QString::number(number) : window);
        });
    }

    void pressOnAll(forms::Form& form)
    {
        form.show();
        for (forms::Control* control : form.controls()) {
            if (!control->canTakeFocus())
                continue;
            if (control->name() == "txtDate") // opens the calendar
                whileModal([] { press(Qt::Key_Return); });
            control->setFocus();
            asked_.clear();
            press(Qt::Key_F1);
            if (asked_.isEmpty())
                silent_.append(form.name() + '.' + control->name());
            for (const QString& topic : asked_)
                EXPECT_TRUE(book().knows(topic)) << topic.toStdString() << " of " << control->name().toStdString();
            topics_.unite({asked_.begin(), asked_.end()});
        }
        form.hide();
    }

    void pressOnAreaScreens()
    {
        for (const char* area : {"Indoor Asset Management", "Outdoor Asset Management", "Mobile Asset Management"}) {
            screen<frmAuto>().lblHead1[0].setCaption(area);
            screen<frmAuto>().load_It();
            pressOnAll(screen<frmAuto>());
            screen<frmAddUpDel>().check_Form_Type();
            pressOnAll(screen<frmAddUpDel>());
            pressOnListEditors(areas::ofMenuTitle(area), editing::locations());
            pressOnListEditors(areas::ofMenuTitle(area), editing::categories());
        }
    }

    void pressOnListEditors(const areas::Area& area, const editing::Kind& kind)
    {
        const editing::List& list = editing::listOf(area, kind);
        auto& menu = screen<frmEditCmbBoxes>();
        menu.lblHead.setCaption(list.text(editing::MenuHeading));
        menu.MenuHelpNumber = list.menuHelp;
        menu.load_Help();
        pressOnAll(menu);
        pressOnAll(screen<frmAddField>());
        screen<frmUpdate>().lblHead4.setCaption(list.text(editing::ChangeHeading));
        pressOnAll(screen<frmUpdate>());
        screen<frmDelField>().lblHead.setCaption(list.text(editing::DeleteHeading));
        pressOnAll(screen<frmDelField>());
    }

    void pressOnAccountScreens()
    {
        Data1.rsBank.AddNew();
        for (int column = Bank::FinancialInstitution; column <= Bank::State; ++column)
            Data1.rsBank.Fields(column) = "None";
        Data1.rsBank.Update();
        pressOnAll(screen<frmEditBankBoxes>());
        for (const int mode : {frmEditBankBoxes::Add, frmEditBankBoxes::Update, frmEditBankBoxes::Delete}) {
            screen<frmEditBankBoxes>().AccountMode = mode;
            screen<frmBank>().ReturnFromCalendar = false;
            pressOnAll(screen<frmBank>());
        }
    }

    template <class... Screens>
    void pressOnScreens()
    {
        (pressOnAll(screen<Screens>()), ...);
    }

    QStringList asked_;
    QStringList silent_;
    QSet<QString> topics_;
};

// The splash, the closing and the goodbye have nothing that takes the focus.
TEST_F(HelpOnF1, OpensATopicOfTheBookOnEachControlOfEachScreen)
{
    pressOnScreens<frmMain, frmPrint, frmTotals, frmSearch, frmSearchResults, frmWar, frmGenInfo, frmInsInfo,
        frmIntroduction, frmKeyboard, frmCalendar>();
    pressOnAreaScreens();
    pressOnAccountScreens();
    // What refuses all keys.
    EXPECT_EQ(QSet<QString>(silent_.begin(), silent_.end()),
        QSet<QString>({"frmAddUpDel.cmbCat", "frmWar.cmbPMonth", "frmWar.cmbPDay", "frmWar.cmbPYear",
            "frmWar.cmbLMonth", "frmWar.cmbLDay", "frmWar.cmbLYear"}));
    for (int number = 1001; number <= 43001; number += 1000) {
        const bool isNoMode = number == 15001 || number == 16001; // an asset from the results, and no screen
        EXPECT_NE(topics_.contains(QString::number(number)), isNoMode) << number;
    }
}

// ---- the pages

QTextDocument& document(const QString& page)
{
    static auto& read = *new std::map<QString, QTextDocument>; // never destroyed: it would outlive the application
    QTextDocument& document = read[page];
    if (document.isEmpty())
        document.setHtml(book().html(page));
    return document;
}

/// The links, anchors or pictures of a page, or whatever else a format tells.
QStringList collected(const QString& page, const std::function<QStringList(const QTextCharFormat&)>& tell)
{
    QStringList all;
    for (QTextBlock block = document(page).begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            all += tell(part.fragment().charFormat());
    all.removeAll(QString());
    return all;
}

bool exists(const QString& place)
{
    const QString page = place.section('#', 0, 0);
    const QString anchor = place.section('#', 1);
    return book().pages().contains(page) && (anchor.isEmpty() || collected(page, [](const QTextCharFormat& format) {
        return format.anchorNames();
    }).contains(anchor));
}

TEST(HelpPages, AreWhereTopicsContentsAndLinksLead)
{
    for (const QString& topic : book().topics())
        EXPECT_TRUE(exists(book().placeOf(topic))) << topic.toStdString();
    QStringList unread = book().pages();
    for (const help::Chapter& chapter : book().contents()) {
        EXPECT_TRUE(exists(chapter.place)) << chapter.place.toStdString();
        unread.removeAll(chapter.place.section('#', 0, 0));
    }
    EXPECT_EQ(unread, QStringList());
    for (const QString& page : book().pages()) {
        const auto links =
            collected(page, [](const QTextCharFormat& format) { return QStringList(format.anchorHref()); });
        for (const QString& link : links)
            EXPECT_TRUE(exists(link.startsWith('#') ? page + link : link))
                << page.toStdString() << ": " << link.toStdString();
        const auto pictures =
            collected(page, [](const QTextCharFormat& format) { return QStringList(format.toImageFormat().name()); });
        for (const QString& picture : pictures)
            EXPECT_TRUE(QFile::exists(":/help/" + picture)) << page.toStdString() << ": " << picture.toStdString();
    }
}

TEST(HelpPages, BearTheTitlesOfTheContentsAndAreFoundByPlainWords)
{
    for (const help::Chapter& chapter : book().contents())
        EXPECT_EQ(
            document(chapter.place.section('#', 0, 0)).metaInformation(QTextDocument::DocumentTitle), chapter.title);
    const help::WordIndex index(book());
    const std::pair<const char*, const char*> sought[] = {{"warranty", "warranty.html"}, {"receipt", "gathering.html"},
        {"calendar", "calendar.html"}, {"insurance policy", "insurance.html"}};
    for (const auto& [word, page] : sought)
        EXPECT_EQ(index.find(word).at(0).page, page) << word;
    for (const char* word : {"backup", "back up", "forgot", "password", "photo", "theft"})
        EXPECT_FALSE(index.find(word).empty()) << word;
}

// ---- the real window

class HelpWindow : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        forms::setHelpDoor(manual::open);
    }

    void TearDown() override
    {
        delete window();
        ScreenTest::TearDown();
    }

    static QWidget* window(const QString& name = "help")
    {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->objectName() == name)
                return each;
        return nullptr;
    }
};

TEST_F(HelpWindow, OpensOnScreensBoxesAndReports)
{
    screen<frmMain>().show();
    EXPECT_FALSE(window());
    press(Qt::Key_F1);
    EXPECT_EQ(window()->windowTitle(), "Main Menu - Kestrill Help");
    useRealBoxes();
    whileModal([] {
        window()->hide();
        press(Qt::Key_F1);
        EXPECT_TRUE(window()->isVisible());
        EXPECT_EQ(window()->windowTitle(), "Main Menu - Kestrill Help");
        clickInBox("No");
    });
    click(screen<frmMain>().cmdLeave);
    reports::FillOutForm().show();
    user::settle();
    QTest::keyClick(window("FillOutForm")->windowHandle(), Qt::Key_F1);
    EXPECT_EQ(window()->windowTitle(), "The Print Window - Kestrill Help");
}

} // namespace
