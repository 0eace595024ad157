// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "core/frmMain.h"
#include "lists/frmAddField.h"
#include "platform/storage/connection.h"
#include "platform/storage/statement.h"
#include "search/frmSearchResults.h"
#include "support/harness.h"

/// A test with the asset screen, reached as a user reaches it.
class AssetScreenTest : public ScreenTest {
protected:
    static constexpr int Exclamation = 48;
    static constexpr int Information = 64;
    static constexpr int Question = 36;

    static constexpr const char* Added = "Asset Has Been Added To Your Inventory!";
    static constexpr const char* BadDate =
        "Invalid Purchase Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)";
    static constexpr const char* LeaveQuestion = "Any Unsaved Changes Will Be Lost...Continue?";

    static frmAddUpDel& asset() { return forms::screen<frmAddUpDel>(); }
    static frmAddField& editor() { return forms::screen<frmAddField>(); }

    static void openToAdd(const QString& area = "Indoor")
    {
        auto& menu = forms::screen<frmMain>();
        menu.show();
        click(area == "Indoor" ? menu.cmdIn : area == "Outdoor" ? menu.cmdOut : menu.cmdAuto);
        click(forms::screen<frmAuto>().cmdAdd[0]);
    }

    /// What the pager of the search results does with an asset.
    static void openFound(const QString& id)
    {
        forms::screen<frmMain>().hide();
        forms::screen<frmMain>().FromResults = true;
        forms::screen<frmSearchResults>().SelectedAsset = id;
        asset().AssetKey = values::Integer::fromText(id);
        asset().check_Form_Type();
    }

    /// Fills in what has to be filled in; the date comes from the calendar, which shows today.
    void fillIn(const QString& location = "Library", const QString& category = "Antiques",
        const QString& item = "Antique Desk", const QString& price = "1234.5")
    {
        pick(asset().cmbLoc, location);
        pick(asset().cmbCat, category);
        asset().cmbType.setFocus();
        asset().cmbType.selectAll();
        type(item);
        pickToday();
        asset().txtPPrice.setFocus();
        type(price);
    }

    void pickToday()
    {
        whileModal([] { press(Qt::Key_Return); });
        click(asset().picDate);
    }

    void save(const QString& message = Added, int flags = Information)
    {
        expectBox(message, flags);
        click(asset().cmdAdd);
    }

    void leaveToMainMenu()
    {
        expectBox(LeaveQuestion, Question, forms::Answer::Yes);
        click(asset().cmdMain);
    }

    /// The newest asset.
    static QString stored(Inventory::Column column) { return lastRow(Data1.rsInventory).Fields(column).text(); }

    static QStringList lastNames(storage::TableView& table)
    {
        lastRow(table);
        return {table.Fields(Names::Location).text(), table.Fields(Names::Category).text(),
            table.Fields(Names::Type).text(), table.Fields(Names::Standard).text()};
    }

    /// A column of the asset of an ID, as it would be read when it is opened again.
    static QString stored(int id, Inventory::Column column)
    {
        auto& assets = Data1.rsInventory;
        for (assets.MoveFirst(); !(assets.Fields(Inventory::ID) == id);)
            assets.MoveNext();
        return assets.Fields(column).text();
    }

    static values::Currency assetValue() { return Data1.rsGeneral.Fields(General::AssetValue).currency(); }

    static QStringList items(const forms::ComboBox& box)
    {
        QStringList items;
        for (int index = 0; index < box.listCount(); ++index)
            items.append(box.list(index));
        return items;
    }

    static storage::TableView& lastRow(storage::TableView& table)
    {
        table.MoveFirst();
        for (int rows = table.RecordCount(); rows > 1; --rows)
            table.MoveNext();
        return table;
    }
};
