// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/search_screen.h"

#include "platform/storage/statement.h"

#include <QApplication>

#include <tuple>

namespace {

class SearchLists : public SearchScreenTest {
protected:
    void SetUp() override
    {
        SearchScreenTest::SetUp();
        addAssets(1);
        storage::Transaction atOnce(Data1.Home.handle());
        for (storage::TableView* table : {&Data1.rsIndoor, &Data1.rsOutdoor, &Data1.rsMobile}) {
            while (!table->atEOF()) {
                table->Delete();
                table->MoveNext();
            }
            addName(*table, {"< Add/Edit Location >", "< Add/Edit Category >", "< Add/Edit Item >"});
            addName(*table, {"shed", "0", "0"});
            addName(*table, {"Attic", "Art", "Vase"});
            addName(*table, {"SHED", "tools", "Saw"});
            addName(*table, {"0", "Tools", "saw"});
            addName(*table, {"0", "ART", "< Add/Edit Item >"});
        }
        atOnce.commit();
        openFromMenu();
    }
};

TEST_F(SearchLists, EachListHoldsEveryNameOnceAndNarrowsTheNext)
{
    for (const QString area : {"Indoor", "Outdoor", "Mobile"}) {
        pick(search().cmbArea, area);
        EXPECT_EQ(items(search().cmbLocation), QStringList({"Any", "Attic", "shed"}));
        EXPECT_EQ(search().cmbLocation.text(), "Any");
        pick(search().cmbLocation, "Attic");
        EXPECT_EQ(items(search().cmbCat), QStringList({"Any", "Art", "tools"})); // of the area, not of the attic
        EXPECT_EQ(items(search().cmbType), QStringList());
        pick(search().cmbCat, "Art");
        EXPECT_EQ(items(search().cmbType),
            area == "Indoor" ? QStringList({"Any", "Vase"}) : QStringList({"< Add/Edit Item >", "Any", "Vase"}));
        pick(search().cmbType, "Vase");
        pick(search().cmbCat, "tools");
        EXPECT_EQ(items(search().cmbType), QStringList({"Any", "Saw"}));
        EXPECT_EQ(search().cmbType.text(), "Any");

        // A new choice above clears what is below, "Any" clears nothing.
        pick(search().cmbLocation, "Any");
        EXPECT_EQ(search().cmbCat.text(), "tools");
        EXPECT_EQ(search().cmbType.listCount(), 2);
        pick(search().cmbArea, "Any");
        EXPECT_EQ(search().cmbLocation.listCount(), 3);
        EXPECT_EQ(search().cmbCat.text(), "tools");
    }
    pick(search().cmbArea, "Indoor");
    EXPECT_EQ(search().cmbCat.text(), "Any");
    EXPECT_EQ(search().cmbCat.listCount(), 0);
}

TEST_F(SearchLists, ASecondAnyComesWhereTheFirstLiesBeyondTheEndOfTheCategories)
{
    for (const QString name : {"Abacus", "Adze", "Amphora", "Anvil"})
        addName(Data1.rsMobile, {"0", "Art", name});
    pick(search().cmbArea, "Mobile");
    pick(search().cmbLocation, "Attic");
    pick(search().cmbCat, "Art");
    const QStringList once{"< Add/Edit Item >", "Abacus", "Adze", "Amphora", "Anvil", "Any", "Vase"};
    EXPECT_EQ(items(search().cmbType), once);
    pick(search().cmbCat, "Any");
    QStringList twice = once;
    twice.insert(5, "Any");
    EXPECT_EQ(items(search().cmbType), twice);
}

TEST_F(SearchLists, ALowerListAsksForWhatStandsAbove)
{
    const auto demand = [this](forms::ComboBox& box, const QString& message, forms::ComboBox& instead) {
        search().txtKey.setFocus();
        expectBox(message, Exclamation);
        const QWidget& widget = *box.widget();
        clickAt(box, {widget.width() - widget.height() / 2, widget.height() / 2}); // on the arrow
        EXPECT_FALSE(QApplication::activePopupWidget());
        EXPECT_EQ(search().activeControl(), &instead) << qPrintable(message);
    };
    const auto [area, location, category, item] =
        std::tie(search().cmbArea, search().cmbLocation, search().cmbCat, search().cmbType);
    demand(location, "Please Select An Area Before Selecting A Location!", area);
    demand(category, "Please Select An Area Before Selecting A Category!", area);
    demand(item, "Please Select An Area Before Selecting An Item!", area);
    pick(area, "Outdoor");
    demand(category, "Please Select A Location Before Selecting A Category!", location);
    demand(item, "Please Select A Location Before Selecting An Item!", location);
    pick(location, "Attic");
    click(item); // without a category
    EXPECT_EQ(search().activeControl(), &item);
}

TEST_F(SearchLists, NothingCanBeTypedButTheAreaFallsBackToAny)
{
    search().cmbArea.setFocus();
    search().cmbArea.selectAll();
    type("x");
    EXPECT_EQ(search().cmbArea.text(), "Any");
    press(Qt::Key_Down);
    EXPECT_EQ(search().cmbArea.text(), "Indoor");
    press(Qt::Key_Down); // locked until its list opens
    type("x");
    press(Qt::Key_Backspace);
    EXPECT_EQ(search().cmbArea.text(), "Indoor");
    pick(search().cmbArea, "Outdoor");
    EXPECT_EQ(search().cmbArea.text(), "Outdoor");

    pick(search().cmbLocation, "Attic");
    pick(search().cmbCat, "Art");
    for (forms::ComboBox* box : {&search().cmbLocation, &search().cmbCat, &search().cmbType}) {
        const QString before = box->text();
        box->setFocus();
        box->selectAll();
        type("x");
        press(Qt::Key_Delete);
        press(Qt::Key_Backspace);
        EXPECT_EQ(box->text(), before);
    }
    search().cmbType.clear();
    tab();
    EXPECT_EQ(search().cmbType.text(), "Any");
}

} // namespace
