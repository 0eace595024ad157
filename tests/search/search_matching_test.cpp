// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "core/frmProgress.h"
#include "platform/storage/statement.h"

using forms::screen;

namespace {

class SearchMatching : public SearchScreenTest {
protected:
    // Columns from Area to Description.
    static void addThree()
    {
        addAsset({"INDOOR", "attic", "Art", "Vase", "1931", "Acme", "M1", "SN-7", "1/2/2020", "$12.50", "Yes", "Safe",
            "Étagère of oak"});
        addAsset({"Indoor", "Attic", "Tools", "Saw", "1950", "Bolt", "M2", "SN-8", "1/2/2021", "$99.00", "No", "None",
            "oaken "});
        addAsset({"Outdoor", "Barn", "Art", "Gnome", "2000", "Acme", "M3", "SN-9", "1/2/2022", "$7.00", "No", "None",
            "50% % * ?"});
        Data1.rsInventory.Fields(Inventory::WarrantyDescription) = "parts only";
        Data1.rsInventory.Update();
    }

    // The warranty sets the makes found apart; a search from the menu each time.
    static QStringList found(const QString& word)
    {
        find(word);
        return staged(Print::Model);
    }
};

TEST_F(SearchMatching, TheWordIsLookedForInEveryColumnButTheWarranty)
{
    addThree();
    const std::pair<const char*, QStringList> words[] = {{"attic", {"M1", "M2"}}, {"OAK", {"M1", "M2"}}, {"Oak ", {}},
        {"oaken ", {"M2"}}, {"étagÈre", {"M1"}}, {"yes", {"M1"}}, {"sn-9", {"M3"}}, {"3", {"M1", "M3"}},
        {"% *", {"M3"}}, {"*", {"M3"}}, {"outdoor", {"M3"}}, {"TOOLS", {"M2"}}, {"gnome", {"M3"}}, {"1950", {"M2"}},
        {"bolt", {"M2"}}, {"1/2/2022", {"M3"}}, {"$99", {"M2"}}, {"safe", {"M1"}}, {"parts only", {}}, {"art oak", {}},
        {"m1", {"M1"}}};
    for (const auto& [word, models] : words) {
        if (models.isEmpty())
            findNothing(word);
        else
            EXPECT_EQ(found(word), models) << word;
    }
}

TEST_F(SearchMatching, TheListsAskForWholeValuesAndForTheWordToo)
{
    addThree();
    openFromMenu();
    pick(search().cmbArea, "Indoor");
    press(Qt::Key_Return);
    EXPECT_EQ(staged(Print::Model), QStringList({"M1", "M2"}));
    click(results().cmdBack); // New Search keeps the lists
    EXPECT_EQ(search().cmbArea.text(), "Indoor");
    pick(search().cmbLocation, "Attic");
    type(search().txtKey, "ACME\n");
    EXPECT_EQ(staged(Print::Model), QStringList({"M1"}));
    EXPECT_EQ(staged(Print::Description), QStringList({"Étagère of oak"}));
    EXPECT_EQ(staged(Print::ID), QStringList({"1"}));
    click(results().cmdBack);
    EXPECT_EQ(search().txtKey.text(), "");
    pick(search().cmbCat, "Tools");
    press(Qt::Key_Return);
    EXPECT_EQ(staged(Print::Model), QStringList({"M2"}));
    click(results().cmdBack);
    pick(search().cmbCat, "Art");
    pick(search().cmbType, "Any");
    search().cmbType.setText("Va");
    forms::setMessageDoor([](const forms::Message&) { return forms::Answer::OK; });
    press(Qt::Key_Return); // a part of a value is none
    EXPECT_EQ(Data1.rsPrint.RecordCount(), 0);
}

TEST_F(SearchMatching, AllAssetsAreShownOnlyAfterAQuestion)
{
    addThree();
    openFromMenu();
    expectBox("This Search Will Display All Assets...Continue?", AllQuestion, forms::Answer::No);
    press(Qt::Key_Return);
    EXPECT_EQ(forms::activeForm(), &search());
    EXPECT_EQ(search().activeControl(), &search().txtKey);
    EXPECT_EQ(Data1.rsPrint.RecordCount(), 0);

    findAll();
    EXPECT_EQ(forms::activeForm(), &results());
    EXPECT_FALSE(search().isVisible());
    EXPECT_EQ(results().lblRecsFound.caption(), "3 Assets Found!");
    EXPECT_FALSE(search().pbSearch.isVisible());
    EXPECT_TRUE(search().lblHead[3].isVisible());
}

TEST_F(SearchMatching, NothingFoundIsToldUnderItsOwnTitleAndDoesNotCloseTheProgram)
{
    addThree();
    findNothing("nowhere");
    EXPECT_FALSE(forms::detail::findScreen(typeid(frmProgress)));
    EXPECT_TRUE(search().lblHead[3].isVisible());
    EXPECT_FALSE(search().pbSearch.isVisible());
    EXPECT_EQ(results().AnyShown, false);
    EXPECT_EQ(found("vase"), QStringList({"M1"}));
    EXPECT_EQ(results().lblRecsFound.caption(), "1 Asset Found!");
    findNothing("nowhere"); // what the last search staged is gone
}

TEST_F(SearchMatching, AHeaderSortsThisSearchAndAllLaterOnes)
{
    addAsset({"Outdoor", "b", "c", "lamp", "2001", "x", "m9"});
    addAsset({"Mobile", "C", "a", "Desk", "1999", "z", "m8"});
    addAsset({"Indoor", "a", "b", "bench", "2000", "Y", "m7"});
    find("m");
    const auto mark = [](int header) { return results().lblSorted[header].isVisible(); };
    EXPECT_EQ(staged(Print::ID), QStringList({"1", "2", "3"}));
    const std::pair<int, QStringList> orders[] = {{1, {"3", "2", "1"}}, {2, {"3", "1", "2"}}, {3, {"3", "2", "1"}},
        {4, {"2", "3", "1"}}, {5, {"1", "3", "2"}}, {6, {"3", "2", "1"}}, {4, {"2", "3", "1"}}};
    int last = 0;
    for (const auto& [header, order] : orders) {
        click(results().lblSubHead[header]);
        EXPECT_EQ(staged(Print::ID), order) << header;
        EXPECT_EQ(shown(results().txtIDNum), order) << header;
        EXPECT_EQ(results().lblPage.caption(), "Page 1 of 1");
        EXPECT_TRUE(mark(header)) << header;
        EXPECT_FALSE(last && last != header && mark(last)) << last;
        last = header;
    }
    click(results().lblSubHead[0]);
    EXPECT_EQ(results().SortColumn, 5);
    EXPECT_EQ(shown(results().txtType), QStringList({"Desk", "bench", "lamp"}));
    click(results().cmdMain);
    find("b"); // and the view itself stays sorted
    EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::ID), QStringList({"2", "3", "1"}));
    EXPECT_EQ(staged(Print::ID), QStringList({"2", "3", "1"})); // by "Mobile", "bench" and "b"
    EXPECT_TRUE(mark(4));
}

TEST_F(SearchMatching, MoreMatchesThanCanBeCountedEndTheProgramWithNothingLost)
{
    {
        storage::Transaction atOnce(Data1.Home.handle());
        addAssets(32'767);
        atOnce.commit();
    }
    find("acme");
    EXPECT_EQ(results().lblRecsFound.caption(), "32767 Assets Found!");
    EXPECT_EQ(results().lblPage.caption(), "Page 1 of 3277");
    results().PageOffset = 32'750; // the last page but one
    results().CurrentPage = 3276;
    press(Qt::Key_PageDown);
    EXPECT_EQ(shown(results().txtItem).last(), "32767");
    EXPECT_FALSE(results().cmdNext.isEnabled());

    click(results().cmdMain);
    addAssets(1);
    find("acme");
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->handler, "frmSearch.cmdContinue_Click");
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 32'768);
}

TEST_F(SearchMatching, AStagingThatCannotBeWrittenIsReportedAndLeavesTheAssets)
{
    addThree();
    storage::execute(Data1.Home.handle(),
        "CREATE TEMP TRIGGER NoRoom BEFORE INSERT ON Print BEGIN SELECT RAISE(ABORT, 'no room'); END");
    find("acme");
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->failure.contains("no room")) << qPrintable(failure->failure);
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 3);
    EXPECT_EQ(Data1.rsPrint.RecordCount(), 0); // what the file holds
}

} // namespace
