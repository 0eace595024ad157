// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

namespace {

class AssetFields : public AssetScreenTest {
protected:
    AssetFields() { openToAdd(); }
};

TEST_F(AssetFields, YearSelectsAsMuchAsTheMakeIsLong)
{
    asset().txtMake.setText("AB");
    asset().cmbYear.setFocus();
    EXPECT_EQ(scene(), "10 frmAddUpDel: cmbYear [20]");
    type("19");
    EXPECT_EQ(asset().cmbYear.text(), "1926");
}

TEST_F(AssetFields, TakeTheirDefaultBackWhenTheyAreLeftEmpty)
{
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
    click(asset().optRecOnFile[1]);
    EXPECT_THAT(contents(asset()).toStdString(), testing::HasSubstr("optRecOnFile(1) on, txtLoc=None locked"));
    tab();
    EXPECT_THAT(contents(asset()).toStdString(), testing::HasSubstr("optRecOnFile(0) on, txtLoc= locked"));
    type("D");
    EXPECT_THAT(contents(asset()).toStdString(), testing::HasSubstr("txtLoc=D, "));
}

TEST_F(AssetFields, ListsOfNamesAreUsedByMouseAndCursorKeysOnly)
{
    pick(asset().cmbLoc, "Library");
    type("xyz");
    press(Qt::Key_Delete);
    paste("Attic");
    EXPECT_EQ(asset().cmbLoc.text(), "Library");
    press(Qt::Key_Down);
    EXPECT_EQ(asset().cmbLoc.text(), "Linen Closet");

    pick(asset().cmbCat, "Antiques");
    press(Qt::Key_Down); // refused
    EXPECT_EQ(asset().cmbCat.text(), "Antiques");
    press(Qt::Key_Down, Qt::AltModifier); // the list opens all the same
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(asset().cmbCat.text(), "Appliances");
    tab();
    type("Elephant's Foot");
    EXPECT_EQ(asset().cmbType.text(), "Elephant's Foot");
    pick(asset().cmbLoc, "< Add/Edit Location >");
    EXPECT_EQ(editor().SavedLocation, "Linen Closet"); // the last real name
    EXPECT_EQ(editor().SavedCategory, "Appliances");
    EXPECT_EQ(asset().ListInEdit, "Location");
}

} // namespace
