// SPDX-License-Identifier: GPL-3.0-or-later
#include "household/frmTotals.h"
#include "household/household.h"
#include "platform/storage/statement.h"

#include <QLabel>

namespace {

class Totals : public ScreenTest {
protected:
    static void addAssets(int count, const QString& area, const QString& amount)
    {
        storage::Transaction atOnce(Data1.Home.handle());
        for (; count > 0; --count)
            addRow(Data1.rsInventory, {{Inventory::Area, area}, {Inventory::Amount, amount}});
        atOnce.commit();
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
        QStringList texts{scene()};
        for (const forms::Label* label :
            {&totals.lblInNumAssets, &totals.lblIndoorTots, &totals.lblOutNumAssets, &totals.lblOutdoorTots,
                &totals.lblMobNumAssets, &totals.lblMobileTots, &totals.lblTotNumAssets, &totals.lblGrandTot})
            texts.append(label->caption());
        return texts.join('|');
    }

    /// How far from the left of the screen the decimal point of an amount stands.
    static int pointOf(const forms::Label& amount)
    {
        const auto& label = static_cast<const QLabel&>(*amount.widget());
        const QString cents = label.text().mid(label.text().indexOf('.'));
        const QPoint end = label.contentsRect().topRight();
        return label.mapTo(label.window(), end).x() - label.fontMetrics().horizontalAdvance(cents);
    }
};

TEST_F(Totals, CountAndSumEachAreaAnewAndWarnWhereTheSumsExceedTheCoverageAndTheRunningTotalIsNotZero)
{
    expectBox("No Assets Are Available To Total...Please Add An Asset Before Continuing!", Information);
    pressValue();
    EXPECT_EQ(scene(), "2 frmMain: cmdValue");

    storeHousehold("0", "$0.00"); // no running total, no warning
    addAssets(1, "INDOOR", "$1,234.5");
    addAssets(1, "Mobile", "$2");
    addAssets(1, "Mobile", "$0.126"); // counts as it is printed
    addAssets(1, "Attic", "$1,000,000.00"); // of no area: counted, not summed
    pressValue();
    EXPECT_EQ(shownTotals(),
        "6 frmTotals: cmdOK|1 Indoor Asset =>|$1,234.50| Outdoor Assets =>|$0.00|2 Mobile Assets =>|$2.13|4|$1,236.63");
    EXPECT_EQ(Data1.rsInventory.Fields(Inventory::Area), "INDOOR") << "the first row is current again";
    press(Qt::Key_Return);
    EXPECT_EQ(scene(), "2 frmMain: cmdValue");

    addAssets(1, "Outdoor", "-$5.00");
    storeHousehold("0.01", "$1231.63"); // equal is no excess
    pressValue();
    EXPECT_EQ(shownTotals().section('|', 3), "1 Outdoor Asset =>|($5.00)|2 Mobile Assets =>|$2.13|5|$1,231.63");
    for (const auto* amount : {&screen<frmTotals>().lblOutdoorTots, &screen<frmTotals>().lblGrandTot})
        EXPECT_EQ(pointOf(*amount), pointOf(screen<frmTotals>().lblIndoorTots));
    closeBox(screen<frmTotals>());
    EXPECT_EQ(scene(), "2 frmMain: cmdValue");

    storeHousehold("-0.01", "1231.62");
    expectBox("Your Assets Currently Exceed Your Policy Coverage Of $1,231.62...It Is Recommended You Increase Your "
              "Insurance Coverage!",
        Exclamation);
    pressValue();
    EXPECT_EQ(scene(), "6 frmTotals: cmdOK");
}

TEST_F(Totals, EndTheProgramOnACoverageThatIsNoAmountAndOnMoreAssetsThanACountHolds)
{
    addAssets(32'767, "Mobile", "$1.00");
    pressValue();
    EXPECT_EQ(shownTotals().section('|', 5), "32767 Mobile Assets =>|$32,767.00|32767|$32,767.00");
    storeHousehold("0", "None");
    pressValue();
    EXPECT_EQ(failedHandler(), "frmMain.cmdValue_Click");
    storeHousehold("0", "$0.00");
    addAssets(1, "Attic", "$1.00");
    pressValue();
    EXPECT_EQ(failedHandler(), "frmMain.cmdValue_Click");
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 32'768);
}

} // namespace
