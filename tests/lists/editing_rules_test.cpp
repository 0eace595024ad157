// SPDX-License-Identifier: GPL-3.0-or-later
// What the menu and the editors do at the edges, and what a failure leaves.
#include "lists/list_editors.h"

#include <QFileInfo>

#include <csignal>
#include <sys/resource.h>

using forms::Answer;

namespace {

using ListEditors = ListEditorsTest;

constexpr const char* LocationChanged = "Your Indoor Location Has Been Changed!";

TEST_F(ListEditors, MenuWantsAnOptionEachTimeAndHasResetTheEditorsByThen)
{
    open(Delete);
    expectBox("Please Select An Item Before Continuing!", Exclamation);
    click(deleting().cmdUpdate);
    EXPECT_TRUE(isRefused(deleting().cmbCat));
    click(deleting().cmdCancel);
    adding().txtAdd.setText("Left from the last visit");
    pickMarker("Location");
    expectBox("You Must Select An Option Before Continuing!", Exclamation);
    click(menu().cmdUpdate);
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
        expectBox(" Your Indoor " + kind + " Has Been Added!", Information);
        click(adding().cmdUpdate);
        expectBox(LeaveEditor, Question, Answer::Yes);
        click(adding().cmdCancel);
        pickMarker(kind);
        click(menu().cmdCancel);
    };
    addAndCancelTheMenu("Location", "Tower");
    EXPECT_EQ(items(asset().cmbLoc).count("Tower"), 2);
    addAndCancelTheMenu("Category", "007");
    EXPECT_EQ(items(asset().cmbCat).filter("7"), QStringList({"007", "7"}));
    addAndCancelTheMenu("Category", "Bells"); // reads as no number, which ends the program
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->handler, "frmEditCmbBoxes.cmdCancel_Click");
    EXPECT_TRUE(failure->failure.startsWith("Type mismatch")) << failure->failure.toStdString();
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
    EXPECT_EQ(items(asset().cmbType), QStringList({"BELL", "Bell"}));
    menu().show();
    choose(Delete);
    EXPECT_EQ(deleting().lblChoice.caption(), "Item");
    deleting().cmbCat.setText("Bell");
    click(deleting().cmdUpdate); // doesn't ask
    EXPECT_EQ(deleting().cmbCat.text(), "");
    menu().show();
    choose(Change);
    EXPECT_EQ(items(changing().cmbCat), QStringList({"BELL", "Bell"}));
    changing().cmbCat.setText("Bells");
    type(changing().txtNew, "Chimes");
    click(changing().cmdUpdate);
    EXPECT_EQ(usersRows(), QStringList());
    addName(Data1.rsIndoor, {"0", "Bells", "Handbell"});
    addName(Data1.rsIndoor, {"0", "BELLS", "Doorbell"});
    changing().reload_Combo_Boxes();
    EXPECT_EQ(items(asset().cmbType), QStringList({"< Add/Edit Item >", "Handbell"}));
}

TEST_F(ListEditors, AddRefusesWhatIsEmptyOrBlankInOtherRows)
{
    open(Add);
    EXPECT_EQ(adding().activeControl(), &adding().txtAdd);
    expectBox("Please Enter Information Before Continuing!", Exclamation);
    click(adding().cmdUpdate);
    EXPECT_TRUE(isRefused(adding().txtAdd));
    const QStringList names = {"  ", "'; -- \"%", QString::fromUtf8("\U0001F514\U0001F3E0"), "12.5", "0"};
    for (const QString& name : names) {
        adding().txtAdd.setFocus();
        adding().txtAdd.selectAll();
        paste(name);
        expectBox(" Your Indoor Location Has Been Added!", Information);
        click(adding().cmdUpdate);
        EXPECT_EQ(adding().txtAdd.backColour(), forms::look::colours().field);
        EXPECT_EQ(usersRows().last(), name + "|0|0");
    }
    expectBox(LeaveEditor, Question, Answer::Yes);
    closeBox(adding());
    open(Add, "Indoor", "Category");
    for (const char* name : {"0", "< add/edit category >"}) { // a blank cell of the rows above; the marker
        type(adding().txtAdd, name);
        expectBox("This Indoor Category Is Already Available!", Exclamation);
        click(adding().cmdUpdate);
    }
    adding().txtAdd.setFocus();
    paste(QString(300, 'x'));
    EXPECT_EQ(adding().txtAdd.text().size(), 254);
    removeRows(Data1.rsIndoor);
    expectBox(" Your Indoor Category Has Been Added!", Information);
    click(adding().cmdUpdate);
    EXPECT_EQ(usersRows(), QStringList("0|" + QString(254, 'x') + "|0"));
}

TEST_F(ListEditors, ChangeRefusesInItsOrder)
{
    addName(Data1.rsIndoor, {"library", "0", "0"}); // a standard name too
    open(Change);
    expectBox("The Current Information Must Be Selected Before Updating!", Exclamation);
    click(changing().cmdUpdate);
    EXPECT_TRUE(isRefused(changing().cmbCat));
    pick(changing().cmbCat, "Library");
    expectBox("The New Information Must Be Entered Before Updating!", Exclamation);
    click(changing().cmdUpdate);
    EXPECT_TRUE(isRefused(changing().txtNew));
    EXPECT_EQ(changing().cmbCat.backColour(), forms::look::colours().field);
    change("LIBRARY", "Study Room", "You Can Only Change Information That You Have Created!", Exclamation);
    EXPECT_EQ(changing().txtNew.text(), "");
    EXPECT_EQ(changing().activeControl(), &changing().cmbCat);
    EXPECT_EQ(usersRows(), QStringList("library|0|0"));
    paste("a typed name works too");
    expectBox(LeaveChange, Question, Answer::No);
    closeBox(changing());
    changing().cmbCat.setText("");
    type(changing().txtNew, "x");
    expectBox(LeaveChange, Question, Answer::Yes);
    click(changing().cmdCancel);
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
            addName(Data1.rsIndoor, row);
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
    EXPECT_EQ(items(asset().cmbLoc), QStringList("< Add/Edit Location >"));

    addName(Data1.rsIndoor, {"Spire", "0", "0"}); // the only row goes before the name is looked for
    pickMarker("Location");
    choose(Change);
    change("Spire", "Tower", LocationChanged);
    EXPECT_EQ(usersRows(), QStringList("Tower|0|0"));
}

TEST_F(ListEditors, DeleteRefusesAStandardNameThatAUserAndAnAssetHaveToo)
{
    addName(Data1.rsIndoor, {"Library", "0", "0"});
    addAsset("Indoor", "Library", "Antiques");
    open(Delete);
    deleting().cmbCat.setFocus();
    paste(QString(300, 'x'));
    EXPECT_EQ(deleting().cmbCat.text().size(), 255);
    remove(
        "Library", {"Location Can Not Be Deleted...You Can Only Delete A Location That You Have Added!", Information});
    expectBox(LeaveEditor, Question, Answer::No);
    closeBox(deleting());
    EXPECT_EQ(forms::activeForm(), &deleting());
    removeRows(Data1.rsIndoor);
    removeRows(Data1.rsInventory);
    remove("Library", {"Your Indoor Location Has Been Deleted!", Information});
    EXPECT_EQ(forms::activeForm(), &asset());
}

TEST_F(ListEditors, AFullDiskInTheMidstOfAChangeLeavesWholeRows)
{
    constexpr int count = 300;
    const QString longName(254, 'x');
    addName(Data1.rsIndoor, {"Tower", "0", "0"});
    for (int i = 0; i < count; ++i)
        addAsset("Indoor", "Tower", "Bells");
    open(Change);
    changing().cmbCat.setText("Tower");
    changing().txtNew.setFocus();
    paste(longName);
    std::signal(SIGXFSZ, SIG_IGN); // a file that can't grow is to the writer a disk that is full
    rlimit former{};
    getrlimit(RLIMIT_FSIZE, &former);
    const rlimit full{static_cast<rlim_t>(QFileInfo(databaseFile()).size()) + 8192, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    click(changing().cmdUpdate);
    setrlimit(RLIMIT_FSIZE, &former);
    const auto failure = reportedFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->handler, "frmUpdate.cmdUpdate_Click");
    closeData();
    openData();
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
        addName(Data1.rsIndoor, {"Tower", "Sights", item});
    open(Delete);
    storage::execute(Data1.Home.handle(),
        "CREATE TEMP TRIGGER NoRoom AFTER UPDATE ON Indoor_Items WHEN old.Type = 'Clock' "
        "BEGIN SELECT RAISE(ABORT, 'no room'); END");
    remove("Tower");
    EXPECT_TRUE(reportedFailure());
    closeData();
    openData();
    EXPECT_EQ(usersRows(), QStringList({"0|Sights|Bell", "Tower|Sights|Clock", "Tower|Sights|Flag"}));
}

} // namespace
