// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "platform/storage/statement.h"

using forms::screen;

namespace {

class SearchResults : public SearchScreenTest {
protected:
    // "Page 2 of 3: 11-20, previous next"
    static QString page()
    {
        const QStringList numbers = shown(results().txtItem);
        EXPECT_EQ(shown(results().txtIDNum), numbers);
        EXPECT_EQ(numbers.last().toInt() - numbers.first().toInt() + 1, numbers.size());
        return results().lblPage.caption() + ": " + numbers.first() + "-" + numbers.last()
            + (results().cmdPrevious.isEnabled() ? " previous" : "") + (results().cmdNext.isEnabled() ? " next" : "");
    }

    static void expectFocus(const forms::Control& control)
    {
        EXPECT_EQ(results().activeControl(), &control) << qPrintable(results().activeControl()->name());
    }

    // As the asset screen does when it is left.
    static void comeBack()
    {
        results().FromSearchScreen = false;
        results().load_From_Search_Screen();
        results().show();
        screen<frmAddUpDel>().hide();
    }
};

TEST_F(SearchResults, ShowsEachResultInItsColumnsAndLeavesEmptyBoxesBehind)
{
    const QString make = "A maker with a very long name of " + QString(40, u'm');
    addAssets(2, make);
    addAssetRow({"Outdoor", "Barn", "Art", "Gnome", "2001", "Bolt", "M3"});
    find("2020");
    EXPECT_EQ(scene(), "5 frmSearchResults: cmdBack");
    EXPECT_EQ(results().lblRecsFound.caption(), "2 Assets Found!");
    EXPECT_EQ(page(), "Page 1 of 1: 1-2");
    const std::pair<const frmSearchResults::ResultColumn&, QString> columns[] = {{results().txtMore, "Update"},
        {results().txtItem, "2"}, {results().txtArea, "Indoor"}, {results().txtLocation, "Attic"},
        {results().txtType, "Item 2"}, {results().txtYear, "2020"}, {results().txtMake, make},
        {results().txtModel, "None"}};
    for (const auto& [boxes, text] : columns) {
        EXPECT_EQ(boxes[1].text(), text);
        EXPECT_TRUE(boxes[1].isVisible() && !boxes[2].isVisible()) << text.toStdString();
    }
    EXPECT_EQ(results().txtMake[1].toolTip() + results().txtArea[1].toolTip(), make)
        << "a long text stands there whole";
    EXPECT_FALSE(results().txtIDNum[1].isVisible());
    click(results().txtMake[1]);
    type("x");
    EXPECT_EQ(results().txtMake[1].text(), make);

    click(results().cmdBack);
    type("bolt\n");
    EXPECT_EQ(results().txtMake[0].text(), "Bolt");
    for (const auto& [boxes, text] : columns) {
        EXPECT_EQ(boxes[1].text(), "");
        EXPECT_EQ(boxes[1].isVisible(), &boxes != &results().txtMore) << text.toStdString();
    }
}

TEST_F(SearchResults, TurnsPagesForwardAndBack)
{
    addAssets(10);
    findAll();
    EXPECT_EQ(page(), "Page 1 of 1: 1-10");
    click(results().cmdMain);
    EXPECT_EQ(forms::activeForm(), &menu());
    EXPECT_FALSE(results().txtMore[0].isVisible());

    addAssets(11);
    findAll();
    EXPECT_EQ(page(), "Page 1 of 3: 1-10 next");
    results().cmdNext.setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(page(), "Page 2 of 3: 11-20 previous next");
    EXPECT_EQ(results().txtType[0].text(), "Item 1");
    press(Qt::Key_Space);
    EXPECT_EQ(page(), "Page 3 of 3: 21-21 previous");
    EXPECT_EQ(results().txtYear[1].text(), "");
    expectFocus(results().cmdPrevious); // the next press does not leave the screen
    accessKey('v');
    EXPECT_EQ(page(), "Page 2 of 3: 11-20 previous next");
    press(Qt::Key_Return);
    EXPECT_EQ(page(), "Page 1 of 3: 1-10 next");
    expectFocus(results().cmdNext);
    click(results().cmdNext);
    click(results().lblSubHead[5]);
    EXPECT_EQ(page(), "Page 1 of 3: 1-10 next");
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
    EXPECT_EQ(page(), "Page 2 of 2: 11-13 previous");
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
    EXPECT_EQ(page(), "Page 1 of 2: 1-10 next");
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

TEST_F(SearchResults, OpensTheAssetOfItsRowForUpdateUnlessItsIdIsOfMoreThan16Bits)
{
    addAssets(1);
    storage::execute(Data1.Home.handle(), "UPDATE sqlite_sequence SET seq = 32766 WHERE name = 'Inventory'");
    addAssets(2);
    find("item");
    EXPECT_EQ(shown(results().txtIDNum).join(' '), "1 32767 32768");
    click(results().txtMore[2]);
    EXPECT_EQ(failedHandler(), "frmSearchResults.txtMore(2)_Click");
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 3);
    click(results().txtMore[1]);
    const auto& asset = screen<frmAddUpDel>();
    EXPECT_EQ(scene(), "10 frmAddUpDel: cmbArea");
    EXPECT_EQ(results().SelectedAsset + asset.cmbType.text(), "32767Item 1");
    EXPECT_EQ(asset.AssetKey, 32767);
    EXPECT_EQ(asset.defaultButton(), &asset.cmdUpdate);
    EXPECT_TRUE(menu().FromResults);
}

TEST_F(SearchResults, ComingBackSearchesAgainWithoutQuestionAndMayLeaveAnEmptyPage)
{
    addAssets(11);
    findAll();
    press(Qt::Key_PageDown);
    click(results().txtMore[0]);
    comeBack();
    EXPECT_EQ(page(), "Page 1 of 2: 1-10 next");
    EXPECT_EQ(forms::activeForm(), &results());

    click(results().cmdBack);
    type("item 11\n");
    EXPECT_EQ(results().lblRecsFound.caption(), "1 Asset Found!");
    click(results().txtMore[0]);
    put(Data1.rsInventory, {{Inventory::Type, "Gone"}});
    comeBack();
    EXPECT_EQ(shown(results().txtItem), QStringList());
    EXPECT_EQ(results().lblRecsFound.caption() + results().lblPage.caption(), "1 Asset Found!Page 1 of 1");
    EXPECT_FALSE(search().pbSearch.isVisible());
    press(Qt::Key_Down);
    EXPECT_EQ(forms::activeForm(), &results());
}

} // namespace
