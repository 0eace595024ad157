// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/data_store.h"
#include "data/shipped_database.h"
#include "support/print.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(ShippedDatabase, HoldsTheNamesOfEachAreaTheHouseholdsMarkersAndNothingElse)
{
    QTemporaryDir folder;
    const QString path = folder.filePath("KTL.db");
    createShippedDatabase(
        path, {{{"Attic", "Art", "Frame"}}, {{"Garden", "Tools", "Rake"}}, {{"Car", "Parts", "Jack"}}});
    DataStore store;
    store.Home.setFile(path, databaseKey());

    const std::pair<storage::TableView*, const char*> areas[] = {
        {&store.rsIndoor, "Attic"}, {&store.rsOutdoor, "Garden"}, {&store.rsMobile, "Car"}};
    for (const auto& [view, location] : areas) {
        view->Open();
        ASSERT_EQ(view->RecordCount(), 2);
        EXPECT_EQ(view->Fields(Names::Location), "< Add/Edit Location >");
        EXPECT_EQ(view->Fields(Names::Category), "< Add/Edit Category >");
        EXPECT_EQ(view->Fields(Names::Type), "< Add/Edit Item >");
        view->MoveNext();
        EXPECT_EQ(view->Fields(Names::Location), location);
        EXPECT_EQ(view->Fields(Names::Standard), 1);
    }
    storage::TableView& household = store.rsGeneral;
    household.Open();
    ASSERT_EQ(household.RecordCount(), 1);
    EXPECT_EQ(household.Fields(General::Last), "None");
    EXPECT_EQ(household.Fields(General::CellPhone3), "----");
    EXPECT_EQ(household.Fields(General::PolicyCoverage), "$0.00");
    EXPECT_EQ(household.Fields(General::ClearCheck), "Checked");
    for (storage::TableView* view : {&store.rsInventory, &store.rsPrint, &store.rsBank}) {
        view->Open();
        EXPECT_EQ(view->RecordCount(), 0);
    }
}
