// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"
#include "platform/values/failure.h"

using forms::Answer;
using forms::screen;
using values::Currency;

namespace {

constexpr int Stop = 16;
constexpr int Warning = 52;

const char* const Updated = "            Asset Has Been Updated!";
const char* const Deleted = "            Asset Has Been Deleted!";
const char* const DeleteQuestion = "Deleting This Asset Will Be Permanent...Continue?";
const char* const NoPrice = "The Purchase Price Of The Asset Must Be Entered Before Saving!";
const char* const PrintError = "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!";

// Three assets at $10.00, $20.00 and $30.00; the second is open.
class AssetChange : public AssetScreenTest {
protected:
    void SetUp() override
    {
        AssetScreenTest::SetUp();
        openToAdd();
        if (asset().chkClear.value() == 1)
            click(asset().chkClear);
        fillIn("Library", "Antiques", "Antique Desk", "10");
        save();
        for (const char* price : {"20", "30"}) {
            enterPrice(price);
            save();
        }
        leaveToMainMenu();
        openFound("2");
        ASSERT_EQ(assetValue().toText(), "$60.00");
    }

    static void enterPrice(const QString& price)
    {
        asset().cmbLoc.setFocus();
        asset().txtPPrice.setFocus();
        type(price);
    }

    void update(const QString& message = Updated, int flags = Information)
    {
        expectBox(message, flags);
        click(asset().cmdUpdate);
    }

    void remove()
    {
        expectBox(DeleteQuestion, Warning, Answer::Yes);
        expectBox(Deleted, Information);
        click(asset().cmdDelete);
    }

    static void deleteRowBehindTheScreen(int id)
    {
        stored(id, Inventory::ID);
        Data1.rsInventory.Delete();
    }

    // What an asset and its printed copy have in common, of the current row.
    static QStringList fields(storage::TableView& row)
    {
        QStringList texts;
        for (int column = Print::ID; column <= Print::Description; ++column)
            texts.append(row.Fields(column).text());
        return texts;
    }
};

TEST_F(AssetChange, UpdateWritesEveryColumnButTheWarrantyAndTeachesNoName)
{
    stored(2, Inventory::ID);
    Data1.rsInventory.Fields(Inventory::PartsType) = "Limited";
    Data1.rsInventory.Update();
    const int known = Data1.rsOutdoor.RecordCount();
    pick(asset().cmbArea, "Outdoor");
    pick(asset().cmbLoc, "Barn");
    pick(asset().cmbCat, "Animal Care");
    asset().cmbType.setFocus();
    asset().cmbType.selectAll();
    type("Hen House");
    asset().cmbYear.setFocus();
    asset().cmbYear.selectAll();
    type("1890");
    type(asset().txtMake, "Acme");
    type(asset().txtMod, "M 2");
    type(asset().txtSerial, "S-3");
    click(asset().optPurNewUsed[1]);
    click(asset().optRecOnFile[0]);
    type("Desk drawer");
    asset().txtDescription.setFocus();
    type("Oak\nold");
    enterPrice("25.5");
    update();

    closeData();
    openData();
    EXPECT_EQ(stored(2, Inventory::Purchased) + stored(2, Inventory::PartsType), "UsedLimited");
    EXPECT_EQ(fields(Data1.rsInventory),
        QStringList({"2", "Outdoor", "Barn", "Animal Care", "Hen House", "1890", "Acme", "M 2", "S-3", "11/24/2026",
            "$25.50", "Yes", "Desk drawer", "Oak\nold"}));
    EXPECT_EQ(stored(1, Inventory::Area) + stored(3, Inventory::Area), "IndoorIndoor");
    EXPECT_EQ(assetValue().toText(), "$65.50");
    EXPECT_EQ(Data1.rsOutdoor.RecordCount(), known);

    click(asset().optPurNewUsed[0]);
    click(asset().optRecOnFile[1]);
    asset().txtDescription.setText({});
    asset().cmbArea.setFocus();
    expectBox(Updated, Information);
    press(Qt::Key_Return); // the default button
    EXPECT_EQ(stored(2, Inventory::Purchased) + stored(2, Inventory::Receipt), "NewNo");
    EXPECT_EQ(stored(2, Inventory::Description), "None");
    EXPECT_EQ(assetValue().toText(), "$65.50") << "the same price moves the total once";
}

TEST_F(AssetChange, APriceThatTheCheckRefusesHasMovedTheTotalAlready)
{
    enterPrice({});
    press(Qt::Key_Delete); // the field makes "$.00" of it
    update(NoPrice, Exclamation);
    EXPECT_EQ(assetValue().toText(), "$40.00");
    EXPECT_EQ(stored(2, Inventory::Amount), "$20.00");
    EXPECT_EQ(asset().activeControl(), &asset().txtPPrice);

    enterPrice("5");
    update();
    EXPECT_EQ(assetValue().toText(), "$45.00");
    EXPECT_EQ(stored(2, Inventory::Amount), "$5.00");
}

TEST_F(AssetChange, OfARowThatIsGoneIsSilent)
{
    deleteRowBehindTheScreen(2);
    asset().cmdPrint.setEnabled(false);
    enterPrice("25");
    click(asset().cmdUpdate);
    EXPECT_TRUE(asset().cmdPrint.isEnabled());
    EXPECT_EQ(assetValue().toText(), "$65.00");

    expectBox(DeleteQuestion, Warning, Answer::Yes);
    click(asset().cmdDelete);
    EXPECT_TRUE(asset().isVisible());
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 2);
    EXPECT_EQ(assetValue().toText(), "$65.00");
}

TEST_F(AssetChange, OfATextThatIsNoneTellsOfTheDateAndLeavesRowAndTotal)
{
    enterPrice("1/2");
    update(BadDate, Exclamation);
    EXPECT_EQ(asset().activeControl(), &asset().txtPur);
    EXPECT_EQ(assetValue().toText(), "$60.00");

    enterPrice("20");
    asset().txtPur.setText("2/30/2006");
    asset().txtMake.setText("Acme");
    update(BadDate, Exclamation);
    EXPECT_EQ(stored(2, Inventory::Make), "Unknown");
    asset().txtPur.setText("2/28/2006");
    update();
    EXPECT_EQ(stored(2, Inventory::Make), "Acme");
    EXPECT_EQ(assetValue().toText(), "$60.00");
}

TEST_F(AssetChange, ThatTheFileRefusesIsToldAndTheStoredRowStays)
{
    asset().txtMake.setText("Acme");
    enterPrice("25");
    refuseWrites("UPDATE", "Inventory");
    update(BadDate, Exclamation);
    EXPECT_EQ(assetValue().toText(), "$65.00") << "the total went before";
    EXPECT_EQ(asset().activeControl(), &asset().txtPur);
    EXPECT_EQ(asset().txtMake.text(), "Acme") << "what was typed isn't lost";

    refuseWrites("UPDATE", "Personal_Info");
    enterPrice("26");
    update(BadDate, Exclamation);
    openFound("2");
    EXPECT_EQ(asset().txtMake.text(), "Unknown");
    EXPECT_EQ(asset().txtPPrice.text(), "$20.00");
    closeData();
    openData();
    EXPECT_EQ(stored(2, Inventory::Make), "Unknown");
    EXPECT_EQ(assetValue().toText(), "$65.00");
}

TEST_F(AssetChange, DeleteAsksTellsAndTakesThePriceInTheBoxOffTheTotal)
{
    expectBox(DeleteQuestion, Warning, Answer::No);
    click(asset().cmdDelete);
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 3);
    EXPECT_TRUE(asset().isVisible());

    screen<frmSearchResults>().FromSearchScreen = true;
    enterPrice("25"); // not updated
    int rowsWhenTold = 0;
    QStringList told;
    forms::setMessageDoor([&](const forms::Message& message) {
        told.append(message.text);
        rowsWhenTold = Data1.rsInventory.RecordCount();
        return told.size() == 1 ? Answer::Yes : Answer::OK;
    });
    click(asset().cmdDelete);
    EXPECT_EQ(told, QStringList({DeleteQuestion, Deleted}));
    EXPECT_EQ(rowsWhenTold, 3) << "told before it is done";
    EXPECT_FALSE(screen<frmSearchResults>().FromSearchScreen);
    EXPECT_EQ(forms::activeForm(), &screen<frmMain>());
    EXPECT_FALSE(asset().isVisible());
    closeData();
    openData();
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 2);
    EXPECT_EQ(stored(1, Inventory::Amount) + stored(3, Inventory::Amount), "$10.00$30.00");
    EXPECT_EQ(assetValue().toText(), "$35.00");
}

TEST_F(AssetChange, ADeleteThatFailsIsReportedWithTheRowWholeOrGone)
{
    enterPrice("1/2"); // the total can't follow, so the row is gone by then
    remove();
    EXPECT_TRUE(reportedFailure());
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 2);
    EXPECT_EQ(assetValue().toText(), "$60.00");

    openFound("3");
    refuseWrites("DELETE", "Inventory");
    remove();
    EXPECT_EQ(reportedFailure().value().handler, "frmAddUpDel.cmdDelete_Click");
    closeData();
    openData();
    EXPECT_EQ(stored(3, Inventory::Amount), "$30.00");
    EXPECT_EQ(assetValue().toText(), "$60.00");
}

TEST_F(AssetChange, PrintStagesWhatStandsOnTheScreen)
{
    asset().txtMake.setText("Acme"); // not updated
    enterPrice("25");
    click(asset().cmdPrint);
    EXPECT_EQ(fields(Data1.rsPrint),
        QStringList({"1", "Indoor", "Library", "Antiques", "Antique Desk", "2026", "Acme", "Unknown", "Unknown",
            "11/24/2026", "$25.00", "No", "None", "None"}));
    EXPECT_EQ(stored(2, Inventory::Make), "Unknown");
    EXPECT_EQ(assetValue().toText(), "$60.00");
}

TEST_F(AssetChange, PrintOfWhatIsRefusedOrCannotBeStagedLeavesNoRow)
{
    asset().cmbType.setText({});
    expectBox("An Item Must Be Selected Before Saving Asset!", Exclamation);
    click(asset().cmdPrint);
    asset().cmbType.setText("Antique Desk");
    enterPrice("1/2");
    expectBox(PrintError, Stop);
    click(asset().cmdPrint);
    enterPrice("2");
    refuseWrites("INSERT", "Print");
    expectBox(PrintError, Stop);
    click(asset().cmdPrint);
    closeData();
    openData();
    EXPECT_EQ(Data1.rsPrint.RecordCount(), 0);
}

TEST_F(AssetChange, LeavesToTheResultsByCancelAndToTheMenuWithoutTouchingTheLists)
{
    auto& results = screen<frmSearchResults>();
    results.FromSearchScreen = true;
    expectBox(LeaveQuestion, Question, Answer::No);
    click(asset().cmdCancel);
    EXPECT_TRUE(results.FromSearchScreen);
    expectBox(LeaveQuestion, Question, Answer::Yes);
    click(asset().cmdCancel);
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
