// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmTotals.h"
#include "household/household.h"
#include "platform/storage/statement.h"

using forms::screen;

namespace {

class Totals : public ScreenTest {
protected:
    static void addAsset(const QString& area, const QString& amount)
    {
        addRow(Data1.rsInventory, {{Inventory::Area, area}, {Inventory::Amount, amount}});
    }

    static void storeHousehold(const char* assetValue, const char* coverage)
    {
        put(Data1.rsGeneral, {{General::AssetValue, assetValue}, {General::PolicyCoverage, coverage}});
    }

    static void pressValue()
    {
        screen<frmMain>().show();
        click(screen<frmMain>().cmdValue);
    }

    static QString shownTotals()
    {
        const auto& totals = screen<frmTotals>();
        QStringList texts;
        for (const forms::Label* label :
            {&totals.lblInNumAssets, &totals.lblIndoorTots, &totals.lblOutNumAssets, &totals.lblOutdoorTots,
                &totals.lblMobNumAssets, &totals.lblMobileTots, &totals.lblTotNumAssets, &totals.lblGrandTot})
            texts.append(label->caption());
        return texts.join('|');
    }
};

TEST_F(Totals, CountAndSumEachAreaAnewAndLeadBackToTheMenu)
{
    expectBox("No Assets Are Available To Total...Please Add An Asset Before Continuing!", Information);
    pressValue();
    EXPECT_EQ(scene(), "2 frmMain: cmdValue");

    storeHousehold("0", "$0.00");
    addAsset("INDOOR", "$1,234.5");
    addAsset("Mobile", "$2");
    addAsset("Mobile", "$0.126"); // counts as it is printed
    addAsset("Attic", "$1,000,000.00"); // of no area: counted, not summed
    pressValue();
    EXPECT_EQ(
        shownTotals(), "1 Indoor Asset =>|$1,234.50| Outdoor Assets =>|$0.00|2 Mobile Assets =>|$2.13|4|$1,236.63");
    EXPECT_EQ(scene(), "6 frmTotals: cmdOK");
    EXPECT_EQ(Data1.rsInventory.Fields(Inventory::Area),
        "INDOOR"); // the first row is current again
    press(Qt::Key_Return);
    EXPECT_EQ(scene(), "2 frmMain: cmdValue");

    addAsset("Outdoor", "-$5.00");
    pressValue();
    EXPECT_EQ(
        shownTotals(), "1 Indoor Asset =>|$1,234.50|1 Outdoor Asset =>|($5.00)|2 Mobile Assets =>|$2.13|5|$1,231.63");
    closeBox(screen<frmTotals>());
    EXPECT_EQ(scene(), "2 frmMain: cmdValue");
}

TEST_F(Totals, WarnWhereTheSumsExceedTheCoverageAndTheRunningTotalIsNotZero)
{
    addAsset("Indoor", "$1,500.00");
    storeHousehold("0.01", "$1500");
    pressValue(); // equal is no excess
    storeHousehold("0", "$0.00");
    pressValue(); // no running total, no warning
    storeHousehold("-0.01", "1499.99");
    expectBox("Your Assets Currently Exceed Your Policy Coverage Of $1,499.99...It Is Recommended You Increase Your "
              "Insurance Coverage!",
        Exclamation);
    pressValue();
    EXPECT_EQ(forms::activeForm(), &screen<frmTotals>());
}

TEST_F(Totals, EndTheProgramOnACoverageThatIsNoAmount)
{
    addAsset("Indoor", "$1.00");
    storeHousehold("0", "None");
    pressValue();
    EXPECT_EQ(failedHandler(), "frmMain.cmdValue_Click");
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 1);
}

TEST_F(Totals, CountAsManyAssetsAsACountHoldsAndEndTheProgramOnOneMore)
{
    {
        storage::Transaction atOnce(Data1.Home.handle());
        for (int asset = 1; asset <= 32'767; ++asset)
            addAsset("Mobile", "$1.00");
        atOnce.commit();
    }
    pressValue();
    EXPECT_EQ(shownTotals().section('|', 4), "32767 Mobile Assets =>|$32,767.00|32767|$32,767.00");
    press(Qt::Key_Return);
    addAsset("Attic", "$1.00");
    pressValue();
    EXPECT_EQ(failedHandler(), "frmMain.cmdValue_Click");
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 32'768);
}

} // namespace
