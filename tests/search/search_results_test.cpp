// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "platform/storage/statement.h"
#include "support/files.h"

#include <QAccessible>
#include <QWidget>

namespace {

class SearchResults : public SearchScreenTest {
protected:
    // "Page 2 of 3: 11-20, previous next"
    static QString page()
    {
        const QStringList numbers = shown(results().txtItem);
        EXPECT_EQ(shown(results().txtIDNum).size(), numbers.size());
        const QString first = numbers.value(0), last = numbers.value(numbers.size() - 1);
        EXPECT_EQ(last.toInt() - first.toInt() + 1, numbers.size());
        return results().lblPage.caption() + ": " + first + "-" + last
            + (results().cmdPrevious.isEnabled() ? " previous" : "") + (results().cmdNext.isEnabled() ? " next" : "");
    }

    // And with the first asset there, the column of the order and the control that has the focus.
    static QString place()
    {
        return page()
            + QString(", asset %1, by %2, ").arg(shown(results().txtIDNum).value(0)).arg(int(results().SortColumn))
            + results().activeControl()->name();
    }

    // As a screen reader calls it.
    static QString told(QWidget& widget)
    {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }

    void comeBack()
    {
        clickTold(screen<frmAddUpDel>().cmdCancel, "Any Unsaved Changes Will Be Lost...Continue?", YesNoQuestion,
            Answer::Yes);
    }
};

TEST_F(SearchResults, PagesAndRowsAreSteppedThroughByMouseAndByKeys)
{
    const QString make = "A maker with a very long name of " + QString(40, u'm'); // stands whole under the pointer
    addAssets(10, make);
    findAll();
    EXPECT_EQ(line(page(), results().txtMake[1].toolTip(), results().txtArea[1].toolTip()),
        line("Page 1 of 1: 1-10", make, ""));
    click(results().cmdMain);
    EXPECT_EQ(line(scene(), results().txtMore[0].isVisible()), "2 frmMain: cmdSearch, false");

    addAssets(12);
    findAll();
    results().cmdNext.setFocus();
    // A button that is off has handed the focus on, so that the next press does not leave the screen. There is nothing
    // beyond the first column and the last, nor beyond the first page and the last.
    expectSteps("search/paging.txt", [this](const QString& step) { return (played(step) << place()).join("; "); });
    EXPECT_EQ(told(*results().window()), "Search Results, 22 Assets Found!");
    EXPECT_EQ(told(*results().txtMore[1].widget()), "Update 2: Item 2, Attic, 2020, " + make);
    click(results().txtType[0]);
    press({Qt::Key_Home, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left});
    press(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    const forms::TextBox& asset = results().txtType[0];
    EXPECT_EQ(line(int(results().SortColumn), asset.selectionStart(), asset.selectionLength()), "1, 1, 4");
    press({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(line(front(), results().SelectedAsset), "10 frmAddUpDel, 1");
}

TEST_F(SearchResults, OpensTheAssetOfItsRowForUpdateUnlessItsIdIsOfMoreThan16Bits)
{
    addAssets(1);
    find("item");
    EXPECT_EQ(shown(results().txtIDNum).join(' '), "1");
    storage::execute(Data1.Home.handle(), "UPDATE sqlite_sequence SET seq = 32766 WHERE name = 'Inventory'");
    addAssets(2);
    find("item");
    EXPECT_EQ(shown(results().txtIDNum).join(' '), "1 32767 32768");
    click(results().txtMore[2]);
    EXPECT_EQ(line(failedHandler(), Data1.rsInventory.RecordCount()), "frmSearchResults.txtMore(2)_Click, 3");
    click(results().txtMore[1]);
    const auto& asset = screen<frmAddUpDel>();
    EXPECT_EQ(line(scene(), asset.cmbType.text(), results().SelectedAsset, int(asset.AssetKey), menu().FromResults),
        "10 frmAddUpDel: cmbArea, Item 1, 32767, 32767, true");
}

TEST_F(SearchResults, ComingBackSearchesAgainWithoutQuestionAndMayLeaveAnEmptyPage)
{
    addAssets(11);
    findAll();
    results().cmdNext.setFocus();
    press({Qt::Key_Space, Qt::Key_Space}); // not on to the button behind them
    EXPECT_EQ(place(), "Page 1 of 2: 1-10 next, asset 1, by 0, cmdNext");
    press(Qt::Key_PageDown);
    click(results().txtMore[0]);
    comeBack();
    EXPECT_EQ(line(front(), page()), "5 frmSearchResults, Page 1 of 2: 1-10 next");

    click(results().cmdBack);
    type(search().txtKey, "item 11\n");
    click(results().txtMore[0]);
    put(Data1.rsInventory, {{Inventory::Type, "Gone"}});
    comeBack();
    press(Qt::Key_Down);
    EXPECT_EQ(line(front(), results().lblRecsFound.caption(), results().lblPage.caption(), hiddenOfSearch()),
        "5 frmSearchResults, 1 Asset Found!, Page 1 of 1, pbSearch hidden");
    EXPECT_EQ(shown(results().txtItem), QStringList());
}

// A search is no report, and goes on behind the one that is open.
TEST_F(SearchResults, ArePrintedWhileNoOtherReportIsOpen)
{
    addAssets(3);
    findAll();
    click(results().cmdPrint);
    const QWidget* const report = reportWindow();
    EXPECT_TRUE(report);
    click(results().cmdBack);
    type(search().txtKey, "item 2\n");
    EXPECT_EQ(line(front(), staged(Print::Type).join(' ')), "5 frmSearchResults, Item 2");
    clickTold(results().cmdPrint, "Please Close Print Window Before Selecting Another Report To Print!", Exclamation);
    EXPECT_EQ(report, reportWindow());
    closeReport();
    Data1.rsGeneral.Delete(); // the household whose report it is
    clickTold(
        results().cmdPrint, "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!", Stop);
    EXPECT_FALSE(reportWindow());
}

} // namespace
