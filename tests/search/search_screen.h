// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "frame/frmMain.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"
#include "support/harness.h"

using forms::Answer;
using forms::screen;

/// A test with the search screen and the pager, reached as a user reaches them.
class SearchScreenTest : public ScreenTest {
protected:
    static frmMain& menu() { return screen<frmMain>(); }
    static frmSearch& search() { return screen<frmSearch>(); }
    static frmSearchResults& results() { return screen<frmSearchResults>(); }

    static void addAssets(int count, const QString& make = "Acme")
    {
        for (int number = 1; number <= count; ++number)
            addAssetRow({"Indoor", "Attic", "Art", QStringLiteral("Item %1").arg(number), "2020", make});
    }

    static void openFromMenu()
    {
        menu().show();
        click(menu().cmdSearch);
    }

    static void openFromArea(forms::CommandButton frmMain::*area, bool toDelete = false)
    {
        menu().show();
        click(menu().*area);
        auto& areaMenu = screen<frmAuto>();
        click(toDelete ? areaMenu.cmdDelete[0] : areaMenu.cmdUpdate[1]);
    }

    /// From the main menu, by a word and the Enter key.
    static void find(const QString& word)
    {
        openFromMenu();
        type(word + "\n");
    }

    void findAll()
    {
        openFromMenu();
        clickTold(search().cmdContinue, "This Search Will Display All Assets...Continue?",
            forms::box::Information + forms::box::YesNo, Answer::Yes);
    }

    static QStringList staged(Print::Column column) { return columnOf(Data1.rsPrint, column); }

    /// What the rows of the page show in a column, as far as they can be opened.
    static QStringList shown(const frmSearchResults::ResultColumn& boxes)
    {
        QStringList texts;
        for (int row = 0; row < frmSearchResults::Rows && results().txtMore[row].isVisible(); ++row)
            texts.append(boxes[row].text());
        return texts;
    }

    static QString hiddenOfSearch()
    {
        QStringList hidden;
        for (const forms::Control* control : search().controls())
            hidden += control->isVisible() ? QString() : control->name() + " hidden";
        hidden.removeAll(QString());
        return hidden.join(", ");
    }
};
