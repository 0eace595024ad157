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
    const auto names = [] { return asset().cmbLoc.text() + ", " + asset().cmbCat.text(); };
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
    tab();
    type("Elephant's Foot");
    EXPECT_EQ(asset().cmbType.text(), "Elephant's Foot");
    pick(asset().cmbLoc, "< Add/Edit Location >");
    const auto& editor = forms::screen<frmAddField>();
    EXPECT_EQ(editor.SavedLocation + ", " + editor.SavedCategory, "Linen Closet, Appliances"); // the last real names
    EXPECT_EQ(asset().ListInEdit, "Location");
}

} // namespace
