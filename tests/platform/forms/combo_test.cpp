// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

class Combo : public FormInFront {
protected:
    Combo()
    {
        for (forms::ComboBox* each : boxes) {
            each->Change = [this, each] { journal.note("Change:" + each->text()); };
            form.answers[each->name() + ".Click"] = [this, each] { journal.note("Click:" + each->text()); };
        }
    }

    forms::ComboBox* const boxes[2] = {&form.combo, &form.choice};
};

TEST_F(Combo, SortsWithoutRegardToCaseKeepsEqualNamesInTheirOrderAndIsCleared)
{
    for (const char* item : {"pear", "Apple", "apple", "Zebra", "banana"})
        form.empty.addItem(item);
    EXPECT_EQ(itemsOf(form.empty).join(' '), "Apple apple banana pear Zebra");
    EXPECT_EQ(form.empty.list(5), "") << "one past the end";
    form.combo.setText("typed text");
    form.choice.setListIndex(2);
    journal.taken();
    for (forms::ComboBox* each : boxes) {
        EXPECT_EQ(after([each] { each->clear(); }), "") << each->name().toStdString();
        EXPECT_EQ(each->text() + itemsOf(*each).join(' '), "");
        EXPECT_EQ(each->listIndex(), -1);
    }
}

TEST_F(Combo, FiresClickAtAPickAndChangeOrClickAtATextByCode)
{
    for (forms::ComboBox* each : boxes) {
        SCOPED_TRACE(each->name().toStdString());
        stand(*each);
        for (int times = 0; times < 2; ++times) // the same item again, too
            EXPECT_EQ(after([each] { pick(*each, "gamma"); }), "Click:gamma");
        EXPECT_EQ(each->listIndex(), 2);
        QStringList clicks;
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down})
            clicks += after([key] { press(key); });
        EXPECT_EQ(clicks, QStringList({"Click:beta", "Click:alpha", "", "Click:beta"}));
        each->setText("alpha");
        EXPECT_EQ(journal.taken(), each == &form.combo ? "Change:alpha" : "Click:alpha");
        EXPECT_EQ(after([each] { each->setText("alpha"); }), "");
        EXPECT_EQ(after([each] { each->setListIndex(2); }), "Click:gamma");
        EXPECT_EQ(after([each] { each->setListIndex(2); }), "");
        EXPECT_EQ(each->text(), "gamma");
    }
}

} // namespace
