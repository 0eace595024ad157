// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/frmAuto.h"
#include "search/frmSearch.h"
#include "support/harness.h"

using forms::screen;

namespace {

class AreaMenu : public ScreenTest {
protected:
    static frmAuto& menu() { return screen<frmAuto>(); }

    static void open(const QString& title)
    {
        menu().lblHead1[0].setCaption(title);
        menu().load_It();
    }

    static void addAsset()
    {
        Data1.rsInventory.AddNew();
        Data1.rsInventory.Fields(Inventory::Area) = "Outdoor";
        Data1.rsInventory.Fields(Inventory::Amount) = "$1.00";
        Data1.rsInventory.Update();
    }
};

TEST_F(AreaMenu, HasTheHelpOfItsAreaWhereAnyOtherTitleIsMobile)
{
    const std::pair<const char*, int> areas[] = {{"Indoor Asset Management", 9001}, {"Outdoor Asset Management", 10001},
        {"Mobile Asset Management", 11001}, {"indoor asset management", 11001}};
    for (const auto& [title, help] : areas) {
        open(title);
        EXPECT_EQ(scene(), "13 frmAuto: cmdAdd(0)");
        press(Qt::Key_F1);
        EXPECT_EQ(openedHelp(), help);
        tab(); // the next opening is on Add again
    }
}

TEST_F(AreaMenu, TellsThatThereIsNothingToUpdateOrDelete)
{
    open("Indoor Asset Management");
    expectBox("There Are No Available Assets To Update...Please Add An Asset Before Continuing!!", 64);
    click(menu().cmdUpdate[1]);
    expectBox("There Are No Available Assets To Delete...Please Add An Asset Before Continuing!!", 64);
    accessKey('d');
    EXPECT_TRUE(menu().isVisible());

    addAsset(); // of another area
    click(menu().cmdUpdate[1]);
    EXPECT_EQ(forms::activeForm(), &screen<frmSearch>());
}

} // namespace
