// SPDX-License-Identifier: GPL-3.0-or-later
// positions: tells where the controls of the screens lie, as the program shows them on this display.
// One line each, "screen control x y width height" relative to the screen's window, whose own line has the control ".".
#include "accounts/frmBank.h"
#include "accounts/frmEditBankBoxes.h"
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "assets/frmWar.h"
#include "core/frmCalendar.h"
#include "core/frmMain.h"
#include "household/frmGenInfo.h"
#include "household/frmInsInfo.h"
#include "household/frmTotals.h"
#include "lists/frmAddField.h"
#include "lists/frmDelField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/frmUpdate.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"

#include <QApplication>
#include <QTableView>
#include <QWidget>

#include <cstdio>

namespace {

void print(const QString& screen, const QString& control, const QRect& place)
{
    std::printf("%s %s %d %d %d %d\n", qUtf8Printable(screen), qUtf8Printable(control), place.x(), place.y(),
        place.width(), place.height());
}

QRect placeOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

template <class Screen>
void printScreen()
{
    forms::Form& form = forms::screen<Screen>();
    form.show();
    print(form.name(), ".", form.window()->rect());
    for (const forms::Control* control : form.controls())
        print(form.name(), control->name(), placeOf(*control->widget()));
    for (const auto* days : form.window()->findChildren<QTableView*>("days")) // of a calendar
        print(form.name(), "days", placeOf(*days->viewport()));
    form.hide();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    forms::prepare(application);
    forms::runAsHandler("positions", [] {
        printScreen<frmMain>();
        printScreen<frmGenInfo>();
        printScreen<frmInsInfo>();
        printScreen<frmTotals>();
        printScreen<frmEditBankBoxes>();
        printScreen<frmBank>();
        printScreen<frmAuto>();
        printScreen<frmAddUpDel>();
        printScreen<frmWar>();
        printScreen<frmSearch>();
        printScreen<frmSearchResults>();
        printScreen<frmCalendar>();
        printScreen<frmEditCmbBoxes>();
        printScreen<frmAddField>();
        printScreen<frmUpdate>();
        printScreen<frmDelField>();
        printScreen<frmPrint>();
    });
}
