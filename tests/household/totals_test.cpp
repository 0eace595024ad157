// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmMain.h"
#include "household/frmTotals.h"
#include "platform/storage/statement.h"
#include "support/harness.h"

#include <QLabel>

using forms::screen;

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

    static void pressValue()
    {
        screen<frmMain>().show();
        click(screen<frmMain>().cmdValue);
    }

    /// How far from the left of the screen the last digit of a number ends.
    static int endOf(const forms::Label& number)
    {
        const auto& label = static_cast<const QLabel&>(*number.widget());
        const int overhanging = label.text().endsWith(')') ? label.fontMetrics().horizontalAdvance(')') : 0;
        return label.mapTo(label.window(), label.contentsRect().topRight()).x() - overhanging;
    }
};

TEST_F(Totals, AreSummedUpAnewAtEachLookAndComparedWithTheCoverage)
{
    put(Data1.rsGeneral, {{General::AssetValue, "-0.01"}}); // the running total, which only has to differ from zero
    addAssets(1, "INDOOR", "$1,234.5");
    addAssets(1, "Mobile", "$2");
    addAssets(1, "Mobile", "$0.126"); // counts as it is printed
    addAssets(1, "Attic", "$1,000,000.00"); // of no area: counted, not summed
    addAssets(1, "Outdoor", "-$5.00");
    screen<frmMain>().show();
    replay("household/totals.txt");
    const auto& totals = screen<frmTotals>();
    for (const auto* number : {&totals.lblOutdoorTots, &totals.lblTotNumAssets, &totals.lblGrandTot})
        EXPECT_EQ(endOf(*number), endOf(totals.lblIndoorTots));
}

// Where a walk has left it.
TEST_F(Totals, FindTheCoverageWhereverTheHouseholdsViewStands)
{
    put(Data1.rsGeneral, {{General::AssetValue, "$9.00"}, {General::PolicyCoverage, "$5.00"}});
    addAssets(1, "Indoor", "$9.00");
    screen<frmMain>().show();
    for (const auto move : {&storage::TableView::MovePrevious, &storage::TableView::MoveNext}) {
        (Data1.rsGeneral.*move)();
        clickTold(screen<frmMain>().cmdValue,
            "Your Assets Currently Exceed Your Policy Coverage Of $5.00...It Is Recommended You Increase Your "
            "Insurance "
            "Coverage!",
            Exclamation);
        click(screen<frmTotals>().cmdOK);
    }
    Data1.rsGeneral.MovePrevious();
    click(screen<frmMain>().cmdPersonal);
    EXPECT_EQ(front(), "1 frmGenInfo");
    EXPECT_FALSE(Data1.rsGeneral.atBOF());
}

TEST_F(Totals, EndTheProgramOnACoverageThatIsNoAmountAndOnMoreAssetsThanACountHolds)
{
    addAssets(1, "Indoor", "$2.00");
    addAssets(32'766, "Mobile", "$1.00");
    pressValue();
    const auto& totals = screen<frmTotals>();
    EXPECT_EQ(line(totals.lblOutNumAssets.caption(), totals.lblMobNumAssets.caption(), totals.lblTotNumAssets.caption(),
                  totals.lblGrandTot.caption()),
        " Outdoor Assets =>, 32766 Mobile Assets =>, 32767, $32,768.00"); // and no warning without a running total
    EXPECT_EQ(Data1.rsInventory.Fields(Inventory::Area), "Indoor") << "the first row is current again";
    put(Data1.rsGeneral, {{General::PolicyCoverage, "None"}});
    pressValue();
    EXPECT_EQ(failedHandler(), "frmMain.cmdValue_Click");
    put(Data1.rsGeneral, {{General::PolicyCoverage, "$0.00"}});
    addAssets(1, "Attic", "$1.00");
    pressValue();
    EXPECT_EQ(failedHandler(), "frmMain.cmdValue_Click");
    EXPECT_EQ(Data1.rsInventory.RecordCount(), 32'768);
}

} // namespace
