// SPDX-License-Identifier: GPL-3.0-or-later
// What the menu and the editors do at the edges, and what a failure leaves.
#include "lists/list_editors.h"
#include "lists/name_list.h"

using forms::Answer;

namespace {

constexpr const char* LocationChanged = "Your Indoor Location Has Been Changed!";
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
    EXPECT_EQ(line(front(), adding().txtAdd.text(), deleting().cmbCat.listCount()), "12 frmEditCmbBoxes, , 0");
    EXPECT_EQ(deleting().cmbCat.backColour(), forms::look::colours().field);
    accessKey('H');
    EXPECT_TRUE(menu().optEdit[Change].value());
    accessKey('C');
    EXPECT_EQ(forms::activeForm(), &asset());
    pickMarker("Category");
    EXPECT_FALSE(menu().optEdit[Change].value());
}

TEST_F(ListEditors, MenuPutsTheOldSelectionBack)
{
    for (const QString kind : {"Location", "Category"}) {
        openToAdd();
        for (const QString& chosen : {QString(), boxOf(kind).list(2)}) {
            if (!chosen.isEmpty())
                pick(boxOf(kind), chosen);
            pickMarker(kind);
            closeBox(menu());
            EXPECT_EQ(line(front(), boxOf(kind).text()), line("10 frmAddUpDel", chosen));
        }
    }
    pick(asset().cmbLoc, asset().cmbLoc.list(1));
    press(Qt::Key_Up); // onto the marker
    EXPECT_EQ(scene(), "12 frmEditCmbBoxes: cmdUpdate");
}

TEST_F(ListEditors, CancelledMenuListsTheNameOfAnAddOnceMore)
{
    const auto addAndCancelTheMenu = [this](const QString& kind, const QString& name) {
        open(Add, "Indoor", kind);
        type(name);
        add(NameAdded.arg(kind));
        clickTold(adding().cmdCancel, LeaveEditor, YesNoQuestion, Answer::Yes);
        pickMarker(kind);
        click(menu().cmdCancel);
    };
    addAndCancelTheMenu("Location", "Tower");
    EXPECT_EQ(itemsOf(asset().cmbLoc).count("Tower"), 2);
    addAndCancelTheMenu("Category", "007");
    EXPECT_EQ(itemsOf(asset().cmbCat).filter("7"), QStringList({"007", "7"}));
    addAndCancelTheMenu("Category", "Bells"); // reads as no number, which ends the program
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
        adding().txtAdd.setFocus();
        adding().txtAdd.selectAll();
        paste(name);
        add(NameAdded.arg("Location"));
        EXPECT_EQ(adding().txtAdd.backColour(), forms::look::colours().field);
    }
    EXPECT_EQ(usersRows().join('\n'), names.join("|0|0\n") + "|0|0");
    expectBox(LeaveEditor, YesNoQuestion, Answer::Yes);
    closeBox(adding());
    open(Add, "Indoor", "Category");
    for (const char* name : {"0", "< add/edit category >"}) { // a blank cell of the rows above; the marker
        type(adding().txtAdd, name);
        add("This Indoor Category Is Already Available!", Exclamation);
    }
    adding().txtAdd.setFocus();
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
    EXPECT_TRUE(isRefused(changing().txtNew));
    EXPECT_EQ(changing().cmbCat.backColour(), forms::look::colours().field);
    change("LIBRARY", "Study Room", "You Can Only Change Information That You Have Created!", Exclamation);
    EXPECT_EQ(line(scene(), contents(changing()), usersRows().join(' ')),
        "14 frmUpdate: cmbCat, cmbCat=LIBRARY, txtNew=, library|0|0");
    for (const auto& [current, name] : {std::pair("x", ""), std::pair("", "x")}) {
        changing().cmbCat.setText(current);
        changing().txtNew.setText(name);
        expectToStay([] { closeBox(changing()); }, LeaveChange);
    }
    clickTold(changing().cmdCancel, LeaveChange, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(forms::activeForm(), &asset());
}

TEST_F(ListEditors, ChangeRemovesTheUsersRowsWholeAndAddsTheNameUnlessAUsersRowHasIt)
{
    const std::tuple<const char*, const char*, QString> cases[] = {
        {"Tower", "Library", "Spire|0|0 0|Bells|0 Library|0|0"}, // beside a standard row
        {"tower", "sPIRE", "Spire|0|0 0|Bells|0"}, // a user's row has it
        {"Tower", "Tower", "Spire|0|0 0|Bells|0 Tower|0|0"},
        {"0", "Spire", "Tower|Bells|Handbell TOWER|0|0 Spire|0|0 0|Bells|0 tower|0|0"}, // no name at all
    };
    for (const auto& [current, name, left] : cases) {
        for (const char* row : {"Tower|Bells|Handbell", "TOWER|0|0", "Spire|0|0", "0|Bells|0", "tower|0|0"})
            addNames(Data1.rsIndoor, QString(row).split('|'));
        open(Change);
        change(current, name, LocationChanged);
        EXPECT_EQ(usersRows().join(' '), left) << current;
        for (Data1.rsIndoor.MoveFirst(); !Data1.rsIndoor.atEOF(); Data1.rsIndoor.MoveNext())
            if (Data1.rsIndoor.Fields(Names::Standard) == 0)
                Data1.rsIndoor.Delete();
    }
}

TEST_F(ListEditors, ARefusedRowEndsAChangeOrADeletionWithTheRowsBeforeItStored)
{
    for (const char* item : {"Bell", "Clock", "Flag"}) {
        addNames(Data1.rsIndoor, {"Tower", "Sights", item});
        addAsset("Indoor", "Spire", item);
    }
    open(Delete);
    refuseWrites("UPDATE", "Indoor_Items", "old.Type = 'Clock'");
    remove("Indoor Location", "Tower");
    EXPECT_EQ(failedHandler(), "frmDelField.cmdUpdate_Click");
    reopenData();
    EXPECT_EQ(usersRows(), QStringList({"0|Sights|Bell", "Tower|Sights|Clock", "Tower|Sights|Flag"}));

    open(Change);
    refuseWrites("UPDATE", "Inventory", "old.Category = 'Clock'");
    changing().cmbCat.setText("Spire");
    type(changing().txtNew, "Steeple");
    click(changing().cmdUpdate);
    EXPECT_EQ(failedHandler(), "frmUpdate.cmdUpdate_Click");
    reopenData();
    EXPECT_EQ(usersRows().last(), "Steeple|0|0");
    EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::Location).join(' '), "Steeple Spire Spire");
}

// The names differ by case, by accents and by blanks, are no names, or have two letters for one capital.
TEST_F(ListEditors, AListTakesEachNameInTheSpellingThatComesFirst)
{
    auto& table = Data1.rsPrint; // a staging table, quick to write
    for (const QString& name :
        QString("0|||straße|STRASSE|attic|Attic|été|ÉTÉ|Ete|ı|I|i|Attic |Σ|ς|10|00|Ǆ|ǆ|ﬁ|FI|2nd").split(u'|'))
        addRow(table, {{Names::Category, name}});
    forms::Form form("Lists");
    forms::ComboBox list{form, "list", forms::ComboStyle::Editable, forms::ItemOrder::Sorted};
    fill_Name_List(list, table, Names::Category);
    EXPECT_EQ(itemsOf(list).join('|'), "00|10|2nd|attic|Attic |Ete|straße|été|ı|Ǆ|Σ|ﬁ");
    list.clear();
    list.addItems({"ATTIC", "< Add/Edit >", "Cellar"}); // what was left there stays
    fill_Name_List(list, table, Names::Category);
    EXPECT_EQ(itemsOf(list).join('|'), "< Add/Edit >|00|10|2nd|ATTIC|Attic |Cellar|Ete|straße|été|ı|Ǆ|Σ|ﬁ");
}

} // namespace
