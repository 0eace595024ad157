// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

using forms::ComboBox;
using forms::ComboStyle;
using forms::ItemOrder;

namespace {

class Combos : public TrialForm {
public:
    explicit Combos(Journal& journal)
        : TrialForm("Combos", journal)
    {
        layOut({&typed, &picked, &sorted, &after});
        for (ComboBox* each : {&typed, &picked, &sorted}) {
            each->Change = [this, each] { note("Change:" + each->text()); };
            each->Click = [this, each] { note("Click:" + each->text()); };
        }
    }

    ComboBox typed{*this, "typed"};
    ComboBox picked{*this, "picked", ComboStyle::PickOnly};
    ComboBox sorted{*this, "sorted", ComboStyle::Editable, ItemOrder::Sorted};
    forms::CommandButton after{*this, "after"};
};

QString itemsOf(const ComboBox& box)
{
    QStringList items;
    for (int index = 0; index < box.listCount(); ++index)
        items += box.list(index);
    return items.join(' ');
}

class Combo : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        form.typed.addItems({"alpha", "beta", "gamma"});
        form.picked.addItems({"alpha", "beta", "gamma"});
        form.show();
        journal.taken();
    }

    Journal journal;
    Combos form{journal};
};

TEST_F(Combo, SortsWithoutRegardToCaseAndKeepsEqualNamesInTheirOrder)
{
    for (const char* item : {"pear", "Apple", "apple", "Zebra", "banana"})
        form.sorted.addItem(item);
    EXPECT_EQ(itemsOf(form.sorted), "Apple apple banana pear Zebra");
    EXPECT_EQ(form.sorted.list(5), "") << "one past the end";
}

TEST_F(Combo, ClearingTheListEmptiesTheTextWithoutAnEvent)
{
    form.typed.setText("typed text");
    form.picked.setListIndex(2);
    journal.taken();
    for (ComboBox* each : {&form.typed, &form.picked}) {
        each->clear();
        EXPECT_EQ(each->text(), "");
        EXPECT_EQ(each->listCount(), 0);
        EXPECT_EQ(each->listIndex(), -1);
    }
    EXPECT_EQ(journal.taken(), "");
}

TEST_F(Combo, APickByMouseFiresClickAndNotChange)
{
    for (ComboBox* each : {&form.typed, &form.picked}) {
        pick(*each, "gamma");
        EXPECT_EQ(journal.taken(), "Click:gamma") << each->name().toStdString();
        pick(*each, "gamma");
        EXPECT_EQ(journal.taken(), "Click:gamma") << "the same item again";
        EXPECT_EQ(each->listIndex(), 2);
    }
}

TEST_F(Combo, APickByCursorKeysFiresClickAndNotChange)
{
    for (ComboBox* each : {&form.typed, &form.picked}) {
        each->setFocus();
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        press(Qt::Key_Up);
        EXPECT_EQ(journal.taken(), "Click:alpha Click:beta Click:alpha") << each->name().toStdString();
        press(Qt::Key_Up);
        EXPECT_EQ(journal.taken(), "") << "nothing stands above the first item";
    }
}

TEST_F(Combo, TextByCodeFiresChangeOnTheEditableKindAndClickOnThePickOnlyKind)
{
    form.typed.setText("beta");
    form.typed.setText("beta");
    EXPECT_EQ(journal.taken(), "Change:beta");
    form.picked.setText("beta");
    form.picked.setText("beta");
    EXPECT_EQ(journal.taken(), "Click:beta");
    form.typed.setListIndex(2);
    form.picked.setListIndex(2);
    form.picked.setListIndex(2);
    EXPECT_EQ(journal.taken(), "Click:gamma Click:gamma");
    EXPECT_EQ(form.typed.text(), "gamma");
}

} // namespace
