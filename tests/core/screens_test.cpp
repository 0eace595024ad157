// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "core/frmMain.h"
#include "household/frmGenInfo.h"
#include "household/frmIntroduction.h"
#include "household/frmKeyboard.h"
#include "platform/forms/look.h"
#include "support/screen_test.h"

#include <QAccessible>
#include <QScreen>
#include <QStringList>
#include <QWidget>

namespace {

class AllScreens : public ScreenTest {
protected:
    static std::vector<forms::Form*> screens()
    {
        return {&forms::screen<frmMain>(), &forms::screen<frmAuto>(), &forms::screen<frmAddUpDel>(),
            &forms::screen<frmGenInfo>(), &forms::screen<frmIntroduction>(), &forms::screen<frmKeyboard>(),
            &forms::screen<frmBank>(), &forms::screen<frmEditBankBoxes>()};
    }
};

TEST_F(AllScreens, FitOnASmallDesktopWithoutScrollingSideways)
{
    for (const forms::Form* screen : screens())
        EXPECT_LE(screen->canvas()->sizeHint().width(), 1024) << screen->name().toStdString();
}

TEST_F(AllScreens, HaveOneLeastSizeAndNamesOfTheirOwn)
{
    QStringList names;
    for (forms::Form* screen : screens()) {
        const QAccessibleInterface* window = QAccessible::queryAccessibleInterface(screen->window());
        EXPECT_EQ(window->role(), QAccessible::Window);
        EXPECT_FALSE(names.contains(window->text(QAccessible::Name)));
        names.append(window->text(QAccessible::Name));
        screen->show();
        const QSize room = screen->window()->screen()->availableGeometry().size();
        EXPECT_GE(screen->window()->width(), std::min(forms::look::leastWindow().width(), room.width() - 50));
        screen->hide();
    }
    EXPECT_TRUE(names.contains("Welcome To Kestrill Main Menu"));
    EXPECT_TRUE(names.contains("Personal Information"));
}

} // namespace
