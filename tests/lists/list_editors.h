// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assets/areas.h"
#include "assets/asset_screen.h"
#include "lists/frmDelField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/frmUpdate.h"

#include <QRegularExpression>

/// A test with the list editors, reached through the markers of the asset screen.
class ListEditors : public AssetScreenTest {
protected:
    static constexpr const char* LeaveEditor = "   All Changes Will Be Lost...Continue?";
    static constexpr const char* LeaveChange = "    All Changes Will Be Lost...Continue?"; // one blank more

    enum Option { Add, Change, Delete };

    static frmEditCmbBoxes& menu() { return forms::screen<frmEditCmbBoxes>(); }
    static frmAddField& adding() { return forms::screen<frmAddField>(); }
    static frmUpdate& changing() { return forms::screen<frmUpdate>(); }
    static frmDelField& deleting() { return forms::screen<frmDelField>(); }

    static forms::ComboBox& boxOf(const QString& kind) { return kind == "Location" ? asset().cmbLoc : asset().cmbCat; }
    static void pickMarker(const QString& kind) { pick(boxOf(kind), "< Add/Edit " + kind + " >"); }

    static void choose(Option option)
    {
        click(menu().optEdit[option]);
        click(menu().cmdUpdate);
    }

    static void open(Option option, const QString& area = "Indoor", const QString& kind = "Location")
    {
        openToAdd(area);
        pickMarker(kind);
        choose(option);
    }

    /// Adds what stands in the box.
    void add(const QString& message, int flags = Information) { clickTold(adding().cmdUpdate, message, flags); }

    void change(const QString& current, const QString& name, const QString& message, int flags = Information)
    {
        changing().cmbCat.setText(current);
        type(changing().txtNew, name);
        clickTold(changing().cmdUpdate, message, flags);
    }

    /// Deletes a name of a list, with Yes to the question; the other box comes where there is one.
    void remove(const QString& list, const QString& name, const QString& message = {}, int flags = Information)
    {
        deleting().cmbCat.setText(name);
        expectBox("Are You Sure You Want To Delete This " + list + "?", YesNoQuestion, forms::Answer::Yes);
        if (!message.isEmpty())
            expectBox(message, flags);
        click(deleting().cmdUpdate);
    }

    /// The rows that didn't come with the program, as "location|category|item".
    static QStringList usersRows(const storage::TableView& table = Data1.rsIndoor)
    {
        const QRegularExpression flag("\\|0$");
        return rowsOf(table, Names::Location, Names::Standard).filter(flag).replaceInStrings(flag, {});
    }

    static bool isRefused(const forms::Control& box) { return box.hasFocus() && box.backColour().name() == "#ffc0c0"; }
};
