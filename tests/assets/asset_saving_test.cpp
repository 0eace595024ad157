// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

using forms::Answer;
using forms::screen;

namespace {

class AssetSaving : public AssetScreenTest {
protected:
    static void setClearBox(bool ticked)
    {
        if ((asset().chkClear.value() == 1) != ticked)
            click(asset().chkClear);
    }
};

TEST_F(AssetSaving, WritesEveryColumnAndAddsThePriceToTheTotal)
{
    openToAdd();
    fillIn("Library", "Antiques", "Antique Desk", "1234.5");
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
    save();

    const std::pair<Inventory::Column, const char*> columns[] = {{Inventory::Area, "Indoor"},
        {Inventory::Location, "Library"}, {Inventory::Category, "Antiques"}, {Inventory::Type, "Antique Desk"},
        {Inventory::Year, "1890"}, {Inventory::Make, "Acme"}, {Inventory::Model, "M 2"},
        {Inventory::SerialVinId, "S-3"}, {Inventory::DatePurchased, "11/24/2026"}, {Inventory::Amount, "$1234.50"},
        {Inventory::Receipt, "Yes"}, {Inventory::ReceiptLocation, "Desk drawer"}, {Inventory::Description, "Oak\nold"},
        {Inventory::Purchased, "Used"}};
    for (const auto& [column, text] : columns)
        EXPECT_EQ(stored(column), text) << column;
    EXPECT_EQ(stored(Inventory::WarrantyDescription), "None");
    EXPECT_EQ(assetValue().toText(), "$1,234.50");
}

TEST_F(AssetSaving, ComesBackFromTheFileAsItWasTyped)
{
    const char* const texts[] = {
        "\U0001F6B2\U0001F468\u200D\U0001F469\u200D\U0001F467", "שלום עולם", "e\u0301 ﷽", "  ' \" ; -- % _  "};
    openToAdd();
    setClearBox(false);
    fillIn();
    for (const char* text : texts) {
        asset().txtMake.setFocus();
        paste(QString::fromUtf8(text));
        save();
    }
    asset().txtMod.setFocus();
    paste(QString(1'000'000, u'ß'));
    save();
    closeData();
    openData();
    for (const char* text : texts) {
        EXPECT_EQ(Data1.rsInventory.Fields(Inventory::Make), QString::fromUtf8(text));
        Data1.rsInventory.MoveNext();
    }
    EXPECT_EQ(stored(Inventory::Model), QString(49, u'ß'));
}

TEST_F(AssetSaving, ClearsTheScreenOrKeepsItForASimilarAsset)
{
    openToAdd("Outdoor");
    setClearBox(false);
    fillIn("Barn", "Animal Care", "Dog House", "10");
    save();
    EXPECT_EQ(asset().cmbLoc.text(), "Barn");
    EXPECT_EQ(asset().txtPPrice.text(), "$10.00");
    EXPECT_EQ(asset().activeControl(), &asset().cmbLoc);
    save();
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 2);
    EXPECT_EQ(assetValue().toText(), "$20.00");

    setClearBox(true);
    save();
    EXPECT_EQ(asset().cmbLoc.text(), "");
    EXPECT_EQ(asset().txtPPrice.text(), "");
}

TEST_F(AssetSaving, LearnsNewNamesWithTheOldOnesOfTheirRow)
{
    openToAdd("Mobile");
    const int known = Data1.rsMobile.RecordCount();
    fillIn("Car", "Aircraft", "drone");
    save();
    EXPECT_EQ(Data1.rsMobile.RecordCount(), known); // known in another spelling, in other rows

    fillIn("Car", "Aircraft", "Zeppelin");
    save();
    EXPECT_EQ(lastNames(Data1.rsMobile), QStringList({"Car", "Aircraft", "Zeppelin", "0"}));
    EXPECT_EQ(Data1.rsMobile.RecordCount(), known + 1);
}

TEST_F(AssetSaving, IndoorAloneIsClearedBeforeTheUserIsToldOfAnAssetWithANewName)
{
    for (const QString area : {"Indoor", "Outdoor", "Mobile"}) {
        openToAdd(area);
        setClearBox(true);
        fillIn(asset().cmbLoc.list(1), asset().cmbCat.list(1), "Never Seen");
        QString whenTold = "nothing";
        forms::setMessageDoor([&whenTold](const forms::Message&) {
            whenTold = asset().cmbType.text();
            return Answer::OK;
        });
        click(asset().cmdAdd);
        EXPECT_EQ(whenTold, area == "Indoor" ? "" : "Never Seen") << area.toStdString();
        EXPECT_EQ(asset().cmbType.text(), "");
        asset().hide();
    }
}

TEST_F(AssetSaving, SettlesTheReceiptLocation)
{
    const auto yes = [] { click(asset().optRecOnFile[0]); };
    const auto no = [] { click(asset().optRecOnFile[1]); };
    const auto noThenLocation = [] {
        click(asset().optRecOnFile[1]);
        click(asset().txtLoc);
    };
    const struct {
        std::function<void()> choose;
        const char* typed;
        const char* receipt;
        const char* location;
    } cases[] = {
        {yes, "nOnE", "Yes", "None"}, {yes, "Desk", "Yes", "Desk"}, {yes, "", "Yes", "Unknown"}, // left empty
        {no, "", "No", "None"}, {noThenLocation, "Desk", "Yes", "Not Specified"}, // "No" was stepped on last
    };
    openToAdd();
    setClearBox(false);
    fillIn();
    for (const auto& [choose, typed, receipt, location] : cases) {
        choose();
        if (*typed)
            type(typed);
        save();
        EXPECT_EQ(stored(Inventory::Receipt), receipt) << typed;
        EXPECT_EQ(stored(Inventory::ReceiptLocation), location) << typed;
    }
    // Enter in the box itself: it has not been left.
    for (const auto& [choose, location] : {std::pair<std::function<void()>, const char*>(yes, "Not Specified"),
             std::pair<std::function<void()>, const char*>(noThenLocation, "None")}) {
        choose();
        expectBox(Added, Information);
        press(Qt::Key_Return);
        EXPECT_EQ(stored(Inventory::ReceiptLocation), location);
    }
}

} // namespace
