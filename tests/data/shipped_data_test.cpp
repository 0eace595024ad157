// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/data_store.h"
#include "data/shipped_database.h"
#include "data/standard_names.h"
#include "platform/storage/schema.h"
#include "support/print.h"
#include "support/rows.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(ShippedDatabase, HoldsTheNamesOfEachAreaTheHouseholdsRowAndNothingElse)
{
    QTemporaryDir folder;
    createShippedDatabase(folder.filePath("KTL.db"),
        {{{"Attic", "Art", "Frame"}}, {{"Garden", "Tools", "Rake"}}, {{"Car", "Parts", "Jack"}}});
    DataStore store;
    store.Home.setFile(folder.filePath("KTL.db"), databaseKey());
    for (storage::TableView* view : {&store.rsIndoor, &store.rsOutdoor, &store.rsMobile, &store.rsGeneral,
             &store.rsInventory, &store.rsPrint, &store.rsBank})
        view->Open();
    const QString leading = "< Add/Edit Location >|< Add/Edit Category >|< Add/Edit Item >|1";
    EXPECT_EQ(rowsOf(store.rsIndoor, 0, Names::Standard), QStringList({leading, "Attic|Art|Frame|1"}));
    EXPECT_EQ(rowsOf(store.rsOutdoor, 0, Names::Standard), QStringList({leading, "Garden|Tools|Rake|1"}));
    EXPECT_EQ(rowsOf(store.rsMobile, 0, Names::Standard), QStringList({leading, "Car|Parts|Jack|1"}));
    EXPECT_EQ(rowsOf(store.rsGeneral, General::Last, General::First), QStringList("None|None"));
    EXPECT_EQ(store.rsInventory.RecordCount() + store.rsPrint.RecordCount() + store.rsBank.RecordCount(), 0);
}

// Whatever the passphrase: the key that is known for the salt of the shipped file opens it.
TEST(ShippedDatabase, OpensByTheKeyThatIsKnown)
{
    storage::FileKey key = databaseKey();
    key.passphrase = "another";
    EXPECT_EQ(storage::checkDatabase(KESTRILL_SHIPPED_DATABASE, key).size(), 7u);
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
