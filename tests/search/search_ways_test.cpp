// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "core/frmProgress.h"
#include "core/frmStartup.h"

using forms::Answer;
using forms::screen;

namespace {

class SearchWays : public SearchScreenTest {
protected:
    static void leaveTo(const forms::Form& form)
    {
        accessKey('c');
        EXPECT_EQ(forms::activeForm(), &form);
        EXPECT_FALSE(search().isVisible());
        EXPECT_EQ(search().activeControl(), &search().cmdContinue);
    }

    static void expectLists(const QString& area, bool free)
    {
        EXPECT_EQ(search().cmbArea.text(), area);
        EXPECT_EQ(search().cmbArea.isEnabled(), free);
        EXPECT_EQ(search().cmbLocation.listCount() > 1, area != "Any");
        for (const forms::ComboBox* box : {&search().cmbLocation, &search().cmbCat, &search().cmbType})
            EXPECT_EQ(box->text(), "Any");
        EXPECT_FALSE(search().pbSearch.isVisible());
        EXPECT_TRUE(search().lblHead[3].isVisible());
    }
};

TEST_F(SearchWays, WithoutAssetsNothingIsSearchedAndNothingChanges)
{
    menu().FromMenu = false;
    expectBox("There Are No Available Assets To Search...Please Add An Asset Before Continuing!", Information);
    openFromMenu();
    EXPECT_EQ(forms::activeForm(), &menu());
    EXPECT_FALSE(menu().FromMenu);
}

TEST_F(SearchWays, EachMenuPreparesTheScreenAndGetsTheUserBack)
{
    addAssets(1);
    screen<frmPrint>().CustomPrint = true;
    openFromArea(&frmMain::cmdAuto);
    EXPECT_EQ(search().lblHead[0].caption(), "Search For Asset To Update");
    EXPECT_EQ(frmStartup::CurrentScreen, 4);
    expectLists("Mobile", false);
    leaveTo(screen<frmPrint>()); // the update search has left CustomPrint alone

    openFromMenu();
    EXPECT_EQ(search().lblHead[0].caption(), "Search For Assets");
    expectLists("Any", true);
    EXPECT_EQ(search().txtKey.text(), "");
    EXPECT_FALSE(menu().isVisible());
    search().txtKey.setFocus();
    type("lamp");
    leaveTo(menu());

    menu().FromResults = true;
    openFromArea(&frmMain::cmdOut, true);
    EXPECT_EQ(search().lblHead[0].caption(), "Search For Asset To Delete");
    EXPECT_EQ(search().txtKey.text(), "lamp");
    expectLists("Outdoor", false);
    EXPECT_FALSE(menu().FromResults);
    EXPECT_FALSE(screen<frmPrint>().CustomPrint);
    leaveTo(menu()); // the delete search has left FromMenu alone

    menu().FromResults = true;
    openFromArea(&frmMain::cmdIn);
    EXPECT_EQ(search().txtKey.text(), "");
    expectLists("Indoor", false);
    EXPECT_TRUE(menu().FromResults);
    leaveTo(screen<frmAuto>());
}

TEST_F(SearchWays, ResetFreesTheAreaAndEmptiesTheWord)
{
    addAssets(1);
    openFromArea(&frmMain::cmdIn);
    type(search().txtKey, "lamp");
    click(search().cmdClearForm);
    expectLists("Any", true);
    EXPECT_EQ(search().txtKey.text(), "");
    EXPECT_EQ(search().activeControl(), &search().txtKey);
}

TEST_F(SearchWays, TabGoesThroughTheScreenAndF1ToItsHelp)
{
    addAssets(1);
    openFromArea(&frmMain::cmdIn);
    search().txtKey.setFocus();
    paste(QString(300, u'x'));
    EXPECT_EQ(search().txtKey.text().size(), 254);
    pick(search().cmbLocation, "Attic");
    search().txtKey.setFocus();
    EXPECT_EQ(search().txtKey.selectionLength(), 254);
    for (const forms::Control* control :
        std::initializer_list<const forms::Control*>{&search().cmbLocation, &search().cmbCat, &search().cmbType,
            &search().cmdBack, &search().cmdClearForm, &search().cmdContinue, &search().txtKey}) {
        press(Qt::Key_F1);
        EXPECT_EQ(openedHelp(), 4001);
        tab();
        EXPECT_EQ(search().activeControl(), control) << qPrintable(control->name());
    }
}

TEST_F(SearchWays, TheCloseBoxOfBothScreensAsksBeforeTheProgramCloses)
{
    addAssets(1);
    const auto refuse = [this](forms::Form& form) {
        expectBox("Are You Sure You Want To Close Kestrill?", 36, Answer::No);
        closeBox(form);
        EXPECT_EQ(forms::activeForm(), &form);
    };
    openFromMenu();
    refuse(search());
    type("acme\n");
    refuse(results());
    EXPECT_FALSE(screen<frmProgress>().isVisible());
}

} // namespace
