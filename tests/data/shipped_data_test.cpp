// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/data_store.h"
#include "data/shipped_database.h"
#include "data/standard_names.h"
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

TEST(StandardNames, EachFaultIsTold)
{
    const NameTriple good{"Kitchen", "Appliances", "Toaster"};
    const std::pair<NameTriple, const char*> cases[] = {{{"A", "0", "B"}, "no name"}, {{"A", "B", " Pan"}, "blank"},
        {{"Living room", "B", "Pan"}, "capital"}, {{"Living  Room", "B", "Pan"}, "two blanks"},
        {{"A", "B", QString(255, 'X')}, "too long"}, {{"KITCHEN", "B", "Pan"}, "two spellings"}, {good, "twice"}};
    for (const auto& [triple, fault] : cases) {
        const auto faults = faultsOf({triple, good}, {0, 0, 0});
        ASSERT_EQ(faults.size(), 1u) << fault;
        EXPECT_TRUE(faults[0].contains(fault)) << qPrintable(faults[0]);
    }
    EXPECT_EQ(faultsOf({good, {"Kitchen", "Kitchen", "4K Blu-Ray Player"}}, {1, 2, 2}).size(), 0u);
    EXPECT_EQ(faultsOf({good, {"Kitchen", "Tools", "Saw"}}, {2, 2, 2}).size(), 1u) << "too few different names";
}
