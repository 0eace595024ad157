// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/standard_names.h"
#include "platform/values/failure.h"
#include "support/print.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
