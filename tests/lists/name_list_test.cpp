// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/name_list.h"
#include "support/harness.h"

#include <random>

namespace {

// The rule as a walk over the list for each row: slow, and plain to see.
void walkNames(forms::ComboBox& list, storage::TableView& table, Names::Column column)
{
    table.MoveFirst();
    for (; !table.atEOF(); table.MoveNext()) {
        const QString name = table.Fields(column).text();
        const int count = list.listCount();
        for (int index = 0; index <= count; ++index) {
            if (name.toUpper() == list.list(index).toUpper() || name == "0")
                break;
            if (list.list(index).isEmpty()) {
                list.addItem(name);
                break;
            }
        }
    }
}

using NameList = ScreenTest;

TEST_F(NameList, IsWhatAWalkForEachRowGives)
{
    // They differ by case, by accents and by blanks, are no names, or have two letters for one capital.
    const QStringList names =
        QString("0|||attic|ATTIC|straße|STRASSE|été|ÉTÉ|Ete|ı|I|i|Attic |Σ|ς|10|00|Ǆ|ǆ|ﬁ|FI").split(u'|');
    std::mt19937 random(20261124);
    auto& table = Data1.rsPrint; // a staging table, quick to write
    forms::Form form("Lists");
    forms::ComboBox filled{form, "filled", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    forms::ComboBox walked{form, "walked", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    for (int round = 0; round < 200; ++round) {
        addRow(table, {{Names::Category, names[static_cast<int>(random() % static_cast<unsigned>(names.size()))]}});
        for (forms::ComboBox* box : {&filled, &walked}) {
            box->clear();
            if (round % 2 == 1)
                box->addItems({"ATTIC", "Cellar"}); // what was left there stays
        }
        fill_Name_List(filled, table, Names::Category);
        walkNames(walked, table, Names::Category);
        ASSERT_EQ(itemsOf(filled), itemsOf(walked)) << round;
    }
}

} // namespace
