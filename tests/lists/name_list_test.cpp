// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/name_list.h"
#include "support/harness.h"

namespace {

using NameList = ScreenTest;

// The names differ by case, by accents and by blanks, are no names, or have two letters for one capital.
TEST_F(NameList, TakesEachNameInTheSpellingThatComesFirst)
{
    auto& table = Data1.rsPrint; // a staging table, quick to write
    for (const QString& name :
        QString("0|||straße|STRASSE|attic|Attic|été|ÉTÉ|Ete|ı|I|i|Attic |Σ|ς|10|00|Ǆ|ǆ|ﬁ|FI|2nd").split(u'|'))
        addRow(table, {{Names::Category, name}});
    forms::Form form("Lists");
    forms::ComboBox list{form, "list", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    fill_Name_List(list, table, Names::Category);
    EXPECT_EQ(itemsOf(list).join('|'), "00|10|2nd|attic|Attic |Ete|straße|été|ı|Ǆ|Σ|ﬁ");
    list.clear();
    list.addItems({"ATTIC", "< Add/Edit >", "Cellar"}); // what was left there stays
    fill_Name_List(list, table, Names::Category);
    EXPECT_EQ(itemsOf(list).join('|'), "< Add/Edit >|00|10|2nd|ATTIC|Attic |Cellar|Ete|straße|été|ı|Ǆ|Σ|ﬁ");
}

} // namespace
