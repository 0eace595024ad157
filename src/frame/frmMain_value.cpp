// SPDX-License-Identifier: GPL-3.0-or-later
// What the assets are worth: counted and summed anew from the inventory at each press of cmdValue.
#include "data/data_store.h"
#include "frame/frmMain.h"
#include "household/frmTotals.h"
#include "platform/storage/folded_text.h"
#include "shared/conventions.h"

#include <algorithm>

using forms::screen;
using storage::FoldedText;
using storage::TableView;
using values::Currency;
using values::Integer;

namespace {

struct AreaSum {
    FoldedText area;
    Currency frmTotals::*total;
    Integer frmTotals::*count;
    forms::Label frmTotals::*amount;
    forms::Label frmTotals::*assets;
    const char* one;
    const char* many;
};

const AreaSum areaSums[] = {
    {FoldedText("Indoor"), &frmTotals::IndoorTotal, &frmTotals::IndoorCount, &frmTotals::lblIndoorTots,
        &frmTotals::lblInNumAssets, " Indoor Asset =>", " Indoor Assets =>"},
    {FoldedText("Outdoor"), &frmTotals::OutdoorTotal, &frmTotals::OutdoorCount, &frmTotals::lblOutdoorTots,
        &frmTotals::lblOutNumAssets, " Outdoor Asset =>", " Outdoor Assets =>"},
    {FoldedText("Mobile"), &frmTotals::MobileTotal, &frmTotals::MobileCount, &frmTotals::lblMobileTots,
        &frmTotals::lblMobNumAssets, " Mobile Asset =>", " Mobile Assets =>"},
};

void empty(frmTotals& totals)
{
    for (const AreaSum& sum : areaSums) {
        totals.*sum.total = {};
        totals.*sum.count = 0;
    }
    totals.GrandTotal = {};
    totals.TotalCount = 0;
}

// An asset of no known area counts among all assets and is worth nothing.
void add_Asset(frmTotals& totals, TableView& asset)
{
    const auto area = asset.Fields(Inventory::Area);
    const auto sum = std::find_if(
        std::begin(areaSums), std::end(areaSums), [&area](const AreaSum& each) { return area.equals(each.area); });
    if (sum != std::end(areaSums)) {
        const Currency amount = asset.Fields(Inventory::Amount).currency().rounded();
        totals.*sum->total += amount;
        totals.GrandTotal += amount;
        ++(totals.*sum->count);
    }
    ++totals.TotalCount;
}

// Of none there is no number, but the blank in front of the phrase stays.
QString phrase(const AreaSum& sum, int count)
{
    if (count == 0)
        return sum.many;
    return QString::number(count) + (count == 1 ? sum.one : sum.many);
}

void show_Sums(frmTotals& totals)
{
    for (const AreaSum& sum : areaSums) {
        (totals.*sum.assets).setCaption(phrase(sum, totals.*sum.count));
        (totals.*sum.amount).setCaption((totals.*sum.total).toText());
    }
    totals.lblGrandTot.setCaption(totals.GrandTotal.toText());
    totals.lblTotNumAssets.setCaption(QString::number(totals.TotalCount));
}

void put_Views_Back()
{
    if (Data1.rsGeneral.atBOF())
        Data1.rsGeneral.MoveNext();
    else if (Data1.rsGeneral.atEOF())
        Data1.rsGeneral.MoveFirst();
    if (Data1.rsInventory.atBOF() || Data1.rsInventory.atEOF())
        Data1.rsInventory.MoveFirst();
}

// The running total decides whether there is anything to insure; the sums that are shown decide whether it is too much.
void check_Coverage(const frmTotals& totals)
{
    const Currency worth = Currency::parse(totals.lblGrandTot.caption());
    const Currency coverage = Data1.rsGeneral.Fields(General::PolicyCoverage).currency();
    const bool hasAssets = Data1.rsGeneral.Fields(General::AssetValue).currency() != Currency();
    if (hasAssets && worth > coverage)
        conventions::MsgBox("Your Assets Currently Exceed Your Policy Coverage Of " + coverage.toText()
                + "...It Is Recommended You Increase Your Insurance Coverage!",
            forms::box::Exclamation);
}

} // namespace

void frmMain::cmdValue_Click()
{
    if (Data1.rsInventory.RecordCount() == 0) {
        conventions::MsgBox(
            "No Assets Are Available To Total...Please Add An Asset Before Continuing!", forms::box::Information);
        return;
    }
    hide();
    auto& totals = screen<frmTotals>();
    empty(totals);
    CurrentScreen = totals.Number;
    rewind(Data1.rsInventory);
    for (; !Data1.rsInventory.atEOF(); Data1.rsInventory.MoveNext())
        add_Asset(totals, Data1.rsInventory);
    show_Sums(totals);
    put_Views_Back();
    check_Coverage(totals);
    totals.show();
}
