// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "core/frmMain.h"
#include "reports/frmPrint.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"
#include "support/harness.h"

/// A test with the search screen and the pager, reached as a user reaches them.
class SearchScreenTest : public ScreenTest {
protected:
    static constexpr int Exclamation = 48;
    static constexpr int Information = 64;
    static constexpr int AllQuestion = 68;

    static frmMain& menu() { return forms::screen<frmMain>(); }
    static frmSearch& search() { return forms::screen<frmSearch>(); }
    static frmSearchResults& results() { return forms::screen<frmSearchResults>(); }

    /// An asset by its columns from Area on; the rest says "None".
    static void addAsset(const QStringList& first)
    {
        storage::TableView& assets = Data1.rsInventory;
        assets.AddNew();
        for (int column = Inventory::Area; column <= Inventory::WarrantyDescription; ++column)
            assets.Fields(column) = column == Inventory::Amount ? "$12.50" : "None";
        for (int column = 0; column < first.size(); ++column)
            assets.Fields(Inventory::Area + column) = first[column];
        assets.Update();
    }

    static void addAssets(int count, const QString& make = "Acme")
    {
        for (int number = 1; number <= count; ++number)
            addAsset({"Indoor", "Attic", "Art", QStringLiteral("Item %1").arg(number), "2020", make});
    }

    static void addName(storage::TableView& table, const QStringList& names)
    {
        table.AddNew();
        for (int column = Names::Location; column <= Names::Type; ++column)
            table.Fields(column) = names[column];
        table.Update();
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
        auto& areaMenu = forms::screen<frmAuto>();
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
        expectBox("This Search Will Display All Assets...Continue?", AllQuestion, forms::Answer::Yes);
        press(Qt::Key_Return);
    }

    void findNothing(const QString& word)
    {
        setBoxTitle(" Inventory Search Results");
        expectBox("No Assets Were Found Based On The Information You Entered!", Exclamation);
        setBoxTitle(" Kestrill by Brindlewick Software");
        find(word);
        EXPECT_EQ(Data1.rsPrint.RecordCount(), 0) << qPrintable(word);
        EXPECT_EQ(forms::activeForm(), &search());
        EXPECT_EQ(search().activeControl(), &search().txtKey);
    }

    static QStringList columnOf(storage::TableView& table, int column)
    {
        QStringList texts;
        if (table.RecordCount() == 0)
            return texts;
        for (table.MoveFirst(); !table.atEOF(); table.MoveNext())
            texts.append(table.Fields(column).text());
        return texts;
    }

    static QStringList staged(Print::Column column) { return columnOf(Data1.rsPrint, column); }

    static QStringList items(const forms::ComboBox& box)
    {
        QStringList items;
        for (int index = 0; index < box.listCount(); ++index)
            items.append(box.list(index));
        return items;
    }

    /// What the rows of the page show in a column, as far as they can be opened.
    static QStringList shown(const frmSearchResults::ResultColumn& boxes)
    {
        QStringList texts;
        for (int row = 0; row < frmSearchResults::Rows && results().txtMore[row].isVisible(); ++row)
            texts.append(boxes[row].text());
        return texts;
    }
};
