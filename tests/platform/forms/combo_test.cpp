// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

using forms::ComboBox;

namespace {

class Combo : public FormInFront<AllKinds> {
protected:
    Combo()
    {
        for (ComboBox* each : boxes) {
            each->Change = [this, each] { journal.note("Change:" + each->text()); };
            form.answers[each->name() + ".Click"] = [this, each] { journal.note("Click:" + each->text()); };
        }
    }

    ComboBox* const boxes[2] = {&form.combo, &form.choice};
};

TEST_F(Combo, SortsWithoutRegardToCaseAndKeepsEqualNamesInTheirOrder)
{
    for (const char* item : {"pear", "Apple", "apple", "Zebra", "banana"})
        form.empty.addItem(item);
    EXPECT_EQ(itemsOf(form.empty).join(' '), "Apple apple banana pear Zebra");
    EXPECT_EQ(form.empty.list(5), "") << "one past the end";
}

TEST_F(Combo, ClearingTheListEmptiesTheTextWithoutAnEvent)
{
    form.combo.setText("typed text");
    form.choice.setListIndex(2);
    journal.taken();
    for (ComboBox* each : boxes) {
        each->clear();
        EXPECT_EQ(each->text() + itemsOf(*each).join(' '), "");
        EXPECT_EQ(each->listIndex(), -1);
    }
    EXPECT_EQ(journal.taken(), "");
}

TEST_F(Combo, APickByMouseOrCursorKeysFiresClickAndNotChange)
{
    for (ComboBox* each : boxes) {
        stand(*each);
        pick(*each, "gamma");
        pick(*each, "gamma");
        EXPECT_EQ(journal.taken(), "Click:gamma Click:gamma") << "the same item again, too";
        EXPECT_EQ(each->listIndex(), 2);
        press(Qt::Key_Up);
        press(Qt::Key_Up);
        press(Qt::Key_Down);
        EXPECT_EQ(journal.taken(), "Click:beta Click:alpha Click:beta") << each->name().toStdString();
        press(Qt::Key_Up);
        press(Qt::Key_Up);
        EXPECT_EQ(journal.taken(), "Click:alpha") << "nothing stands above the first item";
    }
}

TEST_F(Combo, TextByCodeFiresChangeOnTheEditableKindAndClickOnThePickOnlyKind)
{
    for (int times = 0; times < 2; ++times)
        form.combo.setText("beta");
    EXPECT_EQ(journal.taken(), "Change:beta");
    for (int times = 0; times < 2; ++times)
        form.choice.setText("beta");
    EXPECT_EQ(journal.taken(), "Click:beta");
    form.combo.setListIndex(2);
    form.choice.setListIndex(2);
    form.choice.setListIndex(2);
    EXPECT_EQ(journal.taken(), "Click:gamma Click:gamma");
    EXPECT_EQ(form.combo.text(), "gamma");
}

} // namespace
