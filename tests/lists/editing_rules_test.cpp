// SPDX-License-Identifier: GPL-3.0-or-later
// What the menu and the editors do at the edges, and what a failure leaves.
#include "lists/list_editors.h"
#include "support/files.h"

using forms::Answer;

namespace {

using ListEditors = ListEditorsTest;

constexpr const char* LocationChanged = "Your Indoor Location Has Been Changed!";

TEST_F(ListEditors, MenuWantsAnOptionEachTimeAndHasResetTheEditorsByThen)
{
    open(Delete);
    clickTold(deleting().cmdUpdate, "Please Select An Item Before Continuing!", Exclamation);
    EXPECT_TRUE(isRefused(deleting().cmbCat));
    click(deleting().cmdCancel);
    adding().txtAdd.setText("Left from the last visit");
    pickMarker("Location");
    clickTold(menu().cmdUpdate, "You Must Select An Option Before Continuing!", Exclamation);
    EXPECT_EQ(forms::activeForm(), &menu());
    EXPECT_EQ(adding().txtAdd.text(), "");
    EXPECT_EQ(deleting().cmbCat.listCount(), 0);
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
        pickMarker(kind);
        EXPECT_FALSE(asset().isVisible());
        closeBox(menu());
        EXPECT_EQ(boxOf(kind).text(), "");
        const QString chosen = boxOf(kind).list(2);
        pick(boxOf(kind), chosen);
        pickMarker(kind);
        closeBox(menu());
        EXPECT_EQ(boxOf(kind).text(), chosen);
        EXPECT_EQ(forms::activeForm(), &asset());
    }
    pick(asset().cmbLoc, asset().cmbLoc.list(1));
    press(Qt::Key_Up); // onto the marker
    EXPECT_EQ(forms::activeForm(), &menu());
}

TEST_F(ListEditors, CancelledMenuListsTheNameOfAnAddOnceMore)
{
    const auto addAndCancelTheMenu = [this](const QString& kind, const QString& name) {
        open(Add, "Indoor", kind);
        type(name);
        clickTold(adding().cmdUpdate, " Your Indoor " + kind + " Has Been Added!", Information);
        clickTold(adding().cmdCancel, LeaveEditor, Question, Answer::Yes);
        pickMarker(kind);
        click(menu().cmdCancel);
    };
    addAndCancelTheMenu("Location", "Tower");
    EXPECT_EQ(itemsOf(asset().cmbLoc).count("Tower"), 2);
    addAndCancelTheMenu("Category", "007");
    EXPECT_EQ(itemsOf(asset().cmbCat).filter("7"), QStringList({"007", "7"}));
    addAndCancelTheMenu("Category",
        "Bells"); // reads as no number, which ends the program
    EXPECT_EQ(failedHandler(), "frmEditCmbBoxes.cmdCancel_Click");
    EXPECT_EQ(usersRows(), QStringList({"Tower|0|0", "0|007|0", "0|Bells|0"}));
}

TEST_F(ListEditors, AHeadingOfNoListCountsAsItemsWhichNoEditorTouches)
{
    openToAdd();
    pickMarker("Location");
    menu().lblHead.setCaption("Add/Edit Outdoor Location"); // not of the asset's area
    choose(Add);
    EXPECT_EQ(adding().lblHead.caption(), "Add Indoor Item");
    type("Bell");
    click(adding().cmdUpdate);
    asset().ListInEdit = "Item";
    asset().cmbType.addItem("BELL");
    menu().lblHead.setCaption("Add/Edit Indoor Item");
    menu().show();
    click(menu().cmdCancel);
    EXPECT_EQ(itemsOf(asset().cmbType), QStringList({"BELL", "Bell"}));
    menu().show();
    choose(Delete);
    EXPECT_EQ(deleting().lblChoice.caption(), "Item");
    deleting().cmbCat.setText("Bell");
    click(deleting().cmdUpdate); // doesn't ask
    EXPECT_EQ(deleting().cmbCat.text(), "");
    menu().show();
    choose(Change);
    EXPECT_EQ(itemsOf(changing().cmbCat), QStringList({"BELL", "Bell"}));
    changing().cmbCat.setText("Bells");
    type(changing().txtNew, "Chimes");
    click(changing().cmdUpdate);
    EXPECT_EQ(usersRows(), QStringList());
    addNames(Data1.rsIndoor, {"0", "Bells", "Handbell"});
    addNames(Data1.rsIndoor, {"0", "BELLS", "Doorbell"});
    changing().reload_Combo_Boxes();
    EXPECT_EQ(itemsOf(asset().cmbType), QStringList({"< Add/Edit Item >", "Handbell"}));
}

TEST_F(ListEditors, AddRefusesWhatIsEmptyOrBlankInOtherRows)
{
    open(Add);
    EXPECT_EQ(adding().activeControl(), &adding().txtAdd);
    clickTold(adding().cmdUpdate, "Please Enter Information Before Continuing!", Exclamation);
    EXPECT_TRUE(isRefused(adding().txtAdd));
    const QStringList names = {"  ", "'; -- \"%", QString::fromUtf8("\U0001F514\U0001F3E0"), "12.5", "0"};
    for (const QString& name : names) {
        adding().txtAdd.setFocus();
        adding().txtAdd.selectAll();
        paste(name);
        clickTold(adding().cmdUpdate, " Your Indoor Location Has Been Added!", Information);
        EXPECT_EQ(adding().txtAdd.backColour(), forms::look::colours().field);
        EXPECT_EQ(usersRows().last(), name + "|0|0");
    }
    expectBox(LeaveEditor, Question, Answer::Yes);
    closeBox(adding());
    open(Add, "Indoor", "Category");
    for (const char* name : {"0", "< add/edit category >"}) { // a blank cell of the rows above; the marker
        type(adding().txtAdd, name);
        clickTold(adding().cmdUpdate, "This Indoor Category Is Already Available!", Exclamation);
    }
    adding().txtAdd.setFocus();
    paste(QString(300, 'x'));
    EXPECT_EQ(adding().txtAdd.text().size(), 254);
    removeRows(Data1.rsIndoor);
    clickTold(adding().cmdUpdate, " Your Indoor Category Has Been Added!", Information);
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
    EXPECT_EQ(changing().txtNew.text(), "");
    EXPECT_EQ(changing().activeControl(), &changing().cmbCat);
    EXPECT_EQ(usersRows(), QStringList("library|0|0"));
    paste("a typed name works too");
    expectToStay([] { closeBox(changing()); }, LeaveChange);
    changing().cmbCat.setText("");
    type(changing().txtNew, "x");
    clickTold(changing().cmdCancel, LeaveChange, Question, Answer::Yes);
    EXPECT_EQ(forms::activeForm(), &asset());
}

TEST_F(ListEditors, ChangeRemovesTheUsersRowsWholeAndAddsTheNameUnlessAUsersRowHasIt)
{
    const struct {
        const char* current;
        const char* name;
        QStringList left;
    } cases[] = {
        {"Tower", "Library", {"Spire|0|0", "0|Bells|0", "Library|0|0"}}, // beside a standard row
        {"tower", "sPIRE", {"Spire|0|0", "0|Bells|0"}}, // a user's row has it
        {"Tower", "Tower", {"Spire|0|0", "0|Bells|0", "Tower|0|0"}},
        {"0", "Spire", {"Tower|Bells|Handbell", "TOWER|0|0", "Spire|0|0", "0|Bells|0", "tower|0|0"}}, // no name at all
    };
    for (const auto& [current, name, left] : cases) {
        for (const QStringList& row : {QStringList{"Tower", "Bells", "Handbell"}, {"TOWER", "0", "0"},
                 {"Spire", "0", "0"}, {"0", "Bells", "0"}, {"tower", "0", "0"}})
            addNames(Data1.rsIndoor, row);
        open(Change);
        change(current, name, LocationChanged);
        EXPECT_EQ(usersRows(), left) << current;
        for (Data1.rsIndoor.MoveFirst(); !Data1.rsIndoor.atEOF(); Data1.rsIndoor.MoveNext())
            if (Data1.rsIndoor.Fields(Names::Standard) == 0)
                Data1.rsIndoor.Delete();
    }
}

TEST_F(ListEditors, ChangeLearnsNothingInATableWithoutRowsAndChangesTheAssets)
{
    addAsset("Indoor", "Tower", "Bells");
    open(Change);
    removeRows(Data1.rsIndoor);
    change("Tower", "Spire", LocationChanged);
    EXPECT_EQ(Data1.rsIndoor.RecordCount(), 0);
    EXPECT_EQ(assetsIn(Inventory::Location), QStringList("Spire"));
    EXPECT_EQ(itemsOf(asset().cmbLoc), QStringList("< Add/Edit Location >"));

    addNames(Data1.rsIndoor, {"Spire", "0", "0"}); // the only row goes before the name is looked for
    pickMarker("Location");
    choose(Change);
    change("Spire", "Tower", LocationChanged);
    EXPECT_EQ(usersRows(), QStringList("Tower|0|0"));
}

TEST_F(ListEditors, DeleteRefusesAStandardNameThatAUserAndAnAssetHaveToo)
{
    addNames(Data1.rsIndoor, {"Library", "0", "0"});
    addAsset("Indoor", "Library", "Antiques");
    open(Delete);
    deleting().cmbCat.setFocus();
    paste(QString(300, 'x'));
    EXPECT_EQ(deleting().cmbCat.text().size(), 255);
    remove(
        "Library", {"Location Can Not Be Deleted...You Can Only Delete A Location That You Have Added!", Information});
    expectToStay([] { closeBox(deleting()); }, LeaveEditor);
    removeRows(Data1.rsIndoor);
    removeRows(Data1.rsInventory);
    remove("Library", {"Your Indoor Location Has Been Deleted!", Information});
    EXPECT_EQ(forms::activeForm(), &asset());
}

TEST_F(ListEditors, AFullDiskInTheMidstOfAChangeLeavesWholeRows)
{
    constexpr int count = 300;
    const QString longName(254, 'x');
    addNames(Data1.rsIndoor, {"Tower", "0", "0"});
    for (int i = 0; i < count; ++i)
        addAsset("Indoor", "Tower", "Bells");
    open(Change);
    changing().cmbCat.setText("Tower");
    changing().txtNew.setFocus();
    paste(longName);
    {
        const FullDisk full(QFileInfo(databaseFile()).size() + 8192);
        click(changing().cmdUpdate);
    }
    EXPECT_EQ(failedHandler(), "frmUpdate.cmdUpdate_Click");
    reopenData();
    EXPECT_EQ(usersRows(), QStringList(longName + "|0|0"));
    const QStringList locations = assetsIn(Inventory::Location);
    const auto changed = locations.count(longName);
    EXPECT_GT(changed, 0);
    EXPECT_LT(changed, count);
    EXPECT_EQ(locations.count("Tower"), count - changed);
    EXPECT_EQ(assetsIn(Inventory::Category).count("Bells"), count);
}

TEST_F(ListEditors, ARefusedRowEndsADeletionWithTheRowsBeforeItBlank)
{
    for (const char* item : {"Bell", "Clock", "Flag"})
        addNames(Data1.rsIndoor, {"Tower", "Sights", item});
    open(Delete);
    storage::execute(Data1.Home.handle(),
        "CREATE TEMP TRIGGER NoRoom AFTER UPDATE ON Indoor_Items WHEN old.Type = 'Clock' BEGIN SELECT RAISE(ABORT, 'no "
        "room'); END");
    remove("Tower");
    EXPECT_TRUE(reportedFailure());
    reopenData();
    EXPECT_EQ(usersRows(), QStringList({"0|Sights|Bell", "Tower|Sights|Clock", "Tower|Sights|Flag"}));
}

} // namespace
