// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"
#include "platform/storage/statement.h"
#include "shared/frmCalendar.h"

namespace {

class Assets : public AssetScreenTest {
protected:
    Assets() { screen<frmMain>().show(); }

    /// What the pager of the search results does with an asset.
    static void openFound(const QString& id)
    {
        screen<frmMain>().hide();
        screen<frmMain>().FromResults = true;
        screen<frmSearchResults>().SelectedAsset = id;
        asset().AssetKey = values::Integer::fromText(id);
        asset().check_Form_Type();
    }

    static void openSecond()
    {
        addAssetRow({"Indoor", "Library", "Antiques", "Antique Desk", "1890", "Unknown", "Unknown", "Unknown",
            "11/24/2026", "$10.00", "No", "None", "None", "New"});
        addAssetRow({"Outdoor", "Barn", "Animal Care", "Dog House", "2026", "Acme", "Unknown", "Unknown", "11/24/2026",
            "$20.00", "Yes", "Desk", "Oak", "Used"});
        put(Data1.rsGeneral, {{General::AssetValue, "$30.00"}});
        openFound("2");
    }
};

TEST_F(Assets, AreEnteredFoundChangedAndDeleted)
{
    replay("assets/assets.txt");
}

// The first has the last number with sixteen bits.
TEST_F(Assets, AreSavedInEachAreaWithTheNamesThatAreNew)
{
    storage::execute(Data1.Home.handle(), "INSERT INTO sqlite_sequence VALUES ('Inventory', 32766)");
    put(Data1.rsGeneral, {{General::ClearCheck, "Unchecked"}, {General::WarrantyCheck, "Checked"}});
    replay("assets/areas.txt");
    removeRows(Data1.rsOutdoor);
    replay("assets/unknown.txt");
    put(Data1.rsGeneral, {{General::WarrantyCheck, "Checked"}});
    openFound("99"); // which is gone
    replay("assets/missing.txt");
}

TEST_F(Assets, AreUpdatedPrintedAndDeletedAsTheyStandOnTheScreen)
{
    screen<frmSearchResults>().FromSearchScreen = true;
    openSecond();
    addRow(Data1.rsPrint, {{Print::Type, "Found before"}});
    const auto& editor = screen<frmAddField>();
    EXPECT_EQ(line(screen<frmAuto>().lblHead1[0].caption(), editor.SavedLocation, editor.SavedCategory,
                  asset().cmbArea.toolTip()),
        "Outdoor Asset Management, Barn, Animal Care,  Select An Area From The List ");
    replay("assets/change.txt");
    EXPECT_FALSE(screen<frmSearchResults>().FromSearchScreen);
}

TEST_F(Assets, ThatAreGoneAreSilent)
{
    openSecond();
    replay("assets/gone.txt");
    EXPECT_TRUE(screen<frmMain>().FromResults);
    openFound("1"); // the one that is left
    EXPECT_EQ(asset().cmbType.text(), "Antique Desk");
}

TEST_F(Assets, HaveAWarranty)
{
    openSecond();
    replay("assets/warranty.txt");
    EXPECT_EQ(screen<frmCalendar>().DateTarget, 1);
}

TEST_F(Assets, AreAddedWithTheSettingsWhereverTheHouseholdsViewStands)
{
    put(Data1.rsGeneral, {{General::WarrantyCheck, "Checked"}, {General::ClearCheck, "Unchecked"}});
    for (const auto move : {&storage::TableView::MovePrevious, &storage::TableView::MoveNext}) {
        (Data1.rsGeneral.*move)();
        openToAdd();
        EXPECT_EQ(line(asset().chkWar.value(), asset().chkClear.value(), asset().cmdAdd.isDefault()), "1, 0, true");
    }
    asset().default_To_Update();
    EXPECT_EQ(line(asset().cmdUpdate.isDefault(), asset().cmdAdd.isDefault()), "true, false");
}

TEST_F(Assets, HaveAPrice)
{
    replay("assets/price.txt");
}

} // namespace
