// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

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

    QString mode()
    {
        press(Qt::Key_F1);
        return line(scene(), asset().lblHead.caption(), asset().defaultButton()->name(), openedHelp().value_or(0));
    }
};

TEST_F(AssetModes, AddsInTheAreaThatTheMenuNames)
{
    const std::tuple<QString, QString, int> areas[] = {
        {"Indoor", "Library", 12001}, {"Outdoor", "Barn", 13001}, {"Mobile", "Car", 14001}};
    for (const auto& [area, location, help] : areas) {
        openToAdd(area);
        EXPECT_EQ(mode(), line("10 frmAddUpDel: cmbLoc, Add " + area + " Asset To Inventory, cmdAdd", help));
        EXPECT_EQ(contents(asset()), empty(area, "optRecOnFile(1) on, txtLoc=None locked"));
        EXPECT_TRUE(itemsOf(asset().cmbLoc).contains(location) && itemsOf(asset().cmbType).isEmpty());
        leaveToMainMenu();
    }
}

TEST_F(AssetModes, ShowsAFoundAssetForUpdateAndTakesTheAreaMenuAlong)
{
    addAssetRow({"Outdoor", "Barn", "Animal Care", "Dog House", "2026", "Acme", "Unknown", "Unknown", "11/24/2026",
        "$1234.50", "Yes", "Desk", "Oak", "Used"});
    openToAdd("Indoor");
    leaveToMainMenu();
    openFound("1");
    EXPECT_EQ(mode(), "10 frmAddUpDel: cmbArea, Update/Delete Asset From Inventory, cmdUpdate, 15001");
    EXPECT_EQ(contents(asset()),
        "cmbArea=Outdoor, cmbLoc=Barn, cmbCat=Animal Care, cmbType=Dog House, cmbYear=2026, txtMake=Acme, "
        "txtMod=Unknown, txtSerial=Unknown, optPurNewUsed(1) on, txtPur=11/24/2026, txtPPrice=$1,234.50, "
        "optRecOnFile(0) on, txtLoc=Desk locked, txtDescription=Oak, chkWar off, chkClear on off, cmdAdd off, "
        "cmdClear off");
    const auto& editor = screen<frmAddField>();
    EXPECT_EQ(line(screen<frmAuto>().lblHead1[0].caption(), editor.SavedLocation, editor.SavedCategory),
        "Outdoor Asset Management, Barn, Animal Care");

    // Another area has other names; the asset's category keeps its items.
    pick(asset().cmbArea, "Mobile");
    EXPECT_TRUE(itemsOf(asset().cmbLoc).contains("Car") && !itemsOf(asset().cmbLoc).contains("Barn"));
    EXPECT_FALSE(itemsOf(asset().cmbCat).contains("Animal Care"));
    pick(asset().cmbCat, "Aircraft");
    EXPECT_EQ(asset().cmbType.text(), "Dog House");
    asset().hide();
    openToAdd("Mobile"); // from the menu an asset is added again
    EXPECT_EQ(contents(asset()), empty("Mobile", "optRecOnFile(1) on, txtLoc=None locked"));
    openFound("99"); // which is gone
    EXPECT_EQ(
        contents(asset()).section(", chkWar", 1), " off, chkClear on off, cmdUpdate off, cmdDelete off, cmdClear off");
}

TEST_F(AssetModes, RemembersBothBoxesAtOnceAndAcrossRuns)
{
    openToAdd();
    click(asset().chkClear);
    click(asset().chkWar);
    EXPECT_EQ(inFile(Data1.rsGeneral, {General::ClearCheck, General::WarrantyCheck}).join(' '), "Unchecked Checked");
    forms::destroyScreens();
    openToAdd("Mobile");
    EXPECT_EQ(line(asset().chkClear.value(), asset().chkWar.value()), "0, 1");
}

TEST_F(AssetModes, ClearEmptiesTheFormAndLeavesNoReceiptOptionChosen)
{
    openToAdd();
    fillIn();
    fillInTheRest();
    clickTold(asset().cmdClear, LeaveQuestion, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(line(scene(), contents(asset())), line("10 frmAddUpDel: cmbLoc", empty("Indoor", "txtLoc=None")));
    EXPECT_EQ(screen<frmAddField>().SavedCategory + itemsOf(asset().cmbType).join('|'), "");
    fillIn();
    save();
    EXPECT_EQ(row(1), QString(Desk).arg("$1234.50"));
    clickTold(asset().cmdClear, LeaveQuestion, YesNoQuestion, Answer::Yes); // with "No" chosen
    EXPECT_EQ(contents(asset()), empty("Indoor", "txtLoc=None locked"));
}

// ---- the fields, each by itself

using AssetFields = AssetScreenTest;

TEST_F(AssetFields, TakeTheirDefaultBackWhenTheyAreLeftEmpty)
{
    openToAdd();
    asset().txtMake.setText("AB");
    asset().cmbYear.setFocus();
    EXPECT_EQ(scene(), "10 frmAddUpDel: cmbYear [20]") << "as much of the year is selected as the make is long";
    const std::pair<forms::TextEntry*, const char*> fields[] = {{&asset().cmbYear, "2026"},
        {&asset().txtMake, "Unknown"}, {&asset().txtMod, "Unknown"}, {&asset().txtSerial, "Unknown"},
        {&asset().txtPur, "mm/dd/yyyy"}, {&asset().txtLoc, "Unknown"}, {&asset().txtPPrice, "$.00"},
        {&asset().txtDescription, ""}};
    for (const auto& [field, standard] : fields) {
        retype(*field, {});
        press(Qt::Key_Delete);
        EXPECT_EQ(field->text(), "") << qPrintable(field->name());
        tab();
        EXPECT_EQ(field->text(), standard) << qPrintable(field->name());
    }
}

TEST_F(AssetFields, ReceiptLocationIsEmptiedByTheFocusAndUnlockedByTheFirstKey)
{
    openToAdd();
    const auto receipt = [] { return contents(asset()).section(", ", 11, 12); };
    click(asset().optRecOnFile[1]);
    EXPECT_EQ(receipt(), "optRecOnFile(1) on, txtLoc=None locked");
    tab();
    EXPECT_EQ(receipt(), "optRecOnFile(0) on, txtLoc= locked");
    type("D");
    EXPECT_EQ(receipt(), "optRecOnFile(0) on, txtLoc=D");
}

TEST_F(AssetFields, ListsOfNamesAreUsedByMouseAndCursorKeysOnly)
{
    openToAdd();
    const auto names = [] { return line(asset().cmbLoc.text(), asset().cmbCat.text()); };
    pick(asset().cmbLoc, "Library");
    type("xyz");
    press(Qt::Key_Delete);
    paste("Attic");
    EXPECT_EQ(names(), "Library, ");
    press(Qt::Key_Down);
    pick(asset().cmbCat, "Antiques");
    press(Qt::Key_Down); // refused
    EXPECT_EQ(names(), "Linen Closet, Antiques");
    press(Qt::Key_Down, Qt::AltModifier); // the list opens all the same
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(names(), "Linen Closet, Appliances");
    pick(asset().cmbLoc, "< Add/Edit Location >");
    const auto& editor = screen<frmAddField>();
    EXPECT_EQ(line(asset().ListInEdit, editor.SavedLocation, editor.SavedCategory), // the last real names
        "Location, Linen Closet, Appliances");
}

// ---- the menu of an area

TEST_F(AssetModes, AreaMenuHasItsHelpAndTellsThatThereIsNothingToUpdateOrDelete)
{
    auto& menu = screen<frmAuto>();
    const std::pair<const char*, int> areas[] = {{"Outdoor Asset Management", 10001},
        {"Mobile Asset Management", 11001}, {"indoor asset management", 11001},
        {"Indoor Asset Management", 9001}}; // any other title is of Mobile
    for (const auto& [title, help] : areas) {
        menu.lblHead1[0].setCaption(title);
        menu.load_It();
        press(Qt::Key_F1);
        EXPECT_EQ(line(scene(), openedHelp().value()), line("13 frmAuto: cmdAdd(0)", help));
        tab(); // the next opening is on Add again
    }
    const QString nothing = "There Are No Available Assets To %1...Please Add An Asset Before Continuing!!";
    clickTold(menu.cmdUpdate[1], nothing.arg("Update"), Information);
    expectBox(nothing.arg("Delete"), Information);
    accessKey('d');
    EXPECT_EQ(scene(), "13 frmAuto: cmdDelete(0)");
}

} // namespace
