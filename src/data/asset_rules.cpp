// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/asset_rules.h"

#include "data/name_markers.h"
#include "platform/values/date.h"
#include "platform/values/text.h"

namespace asset_rules {

namespace {

bool isEmpty(const QString& text)
{
    return text.isEmpty();
}

bool isNoLocation(const QString& text)
{
    return text.isEmpty() || text == names::LocationMarker;
}

bool isNoCategory(const QString& text)
{
    return text.isEmpty() || text == names::CategoryMarker;
}

bool isNoDate(const QString& text)
{
    return text.isEmpty() || values::equalUpper(text, "mm/dd/yyyy");
}

bool isFuture(const QString& text)
{
    return values::Date::parse(text) > values::Today();
}

// "$0.00" is a price.
bool isNoPrice(const QString& text)
{
    return text.isEmpty() || text == "$.00";
}

constexpr Requirement all[] = {
    {Inventory::Location, isNoLocation, "The Location Of The Asset Must Be Selected Before Saving!"},
    {Inventory::Category, isNoCategory, "The Category Of The Asset Must Be Selected Before Saving!"},
    {Inventory::Type, isEmpty, "An Item Must Be Selected Before Saving Asset!"},
    {Inventory::Year, isEmpty, "The Year The Asset Was Made Must Be Entered Before Saving!", "2005"},
    {Inventory::Make, isEmpty,
        "The Make Of The Asset Must Be Entered Before Saving!  If Unavailable Please Type \"Unknown\"", "Unknown"},
    {Inventory::Model, isEmpty,
        "The Model Of The Asset Must Be Entered Before Saving!  If Unavailable Please Type \"Unknown\"", "Unknown"},
    {Inventory::SerialVinId, isEmpty,
        "The Serial Number Of The Asset Must Be Entered Before Saving...If Unavailable Please Type \"Unknown\"",
        "Unknown"},
    {Inventory::DatePurchased, isNoDate, "The Purchase Date Of The Asset Must Be Entered Before Saving!"},
    {Inventory::DatePurchased, isFuture, "The Purchase Date Can Not Be A Future Date!"},
    {Inventory::Amount, isNoPrice, "The Purchase Price Of The Asset Must Be Entered Before Saving!"},
};

// In the order in which they are stored.
constexpr Inventory::Column warrantyColumns[] = {Inventory::PartsType, Inventory::PartsAmount, Inventory::PartsCoverage,
    Inventory::PartsMonth, Inventory::PartsDay, Inventory::PartsYear, Inventory::LaborType, Inventory::LaborAmount,
    Inventory::LaborCoverage, Inventory::LaborMonth, Inventory::LaborDay, Inventory::LaborYear,
    Inventory::WarrantyDescription};

} // namespace

std::span<const Requirement> requirements()
{
    return all;
}

int limitOf(Inventory::Column column)
{
    switch (column) {
    case Inventory::Make:
    case Inventory::Model:
    case Inventory::SerialVinId:
        return 49;
    case Inventory::Description:
        return 195;
    case Inventory::PartsCoverage:
    case Inventory::LaborCoverage:
        return 3;
    default:
        return 254;
    }
}

QString receiptLocation(const QString& entered, bool isNoReceipt)
{
    if (values::equalUpper(entered, "None") || (entered.isEmpty() && isNoReceipt))
        return QStringLiteral("None");
    return entered.isEmpty() || isNoReceipt ? QStringLiteral("Not Specified") : entered;
}

void putNoWarranty(storage::TableView& asset)
{
    for (const Inventory::Column column : warrantyColumns)
        asset.Fields(column) = "None";
}

void moveAssetValue(storage::TableView& general, values::Currency less, values::Currency more)
{
    general.Fields(General::AssetValue) = general.Fields(General::AssetValue).currency() - less + more;
    general.Update();
}

void addNames(storage::TableView& table, const QString& location, const QString& category, const QString& item)
{
    table.AddNew();
    table.Fields(Names::Location) = location;
    table.Fields(Names::Category) = category;
    table.Fields(Names::Type) = item;
    table.Fields(Names::Standard) = names::Blank;
    table.Update();
}

} // namespace asset_rules
