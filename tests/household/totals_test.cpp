// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmStartup.h"
#include "household/frmTotals.h"
#include "household/household.h"
#include "platform/storage/statement.h"

using forms::screen;
using values::Currency;

namespace {

class Totals : public ScreenTest {
protected:
    static void addAsset(const QString& area, const QString& amount)
    {
        auto& assets = Data1.rsInventory;
        assets.AddNew();
        assets.Fields(Inventory::Area) = area;
        assets.Fields(Inventory::Amount) = amount;
        assets.Update();
    }

    static void storeHousehold(Currency assetValue, const QString& coverage)
    {
        Data1.rsGeneral.Fields(General::AssetValue) = assetValue;
        Data1.rsGeneral.Fields(General::PolicyCoverage) = coverage;
        Data1.rsGeneral.Update();
    }

    static void pressValue()
    {
        screen<frmMain>().show();
        click(screen<frmMain>().cmdValue);
    }

    static QStringList shownTotals()
    {
        const auto& totals = screen<frmTotals>();
        return {totals.lblInNumAssets.caption(), totals.lblIndoorTots.caption(), totals.lblOutNumAssets.caption(),
            totals.lblOutdoorTots.caption(), totals.lblMobNumAssets.caption(), totals.lblMobileTots.caption(),
            totals.lblTotNumAssets.caption(), totals.lblGrandTot.caption()};
    }

    void expectCoverageWarning(const QString& coverage)
    {
        expectBox("Your Assets Currently Exceed Your Policy Coverage Of " + coverage
                + "...It Is Recommended You Increase Your Insurance Coverage!",
            forms::box::Exclamation);
    }
};

TEST_F(Totals, CountAndSumEachAreaAnewAndLeadBackToTheMenu)
{
    expectBox("No Assets Are Available To Total...Please Add An Asset Before Continuing!", forms::box::Information);
    pressValue();
    EXPECT_EQ(forms::activeForm(), &screen<frmMain>());

    storeHousehold(Currency(), "$0.00");
    addAsset("INDOOR", "$1,234.5");
    addAsset("Mobile", "$2");
    addAsset("Mobile", "$0.126"); // counts as it is printed
    addAsset("Attic", "$1,000,000.00"); // of no area: counted, not summed
    pressValue();
    const QStringList first = {"1 Indoor Asset =>", "$1,234.50", " Outdoor Assets =>", "$0.00", "2 Mobile Assets =>",
        "$2.13", "4", "$1,236.63"};
    EXPECT_EQ(shownTotals(), first);
    EXPECT_EQ(forms::activeForm(), &screen<frmTotals>());
    EXPECT_FALSE(screen<frmMain>().isVisible());
    EXPECT_EQ(frmStartup::CurrentScreen, 6);
    EXPECT_EQ(Data1.rsInventory.Fields(Inventory::Area), "INDOOR"); // the first row is current again
    press(Qt::Key_Return);
    EXPECT_EQ(forms::activeForm(), &screen<frmMain>());
    EXPECT_FALSE(screen<frmTotals>().isVisible());

    addAsset("Outdoor", "-$5.00");
    pressValue();
    const QStringList second = {"1 Indoor Asset =>", "$1,234.50", "1 Outdoor Asset =>", "($5.00)", "2 Mobile Assets =>",
        "$2.13", "5", "$1,231.63"};
    EXPECT_EQ(shownTotals(), second);
    closeBox(screen<frmTotals>());
    EXPECT_EQ(forms::activeForm(), &screen<frmMain>());
    EXPECT_FALSE(screen<frmTotals>().isVisible());
}

TEST_F(Totals, WarnWhereTheSumsExceedTheCoverageAndTheRunningTotalIsNotZero)
{
    addAsset("Indoor", "$1,500.00");
    const Currency cent = Currency::fromTenThousandths(100);
    storeHousehold(cent, "$1500");
    pressValue(); // equal is no excess
    storeHousehold(Currency(), "$0.00");
    pressValue(); // no running total, no warning
    storeHousehold(-cent, "1499.99");
    expectCoverageWarning("$1,499.99");
    pressValue();
    EXPECT_EQ(forms::activeForm(), &screen<frmTotals>());
}

TEST_F(Totals, EndTheProgramOnACoverageThatIsNoAmount)
{
    addAsset("Indoor", "$1.00");
    storeHousehold(Currency(), "None");
    pressValue();
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->handler, "frmMain.cmdValue_Click");
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
    EXPECT_EQ(shownTotals().mid(4), QStringList({"32767 Mobile Assets =>", "$32,767.00", "32767", "$32,767.00"}));
    press(Qt::Key_Return);
    addAsset("Attic", "$1.00");
    pressValue();
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->handler, "frmMain.cmdValue_Click");
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 32'768);
}

} // namespace
