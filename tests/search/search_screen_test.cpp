// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "platform/storage/statement.h"

namespace {

class SearchWays : public SearchScreenTest {
protected:
    SearchWays() { addAssets(1); }

    // An area that a menu has chosen is off.
    static void expectScreen(const QString& heading, const QString& area, const QString& word)
    {
        EXPECT_EQ(search().lblHead[0].caption(), heading);
        EXPECT_EQ(contents(search()),
            "txtKey=" + word + ", cmbArea=" + area + ", cmbLocation=Any, cmbCat=Any, cmbType=Any, pbSearch hidden");
        EXPECT_EQ(search().cmbLocation.listCount() > 1, area != "Any");
    }
};

TEST_F(SearchWays, EachMenuPreparesTheScreenAndGetsTheUserBack)
{
    // What each way in leaves alone of the flags decides where Cancel leads to.
    const struct {
        forms::CommandButton frmMain::*areaMenu;
        QString heading, area, word, flags, back;
    } ways[] = {
        {&frmMain::cmdAuto, "Search For Asset To Update", "Mobile off", "", "true, true", "3 frmPrint"},
        {nullptr, "Search For Assets", "Any", "", "true, true", "2 frmMain"},
        {&frmMain::cmdOut, "Search For Asset To Delete", "Outdoor off", "lamp", "false, false", "2 frmMain"},
        {&frmMain::cmdIn, "Search For Asset To Update", "Indoor off", "", "true, false", "13 frmAuto"},
    };
    screen<frmPrint>().CustomPrint = true;
    for (const auto& way : ways) {
        menu().FromResults = true;
        search().raise_Progress(); // as a print of one asset leaves it
        way.areaMenu ? openFromArea(way.areaMenu, way.heading.endsWith("Delete")) : openFromMenu();
        expectScreen(way.heading, way.area, way.word);
        EXPECT_EQ(line(menu().isVisible(), menu().FromResults, screen<frmPrint>().CustomPrint), "false, " + way.flags);
        type(search().txtKey, "lamp");
        accessKey('c');
        EXPECT_EQ(
            line(front(), search().isVisible(), search().activeControl()->name()), way.back + ", false, cmdContinue");
    }
    removeRows(Data1.rsInventory);
    expectBox("There Are No Available Assets To Search...Please Add An Asset Before Continuing!", Information);
    openFromMenu();
    EXPECT_EQ(line(front(), menu().FromMenu), "2 frmMain, false");
}

TEST_F(SearchWays, ResetFreesTheAreaAndTheCloseBoxAsksBeforeTheProgramCloses)
{
    openFromArea(&frmMain::cmdIn);
    search().txtKey.setFocus();
    paste(QString(300, u'x'));
    pick(search().cmbLocation, "Attic");
    search().txtKey.setFocus();
    press(Qt::Key_F1);
    EXPECT_EQ(line(scene(), openedHelp().value()), "4 frmSearch: txtKey [" + QString(254, u'x') + "], 4001");
    click(search().cmdClearForm);
    expectScreen("Search For Asset To Update", "Any", "");
    EXPECT_EQ(scene(), "4 frmSearch: txtKey");
    expectToStay([] { closeBox(search()); });
    type("acme\n");
    expectToStay([] { closeBox(results()); });
}

class SearchLists : public SearchScreenTest {
protected:
    SearchLists()
    {
        addAssets(1);
        storage::Transaction atOnce(Data1.Home.handle());
        for (storage::TableView* table : {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile}) {
            removeRows(*table);
            for (const char* names :
                {"< Add/Edit Location >|< Add/Edit Category >|< Add/Edit Item >", "shed|0|0", "Attic|Art|Vase",
                    "SHED|tools|Saw", "2nd|Tools|saw", "0|ART|< Add/Edit Item >", "0|Art|10th", "0|Art|2nd"})
                addNames(*table, QString(names).split('|'));
        }
        addNames(Data1.rsOutdoor, {"Pond", "0", "0"});
        atOnce.commit();
        openFromMenu();
    }

    forms::ComboBox& area = search().cmbArea;
    forms::ComboBox& location = search().cmbLocation;
    forms::ComboBox& category = search().cmbCat;
    forms::ComboBox& item = search().cmbType;
};

TEST_F(SearchLists, EachListHoldsEveryNameOnceAndNarrowsTheNext)
{
    const auto lists = [&] {
        return QStringList({itemsOf(location).join('|'), itemsOf(category).join('|'), itemsOf(item).join('|')});
    };
    for (const QString name : {"Indoor", "Outdoor", "Mobile"}) {
        pick(area, name);
        const QString places = name == "Outdoor" ? "2nd|Any|Attic|Pond|shed" : "2nd|Any|Attic|shed";
        EXPECT_EQ(lists(), QStringList({places, "", ""}));
        EXPECT_EQ(location.text(), "Any");
        pick(location, "Attic");
        EXPECT_EQ(lists()[1], "Any|Art|tools"); // of the area, not of the attic
        pick(category, "Art");
        EXPECT_EQ(lists()[2], (name == "Indoor" ? "" : "< Add/Edit Item >|") + QString("10th|2nd|Any|Vase"));
        pick(location, "shed");
        EXPECT_EQ(line(category.text(), lists().join('/')), "Any, " + places + "/Any|Art|tools/");
        pick(category, "Art");
        pick(item, "Vase");
        pick(category, "tools");
        EXPECT_EQ(lists()[2] + ", " + item.text(), "Any|Saw, Any");

        // A new choice above clears what is below, "Any" clears nothing.
        const QStringList before = lists();
        pick(location, "Any");
        pick(area, "Any");
        EXPECT_EQ(lists() + QStringList(category.text()), before + QStringList("tools"));
    }
    pick(area, "Indoor");
    EXPECT_EQ(category.text() + lists()[1], "Any");
    location.setText("Attic"); // by code
    category.setText("Art");
    EXPECT_EQ(lists().mid(1).join('/'), "Any|Art|tools/10th|2nd|Any|Vase");
}

TEST_F(SearchLists, ASecondAnyComesWhereTheFirstLiesBeyondTheEndOfTheCategories)
{
    for (const QString name : {"Abacus", "Anvil"})
        addNames(Data1.rsMobile, {"0", "Art", name});
    pick(area, "Mobile");
    pick(location, "Attic");
    pick(category, "Art");
    const QString once = "< Add/Edit Item >|10th|2nd|Abacus|Anvil|Any|Vase";
    EXPECT_EQ(itemsOf(item).join('|'), once);
    pick(category, "Any");
    EXPECT_EQ(itemsOf(item).join('|'), QString(once).replace("Any", "Any|Any"));
    pick(item, "< Add/Edit Item >");
    press(std::vector<Qt::Key>(7, Qt::Key_Down));
    EXPECT_EQ(item.text(), "Vase") << "the cursor key goes past both";
}

TEST_F(SearchLists, ALowerListAsksForWhatStandsAbove)
{
    const std::tuple<const char*, forms::ComboBox&, const char*, const forms::ComboBox&> demands[] = {
        {"Any", location, "Please Select An Area Before Selecting A Location!", area},
        {"Any", category, "Please Select An Area Before Selecting A Category!", area},
        {"Any", item, "Please Select An Area Before Selecting An Item!", area},
        {"Outdoor", category, "Please Select A Location Before Selecting A Category!", location},
        {"Outdoor", item, "Please Select A Location Before Selecting An Item!", location},
    };
    for (const auto& [above, box, message, instead] : demands) {
        pick(area, above);
        search().txtKey.setFocus();
        expectBox(message, Exclamation);
        clickArrow(box);
        EXPECT_TRUE(!isListOpen() && search().activeControl() == &instead) << message;
    }
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
    press({Qt::Key_Down, Qt::Key_Down, Qt::Key_X, Qt::Key_Backspace}); // locked until its list opens
    EXPECT_EQ(area.text(), "Indoor");
    pick(area, "Outdoor");
    pick(location, "Attic");
    pick(category, "Art");
    const QString before = contents(search());
    for (forms::ComboBox* box : {&location, &category, &item}) {
        box->setFocus();
        box->selectAll();
        press({Qt::Key_X, Qt::Key_Delete, Qt::Key_Backspace});
        EXPECT_EQ(contents(search()), before) << qPrintable(box->name());
    }
    item.clear();
    tab();
    EXPECT_EQ(item.text(), "Any");
}

} // namespace
