// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/mending.h"

#include "data/data_store.h"
#include "data/name_markers.h"
#include "data/places.h"
#include "platform/storage/statement.h"
#include "shared/areas.h"
#include "tools/checking.h"
#include "tools/put_aside.h"

#include <algorithm>
#include <string_view>

using storage::TableView;

namespace mending {

namespace {

values::Currency sumOf(TableView& assets)
{
    values::Currency sum;
    for (rewind(assets); !assets.atEOF(); assets.MoveNext())
        sum += assets.Fields(Inventory::Amount).currency();
    return sum;
}

TableView& nameTable(DataStore& store, std::string_view table)
{
    const auto all = areas::all();
    return store.*std::ranges::find(all, table, &areas::Area::namesTable)->names;
}

void addMarkerRow(TableView& table)
{
    table.Open();
    table.AddNew();
    table.Fields(Names::Location) = names::LocationMarker;
    table.Fields(Names::Category) = names::CategoryMarker;
    table.Fields(Names::Type) = names::ItemMarker;
    table.Fields(Names::Standard) = "1";
    table.Update();
}

void mend(DataStore& store, const Mend& mend)
{
    switch (mend.kind) {
    case Mend::Kind::RunningTotal:
        store.rsGeneral.Fields(General::AssetValue) = sumOf(store.rsInventory);
        store.rsGeneral.Update();
        break;
    case Mend::Kind::Alert:
        store.rsGeneral.Fields(General::PolicyNotify) = "No";
        store.rsGeneral.Update();
        break;
    case Mend::Kind::MarkerRow:
        addMarkerRow(nameTable(store, mend.table));
        break;
    }
}

void mendAll(const std::vector<Mend>& mends, qint64 generation)
{
    DataStore store;
    store.Home.open(places::databaseFile(), databaseKey());
    if (storage::generationOf(store.Home.handle()) != generation) // between the copy and this moment
        aside::refuseStale();
    store.rsGeneral.Open();
    store.rsInventory.Open();
    storage::Transaction all(store.Home.handle());
    for (const Mend& each : mends)
        mend(store, each);
    all.commit();
}

} // namespace

std::vector<Mend> possible(const Household& household)
{
    std::vector<Mend> mends;
    const bool isOneHousehold = household.table("Personal_Info").rowCount() == 1;
    if (isOneHousehold && checking::is_Sum_Known(household) && checking::is_Total_Off(household))
        mends.push_back({Mend::Kind::RunningTotal, "Personal_Info",
            QStringLiteral("Set the running total to %1, the sum of the amounts").arg(household.total()->toText())});
    if (isOneHousehold && checking::does_Alert_Stop(household))
        mends.push_back({Mend::Kind::Alert, "Personal_Info",
            QStringLiteral("Turn off the alert about the insurance policy, whose date stays as it is")});
    for (const char* table : checking::NameTables)
        if (checking::lacks_Marker_Row(household.table(table)))
            mends.push_back({Mend::Kind::MarkerRow, table,
                QStringLiteral("Add the row to %1 that leads to the list editors").arg(QString::fromUtf8(table))});
    return mends;
}

QString carry_Out(const std::vector<Mend>& mends)
{
    const auto refuseStale = [&mends](const Household& today) {
        const std::vector<Mend> now = possible(today);
        for (const Mend& mend : mends)
            if (std::find(now.begin(), now.end(), mend) == now.end())
                aside::refuseStale();
    };
    return aside::changeBehindCopy(refuseStale, [&mends](qint64 generation) { mendAll(mends, generation); });
}

} // namespace mending
