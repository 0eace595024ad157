// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

using forms::Answer;
using forms::screen;

namespace {

class AssetModes : public AssetScreenTest {
protected:
    static void expectMode(bool adding)
    {
        const std::pair<const forms::Control&, bool> controls[] = {{asset().cmdAdd, true}, {asset().cmdClear, true},
            {asset().chkWar, true}, {asset().chkClear, true}, {asset().cmbArea, false}, {asset().cmdUpdate, false},
            {asset().cmdDelete, false}, {asset().cmdWarranty, false}, {asset().cmdPrint, false}};
        for (const auto& [control, whileAdding] : controls)
            EXPECT_EQ(control.isEnabled(), whileAdding == adding) << qPrintable(control.name());
        EXPECT_EQ(asset().defaultButton(), adding ? &asset().cmdAdd : &asset().cmdUpdate);
    }

    static void expectNothingEntered()
    {
        EXPECT_EQ(asset().cmbLoc.text(), "");
        EXPECT_EQ(asset().cmbCat.text(), "");
        EXPECT_EQ(asset().cmbType.text(), "");
        EXPECT_EQ(asset().cmbType.listCount(), 0);
        EXPECT_EQ(asset().cmbYear.text(), "2026");
        for (const forms::TextBox* box : {&asset().txtMake, &asset().txtMod, &asset().txtSerial})
            EXPECT_EQ(box->text(), "Unknown");
        EXPECT_EQ(asset().txtPur.text(), "mm/dd/yyyy");
        EXPECT_EQ(asset().txtPPrice.text(), "");
        EXPECT_TRUE(asset().optPurNewUsed[0].value());
        EXPECT_EQ(asset().txtLoc.text(), "None");
        EXPECT_EQ(asset().txtDescription.text(), "None");
    }

    static QString setting(General::Column column) { return Data1.rsGeneral.Fields(column).text(); }
};

TEST_F(AssetModes, AddsInTheAreaThatTheMenuNames)
{
    const struct {
        const char* area;
        const char* heading;
        const char* location;
    } areas[] = {
        {"Indoor", "Add Indoor Asset To Inventory", "Library"},
        {"Outdoor", "Add Outdoor Asset To Inventory", "Barn"},
        {"Mobile", "Add Mobile Asset To Inventory", "Car"},
    };
    for (const auto& [area, heading, location] : areas) {
        openToAdd(area);
        EXPECT_EQ(asset().lblHead.caption(), heading);
        EXPECT_EQ(asset().cmbArea.text(), area);
        EXPECT_EQ(asset().activeControl(), &asset().cmbLoc);
        EXPECT_TRUE(items(asset().cmbLoc).contains(location)) << area;
        expectMode(true);
        expectNothingEntered();
        EXPECT_TRUE(asset().optRecOnFile[1].value());
        EXPECT_TRUE(asset().txtLoc.isLocked());
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
    expectMode(false);
    EXPECT_EQ(asset().lblHead.caption(), "Update/Delete Asset From Inventory");
    EXPECT_EQ(screen<frmAuto>().lblHead1[0].caption(), "Outdoor Asset Management");
    EXPECT_EQ(asset().activeControl(), &asset().cmbArea);
    const std::pair<const forms::TextEntry&, const char*> fields[] = {{asset().cmbArea, "Outdoor"},
        {asset().cmbLoc, "Barn"}, {asset().cmbCat, "Animal Care"}, {asset().cmbType, "Dog House"},
        {asset().txtMake, "Acme"}, {asset().txtPur, "11/24/2026"}, {asset().txtPPrice, "$1,234.50"},
        {asset().txtLoc, "Desk"}, {asset().txtDescription, "None"}};
    for (const auto& [field, text] : fields)
        EXPECT_EQ(field.text(), text) << qPrintable(field.name());
    EXPECT_TRUE(asset().optRecOnFile[0].value());
    EXPECT_TRUE(asset().optPurNewUsed[1].value());
    EXPECT_TRUE(asset().txtLoc.isLocked()); // the option was set by code
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
    EXPECT_EQ(forms::activeForm(), &screen<frmMain>());
    EXPECT_EQ(asset().cmbLoc.text(), "Library"); // the lists stay
    openToAdd();
    ask([] { click(asset().cmdCancel); }, Answer::Yes);
    EXPECT_EQ(forms::activeForm(), &screen<frmAuto>());
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
    expectNothingEntered();
    EXPECT_FALSE(asset().optRecOnFile[0].value());
    EXPECT_FALSE(asset().optRecOnFile[1].value());
    EXPECT_FALSE(asset().txtLoc.isLocked());
    EXPECT_EQ(asset().activeControl(), &asset().cmbLoc);

    fillIn();
    save();
    EXPECT_EQ(stored(Inventory::Receipt), "No");
    EXPECT_EQ(stored(Inventory::ReceiptLocation), "None");
}

} // namespace
