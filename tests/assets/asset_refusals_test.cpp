// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

using forms::Answer;

namespace {

class AssetRefusals : public AssetScreenTest {
protected:
    void SetUp() override
    {
        AssetScreenTest::SetUp();
        openToAdd();
        fillIn();
    }

    void expectRefused(const QString& message, forms::TextEntry& field, const QString& left)
    {
        save(message, Exclamation);
        EXPECT_EQ(asset().activeControl(), &field) << message.toStdString();
        EXPECT_EQ(field.text(), left) << message.toStdString();
        EXPECT_EQ(Data1.rsInventory.RecordCount(), 0);
        EXPECT_EQ(assetValue(), values::Currency());
    }
};

// All fields are wrong at first; each is put right after its refusal.
TEST_F(AssetRefusals, ComeInTheOrderOfTheFields)
{
    const struct {
        forms::TextEntry& field;
        const char* wrong;
        const char* message;
        const char* left;
        const char* right;
    } steps[] = {
        {asset().cmbLoc, "", "The Location Of The Asset Must Be Selected Before Saving!", "", "Library"},
        {asset().cmbCat, "", "The Category Of The Asset Must Be Selected Before Saving!", "", "Antiques"},
        {asset().cmbType, "", "An Item Must Be Selected Before Saving Asset!", "", "Antique Desk"},
        {asset().cmbYear, "", "The Year The Asset Was Made Must Be Entered Before Saving!", "2005", "2005"},
        {asset().txtMake, "",
            "The Make Of The Asset Must Be Entered Before Saving!  If Unavailable Please Type \"Unknown\"", "Unknown",
            "Unknown"},
        {asset().txtMod, "",
            "The Model Of The Asset Must Be Entered Before Saving!  If Unavailable Please Type \"Unknown\"", "Unknown",
            "Unknown"},
        {asset().txtSerial, "",
            "The Serial Number Of The Asset Must Be Entered Before Saving...If Unavailable Please Type \"Unknown\"",
            "Unknown", "Unknown"},
        {asset().txtPur, "MM/DD/YYYY", "The Purchase Date Of The Asset Must Be Entered Before Saving!", "MM/DD/YYYY",
            "11/24/2026"},
        {asset().txtPPrice, "$.00", "The Purchase Price Of The Asset Must Be Entered Before Saving!", "$.00", "$1.00"},
    };
    asset().cmdMain.setFocus();
    for (const auto& step : steps)
        step.field.setText(step.wrong);
    for (const auto& step : steps) {
        expectRefused(step.message, step.field, step.left);
        step.field.setText(step.right);
    }
    save();
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 1);
}

TEST_F(AssetRefusals, AnswerToEachOddText)
{
    const QString noPrice = "The Purchase Price Of The Asset Must Be Entered Before Saving!";
    const struct {
        forms::TextEntry& field;
        const char* wrong;
        QString message;
        const char* right;
    } cases[] = {
        {asset().cmbLoc, "< Add/Edit Location >", "The Location Of The Asset Must Be Selected Before Saving!",
            "Library"},
        {asset().cmbCat, "< Add/Edit Category >", "The Category Of The Asset Must Be Selected Before Saving!",
            "Antiques"},
        {asset().txtPur, "2/30/2006", BadDate, "24/11/2026"},
        {asset().txtPur, "dd/mm/yyyy", BadDate, "24/11/2026"},
        {asset().txtPPrice, "", noPrice, "$0.00"},
        {asset().txtPur, "11/25/2026", "The Purchase Date Can Not Be A Future Date!", "24/11/2026"},
    };
    asset().cmbLoc.setFocus(); // a price that is left empty takes its empty state
    asset().txtPPrice.setText({}); // a date that is none ends the check before the price is looked at
    asset().cmbType.setText("< Add/Edit Item >");
    for (const auto& [field, wrong, message, right] : cases) {
        field.setText(wrong);
        expectRefused(message, field, wrong);
        field.setText(right);
    }
    save();
    EXPECT_EQ(stored(Inventory::Type), "< Add/Edit Item >"); // the marker of items alone is a name
    EXPECT_EQ(stored(Inventory::DatePurchased), "24/11/2026"); // day and month change places where they must
    EXPECT_EQ(stored(Inventory::Amount), "$0.00");
}

TEST_F(AssetRefusals, AnAmountThatIsNoneLeavesNothingBehindButWhatWasTyped)
{
    asset().cmbLoc.setFocus();
    asset().txtPPrice.setFocus();
    type("1/2");
    expectRefused(BadDate, asset().txtPur, "11/24/2026");
    EXPECT_EQ(asset().txtPPrice.text(), "$1/2.00");
    EXPECT_EQ(asset().cmbType.text(), "Antique Desk");
    asset().txtPPrice.setFocus();
    type("2");
    save();
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 1);
    closeData();
    openData();
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 1);
    EXPECT_EQ(stored(Inventory::Amount), "$2.00");
    EXPECT_EQ(assetValue().toText(), "$2.00");
}

TEST_F(AssetRefusals, AnAskForNewOrUsedDoesNotStopTheSave)
{
    asset().optPurNewUsed[0].setValue(false);
    asset().txtDescription.setText({});
    expectBox("Please Indicate How The Asset Was Purchased...New or Used.", Exclamation);
    save();
    EXPECT_EQ(stored(Inventory::Purchased), "Used");
    EXPECT_EQ(stored(Inventory::Description), "");
}

} // namespace
