// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "core/frmProgress.h"
#include "platform/storage/statement.h"

using forms::screen;

namespace {

class SearchWays : public SearchScreenTest {
protected:
    static void leaveTo(const forms::Form& form)
    {
        accessKey('c');
        EXPECT_EQ(forms::activeForm(), &form);
        EXPECT_FALSE(search().isVisible());
        EXPECT_EQ(search().activeControl(), &search().cmdContinue);
    }

    static void expectScreen(const QString& heading, const QString& area, bool free, const QString& word)
    {
        EXPECT_EQ(search().lblHead[0].caption(), heading);
        EXPECT_EQ(search().cmbArea.text() + '|' + search().txtKey.text(), area + '|' + word);
        EXPECT_EQ(search().cmbArea.isEnabled(), free);
        EXPECT_EQ(search().cmbLocation.listCount() > 1, area != "Any");
        for (const forms::ComboBox* box : {&search().cmbLocation, &search().cmbCat, &search().cmbType})
            EXPECT_EQ(box->text(), "Any");
        expectProgressHidden();
    }
};

TEST_F(SearchWays, WithoutAssetsNothingIsSearchedAndNothingChanges)
{
    menu().FromMenu = false;
    expectBox("There Are No Available Assets To Search...Please Add An Asset Before Continuing!", Information);
    openFromMenu();
    EXPECT_EQ(forms::activeForm(), &menu());
    EXPECT_FALSE(menu().FromMenu);
}

TEST_F(SearchWays, EachMenuPreparesTheScreenAndGetsTheUserBack)
{
    addAssets(1);
    screen<frmPrint>().CustomPrint = true;
    openFromArea(&frmMain::cmdAuto);
    expectScreen("Search For Asset To Update", "Mobile", false, "");
    leaveTo(screen<frmPrint>()); // the update search has left CustomPrint alone

    openFromMenu();
    expectScreen("Search For Assets", "Any", true, "");
    EXPECT_FALSE(menu().isVisible());
    search().txtKey.setFocus();
    type("lamp");
    leaveTo(menu());

    menu().FromResults = true;
    openFromArea(&frmMain::cmdOut, true);
    expectScreen("Search For Asset To Delete", "Outdoor", false, "lamp");
    EXPECT_FALSE(menu().FromResults || screen<frmPrint>().CustomPrint);
    leaveTo(menu()); // the delete search has left FromMenu alone

    menu().FromResults = true;
    openFromArea(&frmMain::cmdIn);
    expectScreen("Search For Asset To Update", "Indoor", false, "");
    EXPECT_TRUE(menu().FromResults);
    leaveTo(screen<frmAuto>());
}

TEST_F(SearchWays, ResetFreesTheAreaAndEmptiesTheWord)
{
    addAssets(1);
    openFromArea(&frmMain::cmdIn);
    type(search().txtKey, "lamp");
    click(search().cmdClearForm);
    expectScreen("Search For Asset To Update", "Any", true, "");
    EXPECT_EQ(search().activeControl(), &search().txtKey);
}

TEST_F(SearchWays, TabGoesThroughTheScreenAndF1ToItsHelp)
{
    addAssets(1);
    openFromArea(&frmMain::cmdIn);
    search().txtKey.setFocus();
    paste(QString(300, u'x'));
    pick(search().cmbLocation, "Attic");
    search().txtKey.setFocus();
    EXPECT_EQ(scene(), "4 frmSearch: txtKey [" + QString(254, u'x') + "]");
    for (const char* next : {"cmbLocation", "cmbCat", "cmbType", "cmdBack", "cmdClearForm", "cmdContinue", "txtKey"}) {
        press(Qt::Key_F1);
        EXPECT_EQ(openedHelp(), 4001);
        tab();
        EXPECT_EQ(search().activeControl()->name(), next);
    }
}

TEST_F(SearchWays, TheCloseBoxOfBothScreensAsksBeforeTheProgramCloses)
{
    addAssets(1);
    openFromMenu();
    expectToStay([] { closeBox(search()); });
    type("acme\n");
    expectToStay([] { closeBox(results()); });
    EXPECT_FALSE(screen<frmProgress>().isVisible());
}

class SearchLists : public SearchScreenTest {
protected:
    SearchLists()
    {
        addAssets(1);
        storage::Transaction atOnce(Data1.Home.handle());
        for (storage::TableView* table : {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile}) {
            removeRows(*table);
            for (const QStringList& names :
                {QStringList{"< Add/Edit Location >", "< Add/Edit Category >", "< Add/Edit Item >"}, {"shed", "0", "0"},
                    {"Attic", "Art", "Vase"}, {"SHED", "tools", "Saw"}, {"0", "Tools", "saw"},
                    {"0", "ART", "< Add/Edit Item >"}})
                addNames(*table, names);
        }
        atOnce.commit();
        openFromMenu();
    }

    // A list that is opened asks for what has to stand above it.
    void expectDemand(forms::ComboBox& box, const QString& message, const forms::ComboBox& instead)
    {
        search().txtKey.setFocus();
        expectBox(message, Exclamation);
        clickArrow(box);
        EXPECT_FALSE(isListOpen());
        EXPECT_EQ(search().activeControl(), &instead) << qPrintable(message);
    }

    forms::ComboBox& area = search().cmbArea;
    forms::ComboBox& location = search().cmbLocation;
    forms::ComboBox& category = search().cmbCat;
    forms::ComboBox& item = search().cmbType;
};

TEST_F(SearchLists, EachListHoldsEveryNameOnceAndNarrowsTheNext)
{
    for (const QString name : {"Indoor", "Outdoor", "Mobile"}) {
        pick(area, name);
        EXPECT_EQ(itemsOf(location), QStringList({"Any", "Attic", "shed"}));
        EXPECT_EQ(location.text(), "Any");
        pick(location, "Attic");
        EXPECT_EQ(itemsOf(category), QStringList({"Any", "Art", "tools"})); // of the area, not of the attic
        EXPECT_EQ(itemsOf(item), QStringList());
        pick(category, "Art");
        EXPECT_EQ(itemsOf(item),
            name == "Indoor" ? QStringList({"Any", "Vase"}) : QStringList({"< Add/Edit Item >", "Any", "Vase"}));
        pick(item, "Vase");
        pick(category, "tools");
        EXPECT_EQ(itemsOf(item), QStringList({"Any", "Saw"}));
        EXPECT_EQ(item.text(), "Any");

        // A new choice above clears what is below, "Any" clears nothing.
        pick(location, "Any");
        pick(area, "Any");
        EXPECT_EQ(location.listCount() + item.listCount(), 5);
        EXPECT_EQ(category.text(), "tools");
    }
    pick(area, "Indoor");
    EXPECT_EQ(category.text(), "Any");
    EXPECT_EQ(category.listCount(), 0);
}

TEST_F(SearchLists, ASecondAnyComesWhereTheFirstLiesBeyondTheEndOfTheCategories)
{
    for (const QString name : {"Abacus", "Adze", "Amphora", "Anvil"})
        addNames(Data1.rsMobile, {"0", "Art", name});
    pick(area, "Mobile");
    pick(location, "Attic");
    pick(category, "Art");
    EXPECT_EQ(itemsOf(item).join('|'), "< Add/Edit Item >|Abacus|Adze|Amphora|Anvil|Any|Vase");
    pick(category, "Any");
    EXPECT_EQ(itemsOf(item).join('|'), "< Add/Edit Item >|Abacus|Adze|Amphora|Anvil|Any|Any|Vase");
}

TEST_F(SearchLists, ALowerListAsksForWhatStandsAbove)
{
    expectDemand(location, "Please Select An Area Before Selecting A Location!", area);
    expectDemand(category, "Please Select An Area Before Selecting A Category!", area);
    expectDemand(item, "Please Select An Area Before Selecting An Item!", area);
    pick(area, "Outdoor");
    expectDemand(category, "Please Select A Location Before Selecting A Category!", location);
    expectDemand(item, "Please Select A Location Before Selecting An Item!", location);
    pick(location, "Attic");
    click(item); // without a category
    EXPECT_EQ(search().activeControl(), &item);
}

TEST_F(SearchLists, NothingCanBeTypedButTheAreaFallsBackToAny)
{
    area.setFocus();
    area.selectAll();
    type("x");
    EXPECT_EQ(area.text(), "Any");
    press(Qt::Key_Down);
    EXPECT_EQ(area.text(), "Indoor");
    press(Qt::Key_Down); // locked until its list opens
    type("x");
    press(Qt::Key_Backspace);
    EXPECT_EQ(area.text(), "Indoor");
    pick(area, "Outdoor");
    pick(location, "Attic");
    pick(category, "Art");
    const QString before = contents(search());
    for (forms::ComboBox* box : {&location, &category, &item}) {
        box->setFocus();
        box->selectAll();
        type("x");
        press(Qt::Key_Delete);
        press(Qt::Key_Backspace);
        EXPECT_EQ(contents(search()), before) << qPrintable(box->name());
    }
    item.clear();
    tab();
    EXPECT_EQ(item.text(), "Any");
}

} // namespace
