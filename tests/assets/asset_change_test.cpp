// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

using forms::Answer;
using forms::screen;

namespace {

constexpr int Warning = 52;

const char* const Updated = "            Asset Has Been Updated!";
const char* const Deleted = "            Asset Has Been Deleted!";
const char* const DeleteQuestion = "Deleting This Asset Will Be Permanent...Continue?";
const char* const PrintError = "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!";
const char* const Desk20 =
    "Indoor|Library|Antiques|Antique Desk|2026|Unknown|Unknown|Unknown|11/24/2026|$20.00|No|None|None|New|None";

// Three assets at $10.00, $20.00 and $30.00; the second is open.
class AssetChange : public AssetScreenTest {
protected:
    AssetChange()
    {
        addDesks({"$10.00", "$20.00", "$30.00"});
        openFound("2");
    }

    void update(const QString& message = Updated, int flags = Information)
    {
        clickTold(asset().cmdUpdate, message, flags);
    }

    void remove()
    {
        expectBox(DeleteQuestion, Warning, Answer::Yes);
        clickTold(asset().cmdDelete, Deleted, Information);
    }
};

TEST_F(AssetChange, UpdateWritesEveryColumnButTheWarrantyAndTeachesNoName)
{
    stored(2, Inventory::ID);
    put(Data1.rsInventory, {{Inventory::PartsType, "Limited"}});
    const int known = Data1.rsOutdoor.RecordCount();
    pick(asset().cmbArea, "Outdoor");
    pick(asset().cmbLoc, "Barn");
    pick(asset().cmbCat, "Animal Care");
    retype(asset().cmbType, "Hen House");
    fillInTheRest();
    enterPrice("25.5");
    update();
    reopenData();
    EXPECT_EQ(row(2),
        "Outdoor|Barn|Animal Care|Hen House|1890|Acme|M 2|S-3|11/24/2026|$25.50|Yes|Desk drawer|Oak\nold|Used|Limited");
    EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::Area), QStringList({"Indoor", "Outdoor", "Indoor"}));
    EXPECT_EQ(inventory(), "3: $65.50");
    EXPECT_EQ(Data1.rsOutdoor.RecordCount(), known);

    click(asset().optPurNewUsed[0]);
    click(asset().optRecOnFile[1]);
    asset().txtDescription.setText({});
    asset().cmbArea.setFocus();
    expectBox(Updated, Information);
    press(Qt::Key_Return); // the default button
    EXPECT_EQ(
        row(2), "Outdoor|Barn|Animal Care|Hen House|1890|Acme|M 2|S-3|11/24/2026|$25.50|No|None|None|New|Limited");
    EXPECT_EQ(inventory(), "3: $65.50") << "the same price moves the total once";
}

TEST_F(AssetChange, APriceThatTheCheckRefusesHasMovedTheTotalAlready)
{
    enterPrice({});
    press(Qt::Key_Delete); // the field makes "$.00" of it
    update(NoPrice, Exclamation);
    EXPECT_EQ(inventory(), "3: $40.00");
    EXPECT_EQ(row(2), Desk20);
    EXPECT_EQ(asset().activeControl(), &asset().txtPPrice);
    enterPrice("5");
    update();
    EXPECT_EQ(inventory() + " " + stored(2, Inventory::Amount), "3: $45.00 $5.00");
}

TEST_F(AssetChange, OfARowThatIsGoneIsSilent)
{
    stored(2, Inventory::ID);
    Data1.rsInventory.Delete();
    asset().cmdPrint.setEnabled(false);
    enterPrice("25");
    click(asset().cmdUpdate);
    EXPECT_TRUE(asset().cmdPrint.isEnabled());
    EXPECT_EQ(inventory(), "2: $65.00");
    clickTold(asset().cmdDelete, DeleteQuestion, Warning, Answer::Yes);
    EXPECT_TRUE(asset().isVisible());
    EXPECT_EQ(inventory(), "2: $65.00");
}

TEST_F(AssetChange, OfATextThatIsNoneTellsOfTheDateAndLeavesRowAndTotal)
{
    enterPrice("1/2");
    update(BadDate, Exclamation);
    EXPECT_EQ(asset().activeControl(), &asset().txtPur);
    enterPrice("20");
    asset().txtPur.setText("2/30/2006");
    asset().txtMake.setText("Acme");
    update(BadDate, Exclamation);
    EXPECT_EQ(row(2), Desk20);
    asset().txtPur.setText("2/28/2006");
    update();
    EXPECT_EQ(stored(2, Inventory::Make), "Acme");
    EXPECT_EQ(inventory(), "3: $60.00");
}

TEST_F(AssetChange, ThatTheFileRefusesIsToldAndTheStoredRowStays)
{
    asset().txtMake.setText("Acme");
    enterPrice("25");
    refuseWrites("UPDATE", "Inventory");
    update(BadDate, Exclamation);
    EXPECT_EQ(inventory(), "3: $65.00") << "the total went before";
    EXPECT_EQ(asset().activeControl(), &asset().txtPur);
    EXPECT_EQ(asset().txtMake.text(), "Acme") << "what was typed isn't lost";

    refuseWrites("UPDATE", "Personal_Info");
    enterPrice("26");
    update(BadDate, Exclamation);
    openFound("2");
    EXPECT_EQ(asset().txtMake.text() + asset().txtPPrice.text(), "Unknown$20.00");
    reopenData();
    EXPECT_EQ(row(2), Desk20);
    EXPECT_EQ(inventory(), "3: $65.00");
}

TEST_F(AssetChange, DeleteAsksTellsAndTakesThePriceInTheBoxOffTheTotal)
{
    clickTold(asset().cmdDelete, DeleteQuestion, Warning, Answer::No);
    EXPECT_EQ(inventory(), "3: $60.00");
    EXPECT_TRUE(asset().isVisible());

    screen<frmSearchResults>().FromSearchScreen = true;
    enterPrice("25"); // not updated
    QStringList told;
    forms::setMessageDoor([&](const forms::Message& message) {
        told.append(message.text + " " + inventory());
        return told.size() == 1 ? Answer::Yes : Answer::OK;
    });
    click(asset().cmdDelete);
    EXPECT_EQ(told, QStringList({QString(DeleteQuestion) + " 3: $60.00", QString(Deleted) + " 3: $60.00"}))
        << "told before it is done";
    EXPECT_FALSE(screen<frmSearchResults>().FromSearchScreen);
    EXPECT_EQ(scene(), "2 frmMain: cmdIn");
    reopenData();
    EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::Amount), QStringList({"$10.00", "$30.00"}));
    EXPECT_EQ(inventory(), "2: $35.00");
}

TEST_F(AssetChange, ADeleteThatFailsIsReportedWithTheRowWholeOrGone)
{
    enterPrice("1/2"); // the total can't follow, so the row is gone by then
    remove();
    EXPECT_EQ(failedHandler(), "frmAddUpDel.cmdDelete_Click");
    EXPECT_EQ(inventory(), "2: $60.00");
    openFound("3");
    refuseWrites("DELETE", "Inventory");
    remove();
    EXPECT_EQ(failedHandler(), "frmAddUpDel.cmdDelete_Click");
    reopenData();
    EXPECT_EQ(stored(3, Inventory::Amount), "$30.00");
    EXPECT_EQ(inventory(), "2: $60.00");
}

TEST_F(AssetChange, PrintStagesWhatStandsOnTheScreen)
{
    asset().txtMake.setText("Acme"); // not updated
    enterPrice("25");
    click(asset().cmdPrint);
    EXPECT_EQ(cellsOf(Data1.rsPrint, Print::ID, Print::Description).join('|'),
        "1|Indoor|Library|Antiques|Antique Desk|2026|Acme|Unknown|Unknown|11/24/2026|$25.00|No|None|None");
    EXPECT_EQ(row(2), Desk20);
    EXPECT_EQ(inventory(), "3: $60.00");
}

TEST_F(AssetChange, PrintOfWhatIsRefusedOrCannotBeStagedLeavesNoRow)
{
    asset().cmbType.setText({});
    clickTold(asset().cmdPrint, "An Item Must Be Selected Before Saving Asset!", Exclamation);
    asset().cmbType.setText("Antique Desk");
    enterPrice("1/2");
    clickTold(asset().cmdPrint, PrintError, Stop);
    enterPrice("2");
    refuseWrites("INSERT", "Print");
    clickTold(asset().cmdPrint, PrintError, Stop);
    reopenData();
    EXPECT_EQ(Data1.rsPrint.RecordCount(), 0);
}

TEST_F(AssetChange, LeavesToTheResultsByCancelAndToTheMenuWithoutTouchingTheLists)
{
    auto& results = screen<frmSearchResults>();
    results.FromSearchScreen = true;
    expectToStay([] { click(asset().cmdCancel); }, LeaveQuestion);
    EXPECT_TRUE(results.FromSearchScreen);
    clickTold(asset().cmdCancel, LeaveQuestion, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(forms::activeForm(), &results);
    EXPECT_FALSE(asset().isVisible());
    EXPECT_TRUE(asset().isEnabled());
    EXPECT_FALSE(results.FromSearchScreen);
    EXPECT_EQ(asset().cmbLoc.listCount() + asset().cmbCat.listCount() + asset().cmbType.listCount(), 0);

    openFound("2");
    leaveToMainMenu();
    EXPECT_EQ(forms::activeForm(), &screen<frmMain>());
    EXPECT_GT(asset().cmbLoc.listCount(), 0);
    EXPECT_TRUE(screen<frmMain>().FromResults);
}

} // namespace
