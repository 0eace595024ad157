// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmBW_Splash.h"

#include "platform/forms/look.h"

#include <QVBoxLayout>

void frmBW_Splash::look()
{
    setTitle(" Kestrill By Brindlewick Software"); // the capital B is this screen's alone
    Picture1.setPicture(":/pictures/splash.png", "Kestrill");
    tmrLoad.Timer = [this] { tmrLoad_Timer(); };

    auto* column = new QVBoxLayout(canvas());
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(Picture1.widget());
}
