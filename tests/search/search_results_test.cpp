// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "core/frmStartup.h"
#include "platform/storage/statement.h"

using forms::screen;

namespace {

class SearchResults : public SearchScreenTest {
protected:
    static void expectPage(const QString& page, bool previous, bool next, int first, int rows)
    {
        EXPECT_EQ(results().lblPage.caption(), page);
        EXPECT_EQ(results().cmdPrevious.isEnabled(), previous) << qPrintable(page);
        EXPECT_EQ(results().cmdNext.isEnabled(), next) << qPrintable(page);
        QStringList numbers;
        for (int number = first; number < first + rows; ++number)
            numbers.append(QString::number(number));
        EXPECT_EQ(shown(results().txtItem), numbers);
        EXPECT_EQ(shown(results().txtIDNum), numbers);
    }

    static void expectFocus(const forms::Control& control)
    {
        EXPECT_EQ(results().activeControl(), &control) << qPrintable(results().activeControl()->name());
    }
};

TEST_F(SearchResults, ShowsEachResultInItsColumnsAndLeavesEmptyBoxesBehind)
{
    addAssets(2);
    addAsset({"Outdoor", "Barn", "Art", "Gnome", "2001", "Bolt", "M3"});
    find("2020");
    EXPECT_EQ(frmStartup::CurrentScreen, 5);
    EXPECT_EQ(results().lblRecsFound.caption(), "2 Assets Found!");
    expectPage("Page 1 of 1", false, false, 1, 2);
    const std::pair<const frmSearchResults::ResultColumn&, const char*> columns[] = {{results().txtMore, "Update"},
        {results().txtItem, "2"}, {results().txtArea, "Indoor"}, {results().txtLocation, "Attic"},
        {results().txtType, "Item 2"}, {results().txtYear, "2020"}, {results().txtMake, "Acme"},
        {results().txtModel, "None"}};
    for (const auto& [boxes, text] : columns) {
        EXPECT_EQ(boxes[1].text(), text);
        EXPECT_TRUE(boxes[1].isVisible()) << text;
        EXPECT_FALSE(boxes[2].isVisible()) << text;
    }
    EXPECT_FALSE(results().txtIDNum[1].isVisible());
    click(results().txtMake[1]);
    type("x");
    EXPECT_EQ(results().txtMake[1].text(), "Acme");

    click(results().cmdBack);
    type("bolt\n");
    EXPECT_EQ(results().txtMake[0].text(), "Bolt");
    for (const auto& [boxes, text] : columns) {
        EXPECT_EQ(boxes[1].text(), "");
        EXPECT_EQ(boxes[1].isVisible(), &boxes != &results().txtMore) << text;
    }
}

TEST_F(SearchResults, TurnsPagesForwardAndBack)
{
    addAssets(10);
    findAll();
    expectPage("Page 1 of 1", false, false, 1, 10);
    click(results().cmdMain);
    EXPECT_EQ(forms::activeForm(), &menu());
    EXPECT_EQ(results().txtMore[0].isVisible(), false);

    addAssets(11);
    findAll();
    expectPage("Page 1 of 3", false, true, 1, 10);
    results().cmdNext.setFocus();
    press(Qt::Key_Space);
    expectPage("Page 2 of 3", true, true, 11, 10);
    EXPECT_EQ(results().txtType[0].text(), "Item 1");
    press(Qt::Key_Space);
    expectPage("Page 3 of 3", true, false, 21, 1);
    EXPECT_EQ(results().txtYear[1].text(), "");
    expectFocus(results().cmdPrevious); // the next press does not leave the screen
    accessKey('v');
    expectPage("Page 2 of 3", true, true, 11, 10);
    press(Qt::Key_Return);
    expectPage("Page 1 of 3", false, true, 1, 10);
    expectFocus(results().cmdNext);
    click(results().cmdNext);
    click(results().lblSubHead[5]);
    expectPage("Page 1 of 3", false, true, 1, 10);
    click(results().cmdMain);

    Data1.rsInventory.MoveFirst();
    Data1.rsInventory.Delete();
    findAll();
    EXPECT_EQ(results().lblPage.caption(), "Page 1 of 2");
}

TEST_F(SearchResults, KeysAloneStepThroughRowsAndPagesAndOpenOne)
{
    addAssets(13);
    findAll();
    expectFocus(results().cmdNext);
    press(Qt::Key_Up);
    expectFocus(results().txtMore[9]);
    press(Qt::Key_Down);
    expectFocus(results().txtMore[9]);
    press(Qt::Key_PageUp); // there is none before the first
    press(Qt::Key_PageDown);
    expectPage("Page 2 of 2", true, false, 11, 3);
    press(Qt::Key_Down);
    expectFocus(results().txtMore[0]);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    expectFocus(results().txtMore[2]);
    press(Qt::Key_Up);
    press(Qt::Key_F1);
    EXPECT_EQ(openedHelp(), 5001);
    press(Qt::Key_PageUp);
    expectPage("Page 1 of 2", false, true, 1, 10);
    expectFocus(results().txtMore[1]);
    press(Qt::Key_Space);
    type("x");
    EXPECT_EQ(forms::activeForm(), &results());
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(results().SortColumn, 2);
    press(Qt::Key_Left);
    press(Qt::Key_Left); // there is none before the first
    EXPECT_EQ(results().SortColumn, 1);
    expectFocus(results().txtMore[1]);
    tab();
    expectFocus(results().cmdNext);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(forms::activeForm(), &screen<frmAddUpDel>());
    EXPECT_EQ(results().SelectedAsset, "1");
}

TEST_F(SearchResults, OpensTheAssetOfItsRowForUpdate)
{
    addAssets(3);
    find("item");
    click(results().txtMore[1]);
    auto& asset = screen<frmAddUpDel>();
    EXPECT_EQ(forms::activeForm(), &asset);
    EXPECT_FALSE(results().isVisible());
    EXPECT_EQ(results().SelectedAsset, "2");
    EXPECT_EQ(asset.AssetKey, 2);
    EXPECT_EQ(asset.defaultButton(), &asset.cmdUpdate);
    EXPECT_TRUE(menu().FromResults);
    EXPECT_EQ(asset.cmbType.text(), "Item 2");
}

TEST_F(SearchResults, AnIdOfMoreThan16BitsEndsTheProgramOnOpening)
{
    addAssets(1);
    storage::execute(Data1.Home.handle(), "UPDATE sqlite_sequence SET seq = 32766 WHERE name = 'Inventory'");
    addAssets(2);
    find("item");
    EXPECT_EQ(shown(results().txtIDNum), QStringList({"1", "32767", "32768"}));
    click(results().txtMore[2]);
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->handler, "frmSearchResults.txtMore(2)_Click");
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 3);
    results().txtMore[1].setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(screen<frmAddUpDel>().AssetKey, 32767);
}

// As the asset screen does when it is left.
TEST_F(SearchResults, ComingBackSearchesAgainWithoutQuestionAndMayLeaveAnEmptyPage)
{
    addAssets(11);
    findAll();
    press(Qt::Key_PageDown);
    click(results().txtMore[0]);
    const auto comeBack = [] {
        results().FromSearchScreen = false;
        results().load_From_Search_Screen();
        results().show();
        screen<frmAddUpDel>().hide();
    };
    comeBack();
    expectPage("Page 1 of 2", false, true, 1, 10);
    EXPECT_EQ(forms::activeForm(), &results());

    click(results().cmdBack);
    type("item 11\n");
    EXPECT_EQ(results().lblRecsFound.caption(), "1 Asset Found!");
    click(results().txtMore[0]);
    Data1.rsInventory.Fields(Inventory::Type) = "Gone";
    Data1.rsInventory.Update();
    comeBack();
    EXPECT_EQ(shown(results().txtItem), QStringList());
    EXPECT_EQ(results().lblRecsFound.caption(), "1 Asset Found!");
    EXPECT_EQ(results().lblPage.caption(), "Page 1 of 1");
    EXPECT_FALSE(search().pbSearch.isVisible());
    press(Qt::Key_Down);
    EXPECT_EQ(forms::activeForm(), &results());
}

TEST_F(SearchResults, ALongTextStandsWholeInTheToolTip)
{
    const QString make = "A maker with a very long name of " + QString(40, u'm');
    addAssets(1, make);
    find("item");
    EXPECT_EQ(results().txtMake[0].text(), make);
    EXPECT_EQ(results().txtMake[0].toolTip(), make);
    EXPECT_EQ(results().txtArea[0].toolTip(), "");
}

} // namespace
