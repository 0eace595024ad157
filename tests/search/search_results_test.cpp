// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "platform/storage/statement.h"

#include <QAccessible>
#include <QWidget>

namespace {

class SearchResults : public SearchScreenTest {
protected:
    // "Page 2 of 3: 11-20, previous next"
    static QString page()
    {
        const QStringList numbers = shown(results().txtItem);
        EXPECT_EQ(shown(results().txtIDNum), numbers);
        const QString first = numbers.value(0), last = numbers.value(numbers.size() - 1);
        EXPECT_EQ(last.toInt() - first.toInt() + 1, numbers.size());
        return results().lblPage.caption() + ": " + first + "-" + last
            + (results().cmdPrevious.isEnabled() ? " previous" : "") + (results().cmdNext.isEnabled() ? " next" : "");
    }

    // And with the control that has the focus.
    static QString place() { return page() + ", " + results().activeControl()->name(); }

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
    const auto keys = [](const std::vector<Qt::Key>& pressed) { return [pressed] { press(pressed); }; };
    // A button that is off has handed the focus on, so that the next press does not leave the screen.
    const std::pair<std::function<void()>, QString> steps[] = {
        {[] { results().cmdNext.setFocus(); }, "Page 1 of 3: 1-10 next, cmdNext"},
        {keys({Qt::Key_Space}), "Page 2 of 3: 11-20 previous next, cmdNext"},
        {keys({Qt::Key_Space}), "Page 3 of 3: 21-22 previous, cmdPrevious"},
        {[] { accessKey('v'); }, "Page 2 of 3: 11-20 previous next, cmdPrevious"},
        {keys({Qt::Key_Return}), "Page 1 of 3: 1-10 next, cmdNext"},
        {[] { click(results().cmdNext); }, "Page 2 of 3: 11-20 previous next, cmdNext"},
        {[] { click(results().lblSubHead[5]); }, "Page 1 of 3: 1-10 next, cmdNext"},
        {keys({Qt::Key_Up}), "Page 1 of 3: 1-10 next, txtMore(9)"},
        {keys({Qt::Key_Down}), "Page 1 of 3: 1-10 next, txtMore(9)"},
        {keys({Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_PageDown}), "Page 3 of 3: 21-22 previous, cmdPrevious"},
        {keys({Qt::Key_Up, Qt::Key_Down}), "Page 3 of 3: 21-22 previous, txtMore(1)"},
        {keys({Qt::Key_Up, Qt::Key_Up}), "Page 3 of 3: 21-22 previous, txtMore(0)"},
        {keys({Qt::Key_PageUp, Qt::Key_Down, Qt::Key_Down}), "Page 2 of 3: 11-20 previous next, txtMore(2)"},
        {keys({Qt::Key_Up, Qt::Key_Space, Qt::Key_X}), "Page 2 of 3: 11-20 previous next, txtMore(1)"},
    };
    for (const auto& [step, expected] : steps) {
        step();
        EXPECT_EQ(place(), expected);
    }
    QStringList sorts; // with the page, which is the first again; there is nothing beyond the first and the last
    for (const char direction : std::string("<>>><<<<<<")) {
        press(Qt::Key_PageDown);
        press(direction == '<' ? Qt::Key_Left : Qt::Key_Right, Qt::ControlModifier);
        sorts += QString::number(results().SortColumn) + '.' + QString::number(results().CurrentPage);
    }
    press({Qt::Key_PageUp, Qt::Key_F1});
    EXPECT_EQ(line(sorts.join(' '), place(), openedHelp().value(), results().FromSearchScreen),
        "5.1 6.1 7.1 7.2 6.1 5.1 4.1 2.1 1.1 1.2, Page 1 of 3: 1-10 next, txtMore(1), 5001, false");
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
    EXPECT_EQ(place(), "Page 1 of 2: 1-10 next, cmdNext");
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
