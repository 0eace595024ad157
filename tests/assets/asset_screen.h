// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "core/frmMain.h"
#include "lists/frmAddField.h"
#include "search/frmSearchResults.h"
#include "support/harness.h"

using forms::Answer;
using forms::screen;

/// A test with the asset screen, reached as a user reaches it.
class AssetScreenTest : public ScreenTest {
protected:
    static constexpr const char* Added = "Asset Has Been Added To Your Inventory!";
    static constexpr const char* BadDate =
        "Invalid Purchase Date...Be Sure The Format Is mm/dd/yyyy (Example: 12/25/2005)";
    static constexpr const char* NoPrice = "The Purchase Price Of The Asset Must Be Entered Before Saving!";
    /// The row of an asset in which only what has to be was filled in, but for its price.
    static constexpr const char* Desk =
        "Indoor|Library|Antiques|Antique Desk|2026|Unknown|Unknown|Unknown|11/24/2026|%1|No|None|None|New|None";
    static constexpr const char* LeaveQuestion = "Any Unsaved Changes Will Be Lost...Continue?";

    static frmAddUpDel& asset() { return screen<frmAddUpDel>(); }

    static void openToAdd(const QString& area = "Indoor")
    {
        auto& menu = screen<frmMain>();
        menu.show();
        click(area == "Indoor" ? menu.cmdIn : area == "Outdoor" ? menu.cmdOut : menu.cmdAuto);
        click(screen<frmAuto>().cmdAdd[0]);
    }

    /// Desks that were saved earlier, with the total of their prices.
    static void addDesks(const QStringList& prices)
    {
        values::Currency total;
        for (const QString& price : prices) {
            addAssetRow(QString(Desk).arg(price).split('|'));
            total += values::Currency::parse(price);
        }
        put(Data1.rsGeneral, {{General::AssetValue, total.toText()}});
    }

    /// What the pager of the search results does with an asset.
    static void openFound(const QString& id)
    {
        screen<frmMain>().hide();
        screen<frmMain>().FromResults = true;
        screen<frmSearchResults>().SelectedAsset = id;
        asset().AssetKey = values::Integer::fromText(id);
        asset().check_Form_Type();
    }

    static void retype(forms::TextEntry& box, const QString& text)
    {
        box.setFocus();
        box.selectAll();
        type(text);
    }

    static void enterPrice(const QString& price)
    {
        asset().cmbLoc.setFocus();
        asset().txtPPrice.setFocus();
        type(price);
    }

    /// Fills in what has to be filled in; the date comes from the calendar, which shows today.
    void fillIn(const QString& location = "Library", const QString& category = "Antiques",
        const QString& item = "Antique Desk", const QString& price = "1234.5")
    {
        pick(asset().cmbLoc, location);
        pick(asset().cmbCat, category);
        retype(asset().cmbType, item);
        whileModal([] { press(Qt::Key_Return); });
        click(asset().picDate);
        enterPrice(price);
    }

    /// And all the rest.
    static void fillInTheRest()
    {
        retype(asset().cmbYear, "1890");
        type(asset().txtMake, "Acme");
        type(asset().txtMod, "M 2");
        type(asset().txtSerial, "S-3");
        click(asset().optPurNewUsed[1]);
        click(asset().optRecOnFile[0]);
        type("Desk drawer");
        asset().txtDescription.setFocus();
        type("Oak\nold");
    }

    void save(const QString& message = Added, int flags = Information) { clickTold(asset().cmdAdd, message, flags); }

    void leaveToMainMenu() { clickTold(asset().cmdMain, LeaveQuestion, YesNoQuestion, Answer::Yes); }

    /// An asset, counted from 1, from its area to its kind of warranty: "Indoor|Library|...|New|None".
    static QString row(int place)
    {
        return rowsOf(Data1.rsInventory, Inventory::Area, Inventory::PartsType).value(place - 1);
    }

    /// A column of the newest asset.
    static QString newest(Inventory::Column column) { return columnOf(Data1.rsInventory, column).last(); }

    /// How many assets there are, and what they are worth.
    static QString inventory()
    {
        const QString worth = Data1.rsGeneral.Fields(General::AssetValue).currency().toText();
        return QStringLiteral("%1: %2").arg(Data1.rsInventory.RecordCount()).arg(worth);
    }
};
