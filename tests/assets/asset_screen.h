// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "frame/frmMain.h"
#include "lists/frmAddField.h"
#include "search/frmSearchResults.h"
#include "support/harness.h"

using forms::Answer;
using forms::screen;

/// A test with the asset screen, reached as a user reaches it.
class AssetScreenTest : public ScreenTest {
protected:
    static frmAddUpDel& asset() { return screen<frmAddUpDel>(); }

    static void openToAdd(const QString& area = "Indoor")
    {
        auto& menu = screen<frmMain>();
        menu.show();
        click(area == "Indoor" ? menu.cmdIn : area == "Outdoor" ? menu.cmdOut : menu.cmdAuto);
        click(screen<frmAuto>().cmdAdd[0]);
    }
};
