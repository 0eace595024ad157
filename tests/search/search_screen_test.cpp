// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "platform/storage/statement.h"

namespace {

TEST_F(SearchScreenTest, EachWayInHidesTheBarAndLeavesSomeFlagsAlone)
{
    addAssets(1);
    const std::pair<std::function<void()>, const char*> ways[] = {
        {[] { openFromArea(&frmMain::cmdAuto); }, "pbSearch hidden, true, true"},
        {openFromMenu, "pbSearch hidden, true, true"},
        {[] { openFromArea(&frmMain::cmdOut, true); }, "pbSearch hidden, false, false"},
    };
    screen<frmPrint>().CustomPrint = menu().FromResults = true;
    for (const auto& [open, expected] : ways) {
        search().raise_Progress(); // as a print of one asset leaves it
        open();
        EXPECT_EQ(line(hiddenOfSearch(), menu().FromResults, screen<frmPrint>().CustomPrint), expected);
    }
    removeRows(Data1.rsInventory);
    expectBox("There Are No Available Assets To Search...Please Add An Asset Before Continuing!", Information);
    menu().FromMenu = false;
    openFromMenu();
    EXPECT_FALSE(menu().FromMenu);
}

TEST_F(SearchScreenTest, TheListsNarrowEachOther)
{
    addAssets(1);
    storage::Transaction atOnce(Data1.Home.handle());
    for (storage::TableView* table : {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile}) {
        removeRows(*table);
        for (const char* names :
            {"< Add/Edit Location >|< Add/Edit Category >|< Add/Edit Item >", "shed|0|0", "Attic|Art|Vase",
                "SHED|tools|Saw", "2nd|Tools|saw", "0|ART|< Add/Edit Item >", "0|Art|10th", "0|Art|2nd"})
            addNames(*table, QString(names).split('|'));
    }
    for (const char* names : {"Pond|0|0", "0|Art|Abacus", "0|Art|Anvil"})
        addNames(Data1.rsOutdoor, QString(names).split('|'));
    atOnce.commit();
    openFromMenu();
    replay("search/narrowing.txt");
}

} // namespace
