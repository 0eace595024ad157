// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/shipped_database.h"

#include "data/data_store.h"
#include "platform/storage/schema.h"

using storage::TableView;

namespace {

struct Seed {
    General::Column column;
    const char* text;
};

// What the household's row holds where nothing has been told. A column that nothing uses has the mark too.
constexpr Seed household[] = {
    {General::Last, "None"},
    {General::First, "None"},
    {General::Middle, "None"},
    {General::Address, "None"},
    {General::City, "None"},
    {General::State, "None"},
    {General::ZIP, "None"},
    {General::HomePhone1, "---"},
    {General::HomePhone2, "---"},
    {General::HomePhone3, "----"},
    {General::WorkPhone1, "---"},
    {General::WorkPhone2, "---"},
    {General::WorkPhone3, "----"},
    {General::CellPhone1, "---"},
    {General::CellPhone2, "---"},
    {General::CellPhone3, "----"},
    {General::EMail, "None"},
    {General::Spare1, "None"},
    {General::Introduced, ""},
    {General::PolicyNumber, "None"},
    {General::PolicyExpiration, "None"},
    {General::PolicyCoverage, "$0.00"},
    {General::PolicyNotify, "No"},
    {General::WarrantyCheck, "Unchecked"},
    {General::PolicyCompany, "None"},
    {General::Spare2, "None"},
    {General::Spare3, "None"},
    {General::Spare4, "None"},
    {General::Spare5, "None"},
    {General::Spare6, "None"},
    {General::Spare7, "None"},
    {General::ClearCheck, "Checked"},
};

void fillHousehold(TableView& view)
{
    view.Open();
    view.AddNew();
    for (const Seed& seed : household)
        view.Fields(seed.column) = seed.text;
    view.Update();
}

void addStandard(TableView& view, const NameTriple& names)
{
    view.AddNew();
    view.Fields(Names::Location) = names.location;
    view.Fields(Names::Category) = names.category;
    view.Fields(Names::Type) = names.type;
    view.Fields(Names::Standard) = 1;
    view.Update();
}

void fillNames(TableView& view, const NameTriples& names)
{
    view.Open();
    // The row that leads from the lists to their editors.
    addStandard(view, {"< Add/Edit Location >", "< Add/Edit Category >", "< Add/Edit Item >"});
    for (const NameTriple& triple : names)
        addStandard(view, triple);
}

} // namespace

void createShippedDatabase(const QString& path, const StandardNames& names)
{
    storage::createDatabase(path, databaseKey(), databaseTables());
    DataStore store;
    store.Home.open(path, databaseKey());
    storage::Transaction transaction(store.Home.handle());
    fillHousehold(store.rsGeneral);
    fillNames(store.rsIndoor, names.indoor);
    fillNames(store.rsOutdoor, names.outdoor);
    fillNames(store.rsMobile, names.mobile);
    transaction.commit();
}
