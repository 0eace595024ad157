// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/look.h"
#include "shared/conventions.h"
#include "shared/frmCalendar.h"

#include <QWidget>

void frmCalendar::look()
{
    setTitle(conventions::Title);
    lblHead2.setCaption("Click A Date Or Press Space Bar To Close");
    lblHead2.setToolTip(" Press The Space Bar To Close The Calendar Without Selecting A  Date ");
    lblHead.setCaption(conventions::Footer);
    calDate.setToolTip(" Click On A Calendar Date To Select ");
    conventions::setTabOrder({&calDate});
    calDate.Click = [this] { copy_Date_Out(); };
    calDate.KeyPress = [this](int& keyAscii) { close_Calendar(keyAscii); };

    calDate.widget()->setMinimumSize(forms::look::grid(44), forms::look::grid(32));

    forms::look::Page page(*this, forms::look::PageSize::Own);
    lblHead2.setRole(forms::TextRole::Instruction);
    page.add(lblHead2);
    page.add(calDate);
    page.foot(nullptr, &lblHead);
}
