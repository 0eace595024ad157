// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/failure.h"
#include "support/harness.h"

using Sorting = ScreenTest;

TEST_F(Sorting, OrdersByColumnsAndEqualRowsAsTheyWereStored)
{
    auto& view = Data1.rsInventory;
    const auto add = [&view](const char* model, const char* location, const char* amount) {
        addRow(view, {{Inventory::Model, model}, {Inventory::Location, location}, {Inventory::Amount, amount}});
    };
    // From the current row, which has to be the first.
    const auto walked = [&view] {
        QString models;
        for (; !view.atEOF(); view.MoveNext())
            models += view.Fields(Inventory::Model).text();
        return models;
    };
    add("a", "attic", "$9.00");
    add("b", "Barn", "$10.00");
    add("c", "attic", "$10.00");
    add("d", "", "$1,000.00");
    add("e", "barn", "$9.00");
    const std::pair<const char*, const char*> orders[] = {{"Location", "daceb"}, {"location DESC", "beacd"},
        {"Amount", "aebcd"}, {" Amount desc , Location ASC", "dcbae"}, {"ID DESC", "edcba"}, {"", "abcde"},
        {"Serial/ VIN / ID", "abcde"}};
    for (const auto& [order, rows] : orders) {
        view.Sort(order);
        EXPECT_EQ(walked(), rows) << order;
    }
    view.Sort("Location");
    view.Fields(Inventory::Location) = "Cellar"; // of the first row: pending until the next sort
    add("f", "Attic", "$1.00");
    view.MoveFirst();
    EXPECT_EQ(walked(), "dacebf") << "a row added later comes last";
    view.Sort("Location DESC");
    EXPECT_EQ(walked(), "dbefac");
    EXPECT_THROW(view.Sort("Colour"), values::RuntimeFailure);
}
