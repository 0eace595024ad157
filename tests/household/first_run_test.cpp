// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frmExit.h"
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "household/household.h"

using forms::Answer;
using forms::screen;

namespace {

class FirstRun : public ScreenTest {
protected:
    void SetUp() override
    {
        ScreenTest::SetUp();
        screen<frmIntroduction>().show();
    }

    static QString introduced()
    {
        Data1.rsGeneral.Close();
        Data1.rsGeneral.Open();
        return Data1.rsGeneral.Fields(General::Introduced).text();
    }
};

TEST_F(FirstRun, LeadsByKeysAloneFromTheIntroductionToTheMenuWithTheRowSaved)
{
    store(QStringList(17, "7"));
    EXPECT_NE(introduced(), "1");
    press(Qt::Key_Return);
    EXPECT_EQ(forms::activeForm(), &screen<frmKeyboard>());
    EXPECT_EQ(introduced(), "1");

    press(Qt::Key_Return);
    auto& personal = screen<frmGenInfo>();
    EXPECT_EQ(forms::activeForm(), &personal);
    EXPECT_FALSE(personal.cmdBack[0].isEnabled());
    EXPECT_EQ(focused(), "txtInfo(1)");
    EXPECT_EQ(shown(personal), QStringList(17, "")) << "whatever the row holds";

    type("Ada\t\tByron");
    accessKey('S');
    EXPECT_EQ(forms::activeForm(), &screen<frmMain>());
    EXPECT_EQ(stored().mid(0, 4), QStringList({"Byron", "Ada", "None", "None"}));

    click(screen<frmMain>().cmdPersonal);
    EXPECT_TRUE(personal.cmdBack[0].isEnabled());
}

TEST_F(FirstRun, ComesAgainWhenTheIntroductionIsClosed)
{
    expectBox("Are You Sure You Want To Close Kestrill?", yesNoQuestion, Answer::Yes);
    closeBox(screen<frmIntroduction>());
    EXPECT_EQ(forms::activeForm(), &screen<frmExit>());
    Data1.rsGeneral.Open();
    EXPECT_NE(introduced(), "1");
}

} // namespace
