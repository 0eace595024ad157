// SPDX-License-Identifier: GPL-3.0-or-later
#include "trial_form.h"

namespace {

class Choices : public TrialForm {
public:
    explicit Choices(Journal& journal)
        : TrialForm("Choices", journal)
    {
        layOut({&house, &garage, &tick, &go});
        for (forms::Control* each : controls())
            each->Click = [this, each] { note(each->name()); };
    }

    forms::OptionButton house{*this, "house"};
    forms::OptionButton garage{*this, "garage"};
    forms::CheckBox tick{*this, "tick"};
    forms::CommandButton go{*this, "go"};
};

class Buttons : public FormsTest {
protected:
    void SetUp() override
    {
        FormsTest::SetUp();
        form.show();
        journal.taken();
    }

    Journal journal;
    Choices form{journal};
};

TEST_F(Buttons, AnOptionClicksWhenUserOrCodeChoosesItAnew)
{
    click(form.house);
    click(form.house);
    EXPECT_EQ(journal.taken(), "house");
    form.garage.setValue(true);
    form.garage.setValue(true);
    EXPECT_EQ(journal.taken(), "garage");
    EXPECT_FALSE(form.house.value());
}

TEST_F(Buttons, ACheckBoxClicksWhenUserOrCodeChangesIt)
{
    click(form.tick);
    EXPECT_EQ(form.tick.value(), 1);
    press(Qt::Key_Space);
    EXPECT_EQ(form.tick.value(), 0);
    form.tick.setValue(1);
    form.tick.setValue(1);
    EXPECT_EQ(journal.taken(), "tick tick tick");
}

} // namespace
