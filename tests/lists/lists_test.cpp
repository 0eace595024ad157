// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"
#include "lists/frmDelField.h"
#include "lists/frmEditCmbBoxes.h"
#include "lists/frmUpdate.h"
#include "lists/name_list.h"
#include "platform/storage/sqlcipher.h"
#include "shared/areas.h"

#include <QApplication>
#include <QRegularExpression>

namespace {

const QStringList Areas = {"Indoor", "Outdoor", "Mobile"};

// The list editors, reached through the markers of the asset screen.
class ListEditors : public AssetScreenTest {
protected:
    static storage::TableView& namesOf(const QString& area) { return areas::ofName(area).nameTable(); }

    static void addRows(storage::TableView& table, const QStringList& rows)
    {
        for (const QString& row : rows)
            addNames(table, row.split('|'));
    }

    // From the main menu on.
    void play(const char* file)
    {
        screen<frmMain>().show();
        replay(file);
    }

    // The rows that didn't come with the program, as they stand in the file.
    static QString usersRows()
    {
        reopenData();
        return rowsOf(Data1.rsIndoor, Names::Location, Names::Standard).filter(QRegularExpression("\\|0$")).join(' ');
    }

    static void open(int option, const QString& kind = "Location")
    {
        openToAdd();
        pick(kind == "Location" ? asset().cmbLoc : asset().cmbCat, "< Add/Edit " + kind + " >");
        click(screen<frmEditCmbBoxes>().optEdit[option]);
        click(screen<frmEditCmbBoxes>().cmdUpdate);
    }
};

TEST_F(ListEditors, AreGoneThrough)
{
    play("lists/names.txt");
}

TEST_F(ListEditors, KeepEachListOfEachAreaByItself)
{
    for (const QString& area : Areas) {
        addRows(namesOf(area),
            {"Gong|Gong|Bell", "Tower|Tower|Bell", "TOWER|TOWER|Bell", "0|tower|Bell", "Nave|Nave|Bell"});
        addNames(namesOf(area), {"Nave", "Nave", "Bell"}, 1);
        addRows(namesOf(area), {"Clock|Clock|Bell", "CLOCK|CLOCK|Bell", "Clock|Clock|Bell"});
        for (const char* name : {"Tower", "TOWER", "CLOCK"})
            addAssetRow({area, name, name});
    }
    addAssetRow({"Indoor", "Gong", "Gong"});
    play("lists/each.txt");
}

TEST_F(ListEditors, WriteUnderAnHourglassWhatIsChangedOrDeleted)
{
    addRows(Data1.rsIndoor, {"Tower|Bells|Handbell", "TOWER|0|0", "Spire|0|0", "0|Bells|0", "tower|0|0", "Barn|0|0"});
    const auto refuseUnlessWaiting = [](void*) { return QApplication::overrideCursor() ? 0 : 1; };
    sqlite3_commit_hook(Data1.Home.handle(), refuseUnlessWaiting, nullptr);
    play("lists/changes.txt");
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(ListEditors, AnEmptyTableTakesBlanksAndANameOf254Letters)
{
    open(0, "Category");
    removeRows(Data1.rsIndoor);
    for (const QString& name : {QString("  "), QString(300, 'x')}) {
        click(screen<frmAddField>().txtAdd);
        paste(name);
        clickTold(screen<frmAddField>().cmdUpdate, " Your Indoor Category Has Been Added!", Information);
    }
    EXPECT_EQ(usersRows(), "0|  |0|0 0|" + QString(254, 'x') + "|0|0");
}

TEST_F(ListEditors, ARefusedRowEndsAChangeOrADeletionWithTheRowsBeforeItStored)
{
    for (const char* item : {"Bell", "Clock", "Flag"}) {
        addNames(Data1.rsIndoor, {"Tower", "Sights", item});
        addAssetRow({"Indoor", "Spire", item});
    }
    open(2);
    refuseWrites("UPDATE", "Indoor_Items", "old.Type = 'Clock'");
    auto& deleting = screen<frmDelField>();
    deleting.cmbCat.setText("Tower");
    clickTold(deleting.cmdUpdate, "Are You Sure You Want To Delete This Indoor Location?", YesNoQuestion, Answer::Yes);
    EXPECT_EQ(line(failedHandler(), usersRows()),
        "frmDelField.cmdUpdate_Click, 0|Sights|Bell|0 Tower|Sights|Clock|0 Tower|Sights|Flag|0");

    open(1);
    refuseWrites("UPDATE", "Inventory", "old.Category = 'Clock'");
    auto& changing = screen<frmUpdate>();
    changing.cmbCat.setText("Spire");
    type(changing.txtNew, "Steeple");
    click(changing.cmdUpdate);
    EXPECT_EQ(line(failedHandler(), usersRows().section(' ', -1)), "frmUpdate.cmdUpdate_Click, Steeple|0|0|0");
    EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::Location).join(' '), "Steeple Spire Spire");
}

TEST_F(ListEditors, StayPaintedWhileRowsAreWritten)
{
    addRows(Data1.rsIndoor, QStringList(200, "Tower|Bells|0"));
    open(2);
    static int turns = 0; // of what waits for its turn to be painted
    const auto wait = [](void*) {
        QMetaObject::invokeMethod(
            qApp, [] { ++turns; }, Qt::QueuedConnection);
        return 0; // goes on
    };
    sqlite3_commit_hook(Data1.Home.handle(), wait, nullptr);
    forms::setMessageHandler([](const forms::Message& box) {
        EXPECT_EQ(turns > 0, box.flags == Information);
        return Answer::Yes;
    });
    screen<frmDelField>().cmbCat.setText("Tower");
    click(screen<frmDelField>().cmdUpdate);
}

// No menu leads to them: what is for no list of the six counts as for the items.
TEST_F(ListEditors, ForTheItemsFillTheListAnewAndPutInWhatWasAdded)
{
    for (const QString& area : Areas)
        addRows(
            namesOf(area), {"0|Sights|" + area + " Saw", "0|sights|Plane", "0|Sights|0", "0|Sights|" + area + " Saw"});
    openToAdd();
    auto& change = screen<frmUpdate>();
    change.cmbCat.setText("Sights");
    change.txtNew.setText("Workshop");
    QStringList told;
    for (const QString& area : Areas) {
        change.lblHead4.setCaption("Change " + area + " Item");
        change.reload_Combo_Boxes();
        told += itemsOf(asset().cmbType).join('|');
    }
    EXPECT_EQ(
        told.join(", "), "< Add/Edit Item >|Indoor Saw, < Add/Edit Item >|Outdoor Saw, < Add/Edit Item >|Mobile Saw");
    EXPECT_EQ(line(asset().cmbLoc.text(), asset().cmbCat.text()), ", Workshop");

    pick(asset().cmbLoc, "< Add/Edit Location >");
    auto& menu = screen<frmEditCmbBoxes>();
    for (const char* name : {"mobile saw", "Tower", ""}) {
        menu.show();
        screen<frmAddField>().txtAdd.setText(name);
        asset().ListInEdit = "Item";
        click(menu.cmdCancel);
    }
    EXPECT_EQ(itemsOf(asset().cmbType).join('|'), "|< Add/Edit Item >|mobile saw|Mobile Saw");
    EXPECT_EQ(itemsOf(asset().cmbCat).first(), "");
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
    EXPECT_EQ(itemsOf(list).join('|'), "< Add/Edit >|00|10|2nd|ATTIC|Attic |Cellar|Ǆ|Ete|été|ﬁ|ı|straße|Σ");
}

} // namespace
