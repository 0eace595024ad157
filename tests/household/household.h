// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/frmMain.h"
#include "household/frmGenInfo.h"
#include "support/harness.h"

using forms::Answer;
using forms::screen;

/// The personal information as the main menu opens it.
inline frmGenInfo& openFromMenu()
{
    screen<frmMain>().show();
    click(screen<frmMain>().cmdPersonal);
    return screen<frmGenInfo>();
}

/// A test with the personal information, reached as a user reaches it.
class HouseholdTest : public ScreenTest {
protected:
    static frmGenInfo& personal() { return screen<frmGenInfo>(); }

    /// What the file holds of the household's row, Last to EMail, and what the screen shows of it.
    static QStringList stored()
    {
        inFile(Data1.rsGeneral, {});
        return cellsOf(Data1.rsGeneral, General::Last, General::EMail);
    }
    static QStringList shown()
    {
        QStringList texts;
        for (int i = General::Last; i <= General::EMail; ++i)
            texts += i == General::State ? personal().cmbState.text() : personal().txtInfo[i].text();
        return texts;
    }
};
