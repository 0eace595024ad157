// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"
#include "search/frmSearch.h"

using forms::Answer;
using forms::screen;

namespace {

class AssetModes : public AssetScreenTest {
protected:
    // While adding, with nothing entered.
    static QString empty(const QString& area, const QString& receipt)
    {
        return "cmbArea=" + area
            + " off, cmbLoc=, cmbCat=, cmbType=, cmbYear=2026, txtMake=Unknown, txtMod=Unknown, txtSerial=Unknown, "
              "optPurNewUsed(0) on, txtPur=mm/dd/yyyy, txtPPrice=, "
            + receipt + ", txtDescription=None, chkClear on, cmdWarranty off, cmdUpdate off, "
            + "cmdDelete off, cmdPrint off";
    }

    void expectMode(const QString& focus, const QString& heading, const forms::CommandButton& standard, int help)
    {
        EXPECT_EQ(scene(), "10 frmAddUpDel: " + focus);
        EXPECT_EQ(asset().lblHead.caption(), heading);
        EXPECT_EQ(asset().defaultButton(), &standard);
        press(Qt::Key_F1);
        EXPECT_EQ(openedHelp(), help);
    }
};

TEST_F(AssetModes, AddsInTheAreaThatTheMenuNames)
{
    const struct {
        const char* area;
        const char* heading;
        const char* location;
        int help;
    } areas[] = {{"Indoor", "Add Indoor Asset To Inventory", "Library", 12001},
        {"Outdoor", "Add Outdoor Asset To Inventory", "Barn", 13001},
        {"Mobile", "Add Mobile Asset To Inventory", "Car", 14001}};
    for (const auto& [area, heading, location, help] : areas) {
        openToAdd(area);
        expectMode("cmbLoc", heading, asset().cmdAdd, help);
        EXPECT_EQ(contents(asset()), empty(area, "optRecOnFile(1) on, txtLoc=None locked"));
        EXPECT_TRUE(itemsOf(asset().cmbLoc).contains(location) && asset().cmbType.listCount() == 0) << area;
        leaveToMainMenu();
    }
}

TEST_F(AssetModes, ShowsAFoundAssetForUpdateAndTakesTheAreaMenuAlong)
{
    addAssetRow({"Outdoor", "Barn", "Animal Care", "Dog House", "2026", "Acme", "Unknown", "Unknown", "11/24/2026",
        "$1234.50", "Yes", "Desk", "None", "Used"});
    openToAdd("Indoor");
    leaveToMainMenu();
    openFound("1");
    expectMode("cmbArea", "Update/Delete Asset From Inventory", asset().cmdUpdate, 15001);
    EXPECT_EQ(contents(asset()),
        "cmbArea=Outdoor, cmbLoc=Barn, cmbCat=Animal Care, cmbType=Dog House, cmbYear=2026, txtMake=Acme, "
        "txtMod=Unknown, txtSerial=Unknown, optPurNewUsed(1) on, txtPur=11/24/2026, txtPPrice=$1,234.50, "
        "optRecOnFile(0) on, txtLoc=Desk locked, txtDescription=None, chkWar off, chkClear on off, cmdAdd off, "
        "cmdClear off");
    EXPECT_EQ(screen<frmAuto>().lblHead1[0].caption(), "Outdoor Asset Management");

    // Another area has other names; the asset's category keeps its items.
    pick(asset().cmbArea, "Mobile");
    EXPECT_TRUE(itemsOf(asset().cmbLoc).contains("Car") && !itemsOf(asset().cmbLoc).contains("Barn"));
    pick(asset().cmbCat, "Aircraft");
    EXPECT_EQ(asset().cmbType.text(), "Dog House");
    asset().hide();
    openToAdd("Mobile"); // from the menu an asset is added again
    EXPECT_EQ(asset().lblHead.caption(), "Add Mobile Asset To Inventory");
}

TEST_F(AssetModes, RemembersBothBoxesAtOnceAndAcrossRuns)
{
    openToAdd();
    const int clear = asset().chkClear.value();
    const int warranty = asset().chkWar.value();
    click(asset().chkClear);
    click(asset().chkWar);
    EXPECT_EQ(inFile(Data1.rsGeneral, {General::ClearCheck, General::WarrantyCheck}),
        QStringList({clear ? "Unchecked" : "Checked", warranty ? "Unchecked" : "Checked"}));
    forms::destroyScreens();
    openToAdd("Mobile");
    EXPECT_EQ(asset().chkClear.value(), 1 - clear);
    EXPECT_EQ(asset().chkWar.value(), 1 - warranty);
}

TEST_F(AssetModes, AsksBeforeItLeaves)
{
    openToAdd();
    pick(asset().cmbLoc, "Library");
    expectToStay([] { closeBox(asset()); }, LeaveQuestion);
    leaveToMainMenu();
    EXPECT_EQ(scene() + asset().cmbLoc.text(), "2 frmMain: cmdInLibrary"); // the lists stay
    openToAdd();
    expectBox(LeaveQuestion, YesNoQuestion, Answer::Yes);
    closeBox(asset());
    EXPECT_EQ(scene(), "13 frmAuto: cmdAdd(0)");
    EXPECT_EQ(asset().cmbLoc.listCount(), 0);
}

TEST_F(AssetModes, ClearEmptiesTheFormAndLeavesNoReceiptOptionChosen)
{
    openToAdd();
    fillIn();
    fillInTheRest();
    clickTold(asset().cmdClear, LeaveQuestion, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(scene(), "10 frmAddUpDel: cmbLoc");
    EXPECT_EQ(contents(asset()), empty("Indoor", "txtLoc=None"));
    EXPECT_EQ(screen<frmAddField>().SavedCategory, "");
    EXPECT_EQ(asset().cmbType.listCount(), 0);
    fillIn();
    save();
    EXPECT_EQ(row(1), QString(Desk).arg("$1234.50"));
}

class AreaMenu : public ScreenTest {
protected:
    static frmAuto& menu() { return screen<frmAuto>(); }

    static void open(const QString& title)
    {
        menu().lblHead1[0].setCaption(title);
        menu().load_It();
    }
};

TEST_F(AreaMenu, HasTheHelpOfItsAreaWhereAnyOtherTitleIsMobile)
{
    const std::pair<const char*, int> areas[] = {{"Indoor Asset Management", 9001}, {"Outdoor Asset Management", 10001},
        {"Mobile Asset Management", 11001}, {"indoor asset management", 11001}};
    for (const auto& [title, help] : areas) {
        open(title);
        EXPECT_EQ(scene(), "13 frmAuto: cmdAdd(0)");
        press(Qt::Key_F1);
        EXPECT_EQ(openedHelp(), help);
        tab(); // the next opening is on Add again
    }
}

TEST_F(AreaMenu, TellsThatThereIsNothingToUpdateOrDelete)
{
    open("Indoor Asset Management");
    clickTold(menu().cmdUpdate[1], "There Are No Available Assets To Update...Please Add An Asset Before Continuing!!",
        Information);
    expectBox("There Are No Available Assets To Delete...Please Add An Asset Before Continuing!!", Information);
    accessKey('d');
    EXPECT_TRUE(menu().isVisible());

    addAssetRow({"Outdoor"}); // of another area
    click(menu().cmdUpdate[1]);
    EXPECT_EQ(forms::activeForm(), &screen<frmSearch>());
}

} // namespace
