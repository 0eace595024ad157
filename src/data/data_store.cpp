// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/data_store.h"

#include <algorithm>
#include <array>
#include <iterator>

using storage::Column;
using storage::ColumnType;
using storage::TableDefinition;

namespace {

constexpr Column generalColumns[] = {
    {"Last"},
    {"First"},
    {"Middle"},
    {"Address"},
    {"City"},
    {"State"},
    {"ZIP"},
    {"Home Phone1"},
    {"Home Phone2"},
    {"Home Phone3"},
    {"Work Phone1"},
    {"Work  Phone2"},
    {"Work  Phone3"},
    {"Cell Phone1"},
    {"Cell Phone2"},
    {"Cell  Phone3"},
    {"EMail"},
    {"Spare 1"},
    {"Introduced"},
    {"Policy Number"},
    {"Policy Expiration"},
    {"Policy Coverage"},
    {"Policy Notify"},
    {"Warranty Check"},
    {"Policy Company"},
    {"Spare 2"},
    {"Spare 3"},
    {"Spare 4"},
    {"Spare 5"},
    {"Spare 6"},
    {"Spare 7"},
    {"Clear Check"},
    {"AssetValue", ColumnType::Currency},
};

constexpr Column inventoryColumns[] = {
    {"ID", ColumnType::Identity},
    {"Area"},
    {"Location"},
    {"Category"},
    {"Type"},
    {"Year"},
    {"Make"},
    {"Model"},
    {"Serial/ VIN / ID"},
    {"Date Purchased"},
    {"Amount", ColumnType::Money},
    {"Receipt"},
    {"Receipt Location"},
    {"Description"},
    {"Purchased"},
    {"Parts Type"},
    {"Parts Coverage"},
    {"Parts Amount"},
    {"Parts Month"},
    {"Parts Day"},
    {"Parts Year"},
    {"Labor Type"},
    {"Labor Coverage"},
    {"Labor Amount"},
    {"Labor Month"},
    {"Labor Day"},
    {"Labor Year"},
    {"Warranty Description"},
};

constexpr Column nameColumns[] = {
    {"Location"},
    {"Category"},
    {"Type"},
    {"Standard", ColumnType::Integer},
};

// Those of an asset; the ID is a number that the asset has given.
constexpr auto printColumns = [] {
    std::array<Column, Print::Description + 1> columns{};
    std::copy_n(std::begin(inventoryColumns), columns.size(), columns.begin());
    columns[Print::ID].type = ColumnType::Integer;
    return columns;
}();

constexpr Column bankColumns[] = {
    {"ID", ColumnType::Identity},
    {"Financial Institution"},
    {"Address"},
    {"Phone1"},
    {"Phone2"},
    {"Phone3"},
    {"Account Number"},
    {"Routing Number"},
    {"Available Balance"},
    {"As Of"},
    {"Account Type"},
    {"City"},
    {"State"},
};

constexpr TableDefinition generalTable{"Personal_Info", generalColumns};
constexpr TableDefinition bankTable{"Bank_Info", bankColumns};
constexpr TableDefinition indoorTable{"Indoor_Items", nameColumns};
constexpr TableDefinition mobileTable{"Mobile_Items", nameColumns};
constexpr TableDefinition inventoryTable{"Inventory", inventoryColumns};
constexpr TableDefinition outdoorTable{"Outdoor_Items", nameColumns};
// Search results and reports are staged here, from the inventory.
constexpr TableDefinition printTable{"Print", printColumns, true};

constexpr const TableDefinition* tables[] = {
    &generalTable, &bankTable, &indoorTable, &mobileTable, &inventoryTable, &outdoorTable, &printTable};

// The enumerators of a table and its columns are of one length, at least.
static_assert(std::size(generalColumns) == General::AssetValue + 1);
static_assert(std::size(inventoryColumns) == Inventory::WarrantyDescription + 1);
static_assert(std::size(nameColumns) == Names::Standard + 1);
static_assert(std::size(bankColumns) == Bank::State + 1);

} // namespace

DataStore Data1;

DataStore::DataStore()
    : rsGeneral(Home, generalTable)
    , rsBank(Home, bankTable)
    , rsIndoor(Home, indoorTable)
    , rsMobile(Home, mobileTable)
    , rsInventory(Home, inventoryTable)
    , rsOutdoor(Home, outdoorTable)
    , rsPrint(Home, printTable)
{
}

void rewind(storage::TableView& view)
{
    if (view.RecordCount() != 0)
        view.MoveFirst();
}

void stageAsset()
{
    Data1.rsPrint.AddNew();
    for (int column = Print::ID; column <= Print::Description; ++column)
        Data1.rsPrint.Fields(column) = Data1.rsInventory.Fields(column);
}

// The salt is that of the file that the program comes with, and so of nearly every household's.
storage::FileKey databaseKey()
{
    return {"R2916mTq47DxWuHzEoN", "5cf6ee792cdf05e1ba2b6325c41a5f10",
        "15493f0bff541ab4fe0c241f01cb4db3e0a761814dd31db46eee89c062d9cf9a"};
}

std::span<const TableDefinition* const> databaseTables()
{
    return tables;
}

const TableDefinition& databaseTable(std::string_view name)
{
    return **std::ranges::find(tables, name, &TableDefinition::name);
}

void useDatabase(const QString& path)
{
    Data1.Home.setFile(path, databaseKey());
}
