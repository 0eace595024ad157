// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "core/frmMain.h"
#include "core/frmStartup.h"
#include "household/frmGenInfo.h"
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "support/harness.h"

using forms::screen;

namespace {

class Navigation : public ScreenTest {
protected:
    frmMain& menu = screen<frmMain>();
    frmAuto& area = screen<frmAuto>();
};

TEST_F(Navigation, ShowsOneScreenAtATimeWithItsFocusAndItsNumber)
{
    const std::pair<std::function<void()>, QString> steps[] = {
        {[&] { menu.show(); }, "2 frmMain: cmdIn, Title "},
        {[] { press(Qt::Key_Return); }, "13 frmAuto: cmdAdd(0), Indoor Asset Management"},
        {[&] { click(area.cmdBack[0]); }, "2 frmMain: cmdIn, Indoor Asset Management"},
        {[&] { click(menu.cmdOut); }, "13 frmAuto: cmdAdd(0), Outdoor Asset Management"},
        {[] { accessKey('m'); }, "2 frmMain: cmdOut, Outdoor Asset Management"},
        {[] { accessKey('m'); }, "13 frmAuto: cmdAdd(0), Mobile Asset Management"},
        {[&] { click(area.cmdAdd[0]); }, "10 frmAddUpDel: cmbLoc, Mobile Asset Management"},
    };
    for (const auto& [step, leadsTo] : steps) {
        step();
        EXPECT_EQ(scene() + ", " + area.lblHead1[0].caption(), leadsTo);
    }
    screen<frmAddUpDel>().hide();
    menu.show();
    click(menu.cmdPersonal);
    const auto& personal = screen<frmGenInfo>();
    EXPECT_EQ(scene() + ", " + personal.lblHead[1].caption() + ", " + personal.lblHead[2].caption(),
        "1 frmGenInfo: txtInfo(1), First, Select An Item To Change Or Update, Second, Click Save to Update");
}

TEST_F(Navigation, AsksBeforeTheProgramClosesByEveryWayOut)
{
    menu.show();
    expectToStay([this] { closeBox(menu); });
    expectToStay([this] { click(menu.cmdLeave); });
    click(menu.cmdIn);
    expectToStay([this] { closeBox(area); });
    expectToStay([] { accessKey('x'); });
    area.hide();
    screen<frmIntroduction>().show();
    expectToStay([] { closeBox(screen<frmIntroduction>()); });
}

TEST_F(Navigation, HidesTheScreenWhoseNumberIsKeptAndNoOther)
{
    const std::pair<int, forms::Form&> screens[] = {{1, screen<frmGenInfo>()}, {2, menu}, {7, screen<frmBank>()},
        {10, screen<frmAddUpDel>()}, {13, area}, {15, screen<frmEditBankBoxes>()}, {17, screen<frmIntroduction>()},
        {18, screen<frmKeyboard>()}};
    for (const auto& [kept, form] : screens) {
        form.show();
        for (const int number : {0, 19, 20, kept == 1 ? 2 : 1, kept}) {
            frmStartup::CurrentScreen = number;
            menu.Hide_Screens();
            EXPECT_EQ(form.isVisible(), number != kept) << number << " for " << kept;
        }
    }
}

} // namespace
