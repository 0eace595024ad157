// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

namespace {

const char* const Updated = "            Asset Has Been Updated!";
const char* const Deleted = "            Asset Has Been Deleted!";
const char* const DeleteQuestion = "Deleting This Asset Will Be Permanent...Continue?";
const char* const PrintError = "Error Printing Report...Please Ensure Printer Is Turned On And Working Properly!";
constexpr int DeleteFlags = forms::box::Exclamation + forms::box::YesNo;

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
        expectBox(DeleteQuestion, DeleteFlags, Answer::Yes);
        clickTold(asset().cmdDelete, Deleted, Information);
    }

    const QString desk20_ = QString(Desk).arg("$20.00");
};

TEST_F(AssetChange, UpdateWritesEveryColumnButTheWarrantyAndTeachesNoName)
{
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
    const QString henHouse = "Outdoor|Barn|Animal Care|Hen House|1890|Acme|M 2|S-3|11/24/2026|$25.50|%1|Limited";
    EXPECT_EQ(row(2), henHouse.arg("Yes|Desk drawer|Oak\nold|Used"));
    EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::Area), QStringList({"Indoor", "Outdoor", "Indoor"}));
    EXPECT_EQ(line(inventory(), Data1.rsOutdoor.RecordCount()), line("3: $65.50", known));

    click(asset().optPurNewUsed[0]);
    click(asset().optRecOnFile[1]);
    asset().txtDescription.setText({});
    asset().cmbArea.setFocus();
    expectBox(Updated, Information);
    press(Qt::Key_Return); // the default button
    EXPECT_EQ(line(row(2), inventory()), line(henHouse.arg("No|None|None|New"), "3: $65.50")) << "moved once";
}

// The total moves before the check, with any price that is an amount.
TEST_F(AssetChange, ThatTheCheckRefusesLeavesTheRow)
{
    const std::tuple<const char*, const char*, const char*, const char*, const forms::Control&> cases[] = {
        {"$.00", "11/24/2026", NoPrice, "3: $40.00", asset().txtPPrice},
        {"$1/2.00", "11/24/2026", BadDate, "3: $40.00", asset().txtPur},
        {"$20.00", "2/30/2006", BadDate, "3: $60.00", asset().txtPur}};
    asset().txtMake.setText("Acme");
    for (const auto& [price, date, message, total, led] : cases) {
        asset().txtPPrice.setText(price);
        asset().txtPur.setText(date);
        update(message, Exclamation);
        EXPECT_EQ(line(row(2), inventory()), line(desk20_, total)) << price;
        EXPECT_EQ(asset().activeControl(), &led) << price;
    }
    asset().txtPur.setText("2/28/2006");
    enterPrice("5");
    update();
    EXPECT_EQ(line(row(2).section('|', 5, 9), inventory()), "Acme|Unknown|Unknown|2/28/2006|$5.00, 3: $45.00");

    Data1.rsInventory.Delete(); // a row that is gone is silent
    asset().cmdPrint.setEnabled(false);
    click(asset().cmdUpdate);
    clickTold(asset().cmdDelete, DeleteQuestion, DeleteFlags, Answer::Yes);
    EXPECT_EQ(line(scene(), inventory(), asset().cmdPrint.isEnabled()), "10 frmAddUpDel: cmdDelete, 2: $45.00, true");
}

TEST_F(AssetChange, ThatTheFileRefusesIsToldAndTheStoredRowStays)
{
    asset().txtMake.setText("Acme");
    enterPrice("25");
    refuseWrites("UPDATE", "Inventory");
    update(BadDate, Exclamation);
    // The total went before, and what was typed isn't lost.
    EXPECT_EQ(
        line(scene(), inventory(), asset().txtMake.text()), "10 frmAddUpDel: txtPur [11/24/2026], 3: $65.00, Acme");

    refuseWrites("UPDATE", "Personal_Info");
    enterPrice("26");
    update(BadDate, Exclamation);
    openFound("2");
    EXPECT_EQ(line(asset().txtMake.text(), asset().txtPPrice.text()), "Unknown, $20.00");
    reopenData();
    EXPECT_EQ(line(row(2), inventory()), line(desk20_, "3: $65.00"));
}

TEST_F(AssetChange, DeleteAsksTellsAndTakesThePriceInTheBoxOffTheTotal)
{
    clickTold(asset().cmdDelete, DeleteQuestion, DeleteFlags, Answer::No);
    EXPECT_EQ(line(scene(), inventory()), "10 frmAddUpDel: cmdDelete, 3: $60.00");

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
    EXPECT_EQ(line(scene(), screen<frmSearchResults>().FromSearchScreen), "2 frmMain: cmdIn, false");
    reopenData();
    EXPECT_EQ(line(columnOf(Data1.rsInventory, Inventory::Amount).join(' '), inventory()), "$10.00 $30.00, 2: $35.00");
}

TEST_F(AssetChange, ADeleteThatFailsIsReportedWithTheRowWholeOrGone)
{
    enterPrice("1/2"); // the total can't follow, so the row is gone by then
    remove();
    EXPECT_EQ(line(failedHandler(), inventory()), "frmAddUpDel.cmdDelete_Click, 2: $60.00");
    openFound("3");
    refuseWrites("DELETE", "Inventory");
    remove();
    EXPECT_EQ(failedHandler(), "frmAddUpDel.cmdDelete_Click");
    reopenData();
    EXPECT_EQ(line(columnOf(Data1.rsInventory, Inventory::Amount).join(' '), inventory()), "$10.00 $30.00, 2: $60.00");
}

TEST_F(AssetChange, PrintStagesWhatStandsOnTheScreenAndNothingElseWhereItIsRefusedOrFails)
{
    addRow(Data1.rsPrint, {{Print::Type, "Found before"}});
    enterPrice("1/2");
    clickTold(asset().cmdPrint, PrintError, Stop);
    asset().txtMake.setText("Acme"); // not updated
    enterPrice("25");
    const QStringList onScreen("1|Indoor|Library|Antiques|Antique Desk|2026|Acme|Unknown|Unknown|11/24/2026|$25.00|No");
    click(asset().cmdPrint);
    EXPECT_EQ(rowsOf(Data1.rsPrint, Print::ID, Print::Receipt), onScreen);
    EXPECT_EQ(line(row(2), inventory()), line(desk20_, "3: $60.00"));

    asset().cmbType.setText({});
    clickTold(asset().cmdPrint, "Please Close Print Window Before Selecting Another Report To Print!", Exclamation);
    EXPECT_EQ(rowsOf(Data1.rsPrint, Print::ID, Print::Receipt), onScreen) << "under the open report";
    closeReport();
    clickTold(asset().cmdPrint, "An Item Must Be Selected Before Saving Asset!", Exclamation);
    asset().cmbType.setText("Antique Desk");
    enterPrice("2");
    refuseWrites("INSERT", "Print");
    clickTold(asset().cmdPrint, PrintError, Stop);
    EXPECT_FALSE(reportWindow());
    reopenData();
    EXPECT_EQ(rowsOf(Data1.rsPrint, Print::ID, Print::Receipt), onScreen);
}

TEST_F(AssetChange, IsLeftAfterAQuestionForWhereTheUserCameFrom)
{
    const auto listed = [] {
        return asset().cmbLoc.listCount() + asset().cmbCat.listCount() + asset().cmbType.listCount();
    };
    for (const QString origin : {"5 frmSearchResults", "13 frmAuto"}) {
        expectToStay([] { closeBox(asset()); }, LeaveQuestion);
        clickTold(asset().cmdCancel, LeaveQuestion, YesNoQuestion, Answer::Yes);
        EXPECT_EQ(line(front(), asset().isEnabled(), asset().isVisible(), listed()), origin + ", true, false, 0");
        origin == "13 frmAuto" ? openFound("2") : openToAdd();
    }
    leaveToMainMenu(); // which touches nothing
    EXPECT_EQ(line(front(), asset().isVisible(), listed() > 0, screen<frmMain>().FromResults),
        "2 frmMain, false, true, true");
}

} // namespace
