// SPDX-License-Identifier: GPL-3.0-or-later
// What the menu and the editors do at the edges, and what a failure leaves.
#include "lists/list_editors.h"
#include "lists/name_list.h"
#include "platform/storage/sqlcipher.h"

#include <QApplication>

namespace {

const QString NameAdded = " Your Indoor %1 Has Been Added!";

TEST_F(ListEditors, MenuWantsAnOptionEachTimeAndHasResetTheEditorsByThen)
{
    open(Delete);
    clickTold(deleting().cmdUpdate, "Please Select An Item Before Continuing!", Exclamation);
    EXPECT_TRUE(isRefused(deleting().cmbCat));
    click(deleting().cmdCancel);
    adding().txtAdd.setText("Left from the last visit");
    pickMarker("Location");
    clickTold(menu().cmdUpdate, "You Must Select An Option Before Continuing!", Exclamation);
    EXPECT_EQ(
        line(front(), adding().txtAdd.text(), deleting().cmbCat.listCount(), deleting().cmbCat.backColour().name()),
        "12 frmEditCmbBoxes, , 0, #ffffff");
    accessKey('H');
    EXPECT_TRUE(menu().optEdit[Change].value());
    accessKey('C');
    pickMarker("Category");
    EXPECT_FALSE(menu().optEdit[Change].value());
}

TEST_F(ListEditors, MenuPutsTheOldSelectionBack)
{
    openToAdd();
    for (const QString kind : {"Location", "Category"})
        for (const QString& chosen : {QString(), boxOf(kind).list(2)}) {
            if (!chosen.isEmpty())
                pick(boxOf(kind), chosen);
            pickMarker(kind);
            closeBox(menu());
            EXPECT_EQ(line(scene(), boxOf(kind).text(), boxOf(kind).list(0)),
                line("10 frmAddUpDel: cmb" + kind.left(3), chosen, "< Add/Edit " + kind + " >"));
        }
}

TEST_F(ListEditors, CancelledMenuListsTheNameOfAnAddOnceMore)
{
    const auto cancelTheMenuAfter = [this](bool isAdded, const QString& kind, const QString& name) {
        open(Add, "Indoor", kind);
        type(name);
        if (isAdded)
            add(NameAdded.arg(kind));
        clickTold(adding().cmdCancel, LeaveEditor, YesNoQuestion, Answer::Yes);
        pickMarker(kind);
        click(menu().cmdCancel);
    };
    cancelTheMenuAfter(false, "Category", "Bells");
    cancelTheMenuAfter(false, "Location", "Spire");
    cancelTheMenuAfter(true, "Location", "Tower");
    EXPECT_EQ(itemsOf(asset().cmbLoc).filter(QRegularExpression("Spire|Tower")), QStringList({"Tower", "Tower"}));
    cancelTheMenuAfter(true, "Category", "007");
    EXPECT_EQ(itemsOf(asset().cmbCat).filter("7"), QStringList({"007", "7"}));
    cancelTheMenuAfter(true, "Category", "Bells"); // reads as no number, which ends the program
    EXPECT_EQ(
        line(failedHandler(), usersRows().join(' ')), "frmEditCmbBoxes.cmdCancel_Click, Tower|0|0 0|007|0 0|Bells|0");
}

TEST_F(ListEditors, AddRefusesWhatIsEmptyOrBlankInOtherRows)
{
    open(Add);
    add("Please Enter Information Before Continuing!", Exclamation);
    EXPECT_TRUE(isRefused(adding().txtAdd));
    const QStringList names = {"  ", "'; -- \"%", QString::fromUtf8("\U0001F514\U0001F3E0"), "12.5", "0"};
    for (const QString& name : names) {
        click(adding().txtAdd);
        paste(name);
        add(NameAdded.arg("Location"));
        EXPECT_EQ(adding().txtAdd.backColour().name(), "#ffffff");
    }
    EXPECT_EQ(usersRows().join('\n'), names.join("|0|0\n") + "|0|0");
    clickTold(adding().cmdCancel, LeaveEditor, YesNoQuestion, Answer::Yes);
    open(Add, "Indoor", "Category");
    for (const char* name : {"0", "< add/edit category >"}) { // a blank cell of the rows above; the marker
        type(adding().txtAdd, name);
        add("This Indoor Category Is Already Available!", Exclamation);
    }
    paste(QString(300, 'x'));
    removeRows(Data1.rsIndoor);
    add(NameAdded.arg("Category"));
    EXPECT_EQ(usersRows(), QStringList("0|" + QString(254, 'x') + "|0"));
}

TEST_F(ListEditors, ChangeRefusesInItsOrder)
{
    addNames(Data1.rsIndoor, {"library", "0", "0"}); // a standard name too
    open(Change);
    clickTold(changing().cmdUpdate, "The Current Information Must Be Selected Before Updating!", Exclamation);
    EXPECT_TRUE(isRefused(changing().cmbCat));
    pick(changing().cmbCat, "Library");
    clickTold(changing().cmdUpdate, "The New Information Must Be Entered Before Updating!", Exclamation);
    EXPECT_EQ(line(isRefused(changing().txtNew), changing().cmbCat.backColour().name()), "true, #ffffff");
    expectToStay([] { closeBox(changing()); }, LeaveChange);
    type(changing().txtNew, "Den");
    clickTold(changing().cmdCancel, LeaveChange, YesNoQuestion, Answer::Yes);

    open(Change);
    EXPECT_EQ(line(contents(changing()), changing().txtNew.backColour().name()), "cmbCat=, txtNew=, #ffffff");
    EXPECT_EQ(itemsOf(changing().cmbCat), itemsOf(asset().cmbLoc).mid(1));
    change("LIBRARY", "Study Room", "You Can Only Change Information That You Have Created!", Exclamation);
    EXPECT_EQ(line(scene(), contents(changing()), usersRows().join(' ')),
        "14 frmUpdate: cmbCat, cmbCat=LIBRARY, txtNew=, library|0|0");
    changing().cmbCat.setText("");
    click(changing().txtNew);
    paste(QString(300, 'x'));
    EXPECT_EQ(changing().txtNew.text().size(), 254);
    expectToStay([] { closeBox(changing()); }, LeaveChange);
}

TEST_F(ListEditors, ChangeRemovesTheUsersRowsWholeAndAddsTheNameUnlessAUsersRowHasIt)
{
    for (const char* row : {"Tower|Bells|Handbell", "TOWER|0|0", "Spire|0|0", "0|Bells|0", "tower|0|0", "Barn|0|0"})
        addNames(Data1.rsIndoor, QString(row).split('|'));
    const std::tuple<const char*, const char*, QString> changes[] = {
        {"tower", "sPIRE", "Spire|0|0 0|Bells|0 Barn|0|0"}, // a user's row has it
        {"Barn", "Library", "Spire|0|0 0|Bells|0 Library|0|0"}, // beside a standard row
        {"Spire", "SPIRE", "0|Bells|0 Library|0|0 SPIRE|0|0"},
        {"0", "Den", "Library|0|0 SPIRE|0|0 Den|0|0"}, // a row without a location
    };
    const auto refuseUnlessWaiting = [](void*) { return QApplication::overrideCursor() ? 0 : 1; };
    for (const auto& [current, name, left] : changes) {
        open(Change);
        sqlite3_commit_hook(Data1.Home.handle(), refuseUnlessWaiting, nullptr);
        change(current, name, "Your Indoor Location Has Been Changed!");
        EXPECT_EQ(usersRows().join(' '), left) << current;
    }
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(ListEditors, ARefusedRowEndsAChangeOrADeletionWithTheRowsBeforeItStored)
{
    for (const char* item : {"Bell", "Clock", "Flag"}) {
        addNames(Data1.rsIndoor, {"Tower", "Sights", item});
        addAssetRow({"Indoor", "Spire", item});
    }
    open(Delete);
    refuseWrites("UPDATE", "Indoor_Items", "old.Type = 'Clock'");
    remove("Indoor Location", "Tower");
    reopenData();
    EXPECT_EQ(line(failedHandler(), usersRows().join(' ')),
        "frmDelField.cmdUpdate_Click, 0|Sights|Bell Tower|Sights|Clock Tower|Sights|Flag");

    open(Change);
    refuseWrites("UPDATE", "Inventory", "old.Category = 'Clock'");
    changing().cmbCat.setText("Spire");
    type(changing().txtNew, "Steeple");
    click(changing().cmdUpdate);
    reopenData();
    EXPECT_EQ(line(failedHandler(), usersRows().last(), columnOf(Data1.rsInventory, Inventory::Location).join(' ')),
        "frmUpdate.cmdUpdate_Click, Steeple|0|0, Steeple Spire Spire");
}

// The names differ by case, by accents and by blanks, are no names, or have two letters for one capital.
TEST_F(ListEditors, AListTakesEachNameInTheSpellingThatComesFirst)
{
    for (const QString& name :
        QString("0|||straße|STRASSE|attic|Attic|été|ÉTÉ|Ete|ı|I|i|Attic |Σ|ς|10|00|Ǆ|ǆ|ﬁ|FI|2nd").split(u'|'))
        addRow(Data1.rsPrint, {{Names::Category, name}}); // a staging table, quick to write
    forms::ComboBox& list = asset().cmbType;
    list.addItems({"ATTIC", "< Add/Edit >", "Cellar"}); // what was left there stays
    fill_Name_List(list, Data1.rsPrint, Names::Category);
    EXPECT_EQ(itemsOf(list).join('|'), "< Add/Edit >|00|10|2nd|ATTIC|Attic |Cellar|Ete|straße|été|ı|Ǆ|Σ|ﬁ");
}

} // namespace
