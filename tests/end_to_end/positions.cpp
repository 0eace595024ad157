// SPDX-License-Identifier: GPL-3.0-or-later
// positions: tells where the controls of the screens lie, as the program shows them on this display.
// One line each, "screen control x y width height" relative to the screen's window.
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "assets/frmWar.h"
#include "core/frmMain.h"
#include "household/frmGenInfo.h"
#include "household/frmInsInfo.h"
#include "lists/frmAddField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/frmUpdate.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"

#include <QApplication>
#include <QWidget>

#include <cstdio>

namespace {

template <class Screen>
void printScreen()
{
    forms::Form& form = forms::screen<Screen>();
    form.show();
    for (const forms::Control* control : form.controls()) {
        const QWidget& widget = *control->widget();
        const QPoint place = widget.mapTo(widget.window(), QPoint(0, 0));
        std::printf("%s %s %d %d %d %d\n", qUtf8Printable(form.name()), qUtf8Printable(control->name()), place.x(),
            place.y(), widget.width(), widget.height());
    }
    form.hide();
}

template <class... Screens>
void printScreens()
{
    (printScreen<Screens>(), ...);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    forms::prepare(application);
    forms::runAsHandler("positions",
        printScreens<frmMain, frmGenInfo, frmInsInfo, frmEditBankBoxes, frmBank, frmAuto, frmAddUpDel, frmWar,
            frmSearch, frmSearchResults, frmEditCmbBoxes, frmAddField, frmUpdate>);
    forms::destroyScreens(); // while there is an application
}
