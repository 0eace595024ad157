// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/connection.h"
#include "platform/storage/table_view.h"

#include <string_view>

// The columns of the tables by their ordinals.

namespace General {
enum Column {
    Last,
    First,
    Middle,
    Address,
    City,
    State,
    ZIP,
    HomePhone1,
    HomePhone2,
    HomePhone3,
    WorkPhone1,
    WorkPhone2,
    WorkPhone3,
    CellPhone1,
    CellPhone2,
    CellPhone3,
    EMail,
    Spare1,
    Introduced,
    PolicyNumber,
    PolicyExpiration,
    PolicyCoverage,
    PolicyNotify,
    WarrantyCheck,
    PolicyCompany,
    Spare2,
    Spare3,
    Spare4,
    Spare5,
    Spare6,
    Spare7,
    ClearCheck,
    AssetValue,
};
}

namespace Inventory {
enum Column {
    ID,
    Area,
    Location,
    Category,
    Type,
    Year,
    Make,
    Model,
    SerialVinId,
    DatePurchased,
    Amount,
    Receipt,
    ReceiptLocation,
    Description,
    Purchased,
    PartsType,
    PartsCoverage,
    PartsAmount,
    PartsMonth,
    PartsDay,
    PartsYear,
    LaborType,
    LaborCoverage,
    LaborAmount,
    LaborMonth,
    LaborDay,
    LaborYear,
    WarrantyDescription,
};
}

/// The three name tables are of one shape.
namespace Names {
enum Column { Location, Category, Type, Standard };
}

/// The first columns of `Inventory`, up to `Description`.
namespace Print {
using Inventory::Column;
using enum Inventory::Column;
} // namespace Print

namespace Bank {
enum Column {
    ID,
    FinancialInstitution,
    Address,
    Phone1,
    Phone2,
    Phone3,
    AccountNumber,
    RoutingNumber,
    AvailableBalance,
    AsOf,
    AccountType,
    City,
    State,
};
}

/// The data of the program: one connection and a view of each table, which all screens share.
struct DataStore {
    DataStore();

    storage::Connection Home;
    storage::TableView rsGeneral;
    storage::TableView rsBank;
    storage::TableView rsIndoor;
    storage::TableView rsMobile;
    storage::TableView rsInventory;
    storage::TableView rsOutdoor;
    storage::TableView rsPrint;
};

extern DataStore Data1;

/// Stands on the first row of a view, if it has rows.
void rewind(storage::TableView& view);

/// Copies the current asset into a new row of the staging table, which is stored by Update or with the next row.
void stageAsset();

/// The key of the database file.
storage::FileKey databaseKey();

/// The seven tables, and the one of a name that one of them has.
std::span<const storage::TableDefinition* const> databaseTables();
const storage::TableDefinition& databaseTable(std::string_view name);

/// Names the file that the views open.
void useDatabase(const QString& path);
