// SPDX-License-Identifier: GPL-3.0-or-later
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
    EXPECT_EQ(scene(), "18 frmKeyboard: cmdUpdate");
    EXPECT_EQ(introduced(), "1");

    press(Qt::Key_Return);
    auto& personal = screen<frmGenInfo>();
    EXPECT_EQ(scene(), "1 frmGenInfo: txtInfo(1)");
    EXPECT_FALSE(personal.cmdBack[0].isEnabled());
    EXPECT_EQ(shown(personal), QStringList(17, "")) << "whatever the row holds";

    type("Ada\t\tByron");
    accessKey('S');
    EXPECT_EQ(scene(), "2 frmMain: cmdIn");
    EXPECT_EQ(stored().mid(0, 4), QStringList({"Byron", "Ada", "None", "None"}));

    click(screen<frmMain>().cmdPersonal);
    EXPECT_TRUE(personal.cmdBack[0].isEnabled());
}

TEST_F(FirstRun, ComesAgainWhenTheIntroductionIsClosed)
{
    screen<frmKeyboard>().show();
    closeBox(screen<frmKeyboard>()); // goes on
    EXPECT_EQ(scene(), "1 frmGenInfo: txtInfo(1); frmIntroduction");
    screen<frmGenInfo>().hide();
    expectBox("Are You Sure You Want To Close Kestrill?", yesNoQuestion, Answer::Yes);
    closeBox(screen<frmIntroduction>());
    EXPECT_EQ(scene(), "1 frmExit");
    Data1.rsGeneral.Open();
    EXPECT_NE(introduced(), "1");
}

} // namespace
