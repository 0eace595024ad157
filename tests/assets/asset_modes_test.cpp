// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

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

    static QString setting(General::Column column) { return Data1.rsGeneral.Fields(column).text(); }
};

TEST_F(AssetModes, AddsInTheAreaThatTheMenuNames)
{
    const struct {
        const char* area;
        const char* heading;
        const char* location;
        int help;
    } areas[] = {
        {"Indoor", "Add Indoor Asset To Inventory", "Library", 12001},
        {"Outdoor", "Add Outdoor Asset To Inventory", "Barn", 13001},
        {"Mobile", "Add Mobile Asset To Inventory", "Car", 14001},
    };
    for (const auto& [area, heading, location, help] : areas) {
        openToAdd(area);
        EXPECT_EQ(scene(), "10 frmAddUpDel: cmbLoc");
        EXPECT_EQ(contents(asset()), empty(area, "optRecOnFile(1) on, txtLoc=None locked"));
        EXPECT_EQ(asset().lblHead.caption(), heading);
        EXPECT_TRUE(items(asset().cmbLoc).contains(location)) << area;
        EXPECT_EQ(asset().cmbType.listCount(), 0);
        EXPECT_EQ(asset().defaultButton(), &asset().cmdAdd);
        press(Qt::Key_F1);
        EXPECT_EQ(openedHelp(), help);
        leaveToMainMenu();
    }
}

TEST_F(AssetModes, ShowsAFoundAssetForUpdateAndTakesTheAreaMenuAlong)
{
    openToAdd("Outdoor");
    fillIn("Barn", "Animal Care", "Dog House", "1234.5");
    type(asset().txtMake, "Acme");
    click(asset().optPurNewUsed[1]);
    click(asset().optRecOnFile[0]);
    type("Desk");
    save();
    leaveToMainMenu();
    openToAdd("Indoor");
    leaveToMainMenu();
    openFound(stored(Inventory::ID));
    EXPECT_EQ(scene(), "10 frmAddUpDel: cmbArea");
    EXPECT_EQ(contents(asset()),
        "cmbArea=Outdoor, cmbLoc=Barn, cmbCat=Animal Care, cmbType=Dog House, cmbYear=2026, "
        "txtMake=Acme, txtMod=Unknown, txtSerial=Unknown, optPurNewUsed(1) on, "
        "txtPur=11/24/2026, txtPPrice=$1,234.50, optRecOnFile(0) on, txtLoc=Desk locked, "
        "txtDescription=None, chkWar off, chkClear on off, cmdAdd off, cmdClear off");
    EXPECT_EQ(asset().lblHead.caption(), "Update/Delete Asset From Inventory");
    EXPECT_EQ(screen<frmAuto>().lblHead1[0].caption(), "Outdoor Asset Management");
    EXPECT_EQ(asset().defaultButton(), &asset().cmdUpdate);
    press(Qt::Key_F1);
    EXPECT_EQ(openedHelp(), 15001);

    // Another area has other names; the asset's category keeps its items.
    asset().cmbArea.setFocus();
    pick(asset().cmbArea, "Mobile");
    EXPECT_TRUE(items(asset().cmbLoc).contains("Car") && !items(asset().cmbLoc).contains("Barn"));
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
    EXPECT_EQ(setting(General::ClearCheck), clear ? "Unchecked" : "Checked");
    EXPECT_EQ(setting(General::WarrantyCheck), warranty ? "Unchecked" : "Checked");

    forms::destroyScreens();
    closeData();
    openData();
    openToAdd("Mobile");
    EXPECT_EQ(asset().chkClear.value(), 1 - clear);
    EXPECT_EQ(asset().chkWar.value(), 1 - warranty);
}

TEST_F(AssetModes, AsksBeforeItLeaves)
{
    openToAdd();
    pick(asset().cmbLoc, "Library");
    const auto ask = [this](const std::function<void()>& leave, Answer answer) {
        expectBox(LeaveQuestion, Question, answer);
        leave();
        EXPECT_EQ(asset().isVisible(), answer == Answer::No);
    };
    ask([] { closeBox(asset()); }, Answer::No);
    EXPECT_EQ(asset().cmbLoc.text(), "Library");

    ask([] { click(asset().cmdMain); }, Answer::Yes);
    EXPECT_EQ(scene(), "2 frmMain: cmdIn");
    EXPECT_EQ(asset().cmbLoc.text(), "Library"); // the lists stay
    openToAdd();
    ask([] { closeBox(asset()); }, Answer::Yes);
    EXPECT_EQ(scene(), "13 frmAuto: cmdAdd(0)");
    EXPECT_EQ(asset().cmbLoc.listCount(), 0);
}

TEST_F(AssetModes, ClearEmptiesTheFormAndLeavesNoReceiptOptionChosen)
{
    openToAdd();
    fillIn();
    type(asset().txtMake, "Acme");
    click(asset().optPurNewUsed[1]);
    click(asset().optRecOnFile[0]);
    type("Desk");
    expectBox(LeaveQuestion, Question, Answer::Yes);
    click(asset().cmdClear);
    EXPECT_EQ(contents(asset()), empty("Indoor", "txtLoc=None"));
    EXPECT_EQ(editor().SavedCategory, "");
    EXPECT_EQ(asset().cmbType.listCount(), 0);
    EXPECT_EQ(scene(), "10 frmAddUpDel: cmbLoc");

    fillIn();
    save();
    EXPECT_EQ(stored(Inventory::Receipt), "No");
    EXPECT_EQ(stored(Inventory::ReceiptLocation), "None");
}

} // namespace
