// SPDX-License-Identifier: GPL-3.0-or-later
// The six lists, each on its way through the menu and the three editors.
#include "lists/list_editors.h"

using forms::Answer;

namespace {

struct EditedList {
    QString area;
    QString kind;
    int menuHelp;
    int addHelp;
    int changeHelp;
    int deleteHelp;

    QString name() const { return area + " " + kind; }
    storage::TableView& names() const { return areas::ofName(area).nameTable(); }
    bool ofLocations() const { return kind == "Location"; }
    QString row(const QString& name) const { return ofLocations() ? name + "|0|0" : "0|" + name + "|0"; }
};

class EachList : public ListEditorsTest, public testing::WithParamInterface<EditedList> {
protected:
    static QString name() { return GetParam().name(); }
    static QString kind() { return GetParam().kind; }

    static void expectScreen(forms::Form& screen, const char* heading, const QString& caption, int number, int help)
    {
        EXPECT_EQ(control<forms::Label>(screen, heading).caption(), caption);
        EXPECT_EQ(forms::activeForm(), &screen);
        EXPECT_EQ(frmStartup::CurrentScreen, number);
        forms::screen<frmMain>().Hide_Screens();
        EXPECT_FALSE(screen.isVisible()) << number;
        screen.show();
        for ([[maybe_unused]] const int stop : {1, 2, 3, 4}) {
            EXPECT_EQ(screen.activeControl()->helpNumber(), help) << qPrintable(screen.activeControl()->name());
            tab();
        }
    }

    void expectSelection(const QString& text)
    {
        EXPECT_EQ(forms::activeForm(), &asset());
        EXPECT_EQ(boxOf(kind()).text(), text);
    }
};

TEST_P(EachList, IsNamedOnEveryScreenAndHasItsHelp)
{
    const auto& [area, kind, menuHelp, addHelp, changeHelp, deleteHelp] = GetParam();
    openToAdd(area);
    const struct {
        Option option;
        forms::Form& editor;
        const char* heading;
        const char* word;
        int number;
        int help;
    } editors[] = {{Add, adding(), "lblHead", "Add ", 11, addHelp},
        {Change, changing(), "lblHead4", "Change ", 14, changeHelp},
        {Delete, deleting(), "lblHead", "Delete ", 16, deleteHelp}};
    for (const auto& [option, editor, heading, word, number, help] : editors) {
        pickMarker(kind);
        EXPECT_EQ(menu().activeControl(), &menu().cmdUpdate);
        expectScreen(menu(), "lblHead", "Add/Edit " + name(), 12, menuHelp);
        choose(option);
        expectScreen(editor, heading, word + name(), number, help);
        EXPECT_EQ(control<forms::Label>(editor, "lblChoice").caption(), option == Change ? "Current" : kind);
        closeBox(editor);
        EXPECT_EQ(forms::activeForm(), &asset());
    }
    EXPECT_EQ(itemsOf(changing().cmbCat),
        itemsOf(boxOf(kind)).mid(1)); // without the marker
    EXPECT_EQ(itemsOf(deleting().cmbCat), itemsOf(boxOf(kind)).mid(1));
}

TEST_P(EachList, TakesANewNameInAnySpellingOnce)
{
    openToAdd(GetParam().area);
    const QString old = boxOf(kind()).list(1);
    pick(boxOf(kind()), old);
    pickMarker(kind());
    choose(Add);
    type("Tower ");
    clickTold(adding().cmdUpdate, " Your " + name() + " Has Been Added!", Information);
    EXPECT_EQ(usersRows(GetParam().names()), QStringList(GetParam().row("Tower ")));

    type(adding().txtAdd,
        "tOWER "); // the click has selected the name that stands there
    clickTold(adding().cmdUpdate, "This " + name() + " Is Already Available!", Exclamation);
    EXPECT_TRUE(isRefused(adding().txtAdd));
    EXPECT_EQ(adding().txtAdd.selectionLength(), 6);
    type(old); // the name of a standard row
    clickTold(adding().cmdUpdate, "This " + name() + " Is Already Available!", Exclamation);
    EXPECT_EQ(usersRows(GetParam().names()).size(), 1);

    expectToStay([] { closeBox(adding()); }, LeaveEditor);
    EXPECT_EQ(boxOf(kind()).text(), old); // behind the editor, already
    clickTold(adding().cmdCancel, LeaveEditor, Question, Answer::Yes);
    expectSelection(old);
    EXPECT_EQ(itemsOf(boxOf(kind())).count("Tower "), 1);
}

TEST_P(EachList, ChangesANameWithTheAssetsOfItsAreaThatCarryIt)
{
    const auto column = GetParam().ofLocations() ? Inventory::Location : Inventory::Category;
    const auto other = GetParam().ofLocations() ? Inventory::Category : Inventory::Location;
    addNames(GetParam().names(), GetParam().row("Tower").split('|'));
    addNames(GetParam().names(), {"TOWER", "TOWER", "Bell"}); // goes whole
    addAsset(GetParam().area, "Tower", "Tower");
    addAsset(GetParam().area == "Indoor" ? "Mobile" : "Indoor", "Tower", "Tower");
    addAsset(GetParam().area, "TOWER", "TOWER");
    open(Change, GetParam().area, kind());
    pick(changing().cmbCat, "Tower");
    type(changing().txtNew, "Spire");
    clickTold(changing().cmdUpdate, "Your " + name() + " Has Been Changed!", Information);
    expectSelection("Spire");
    EXPECT_EQ(itemsOf(boxOf(kind())).first(), "< Add/Edit " + kind() + " >");
    EXPECT_EQ(itemsOf(boxOf(kind())).filter("Tower", Qt::CaseInsensitive).size(), 0);
    EXPECT_EQ(adding().SavedCategory, "Spire"); // of a location too
    reopenData();
    EXPECT_EQ(usersRows(GetParam().names()), QStringList(GetParam().row("Spire")));
    EXPECT_EQ(assetsIn(column), QStringList({"Spire", "Tower", "TOWER"}));
    EXPECT_EQ(assetsIn(other), QStringList({"Tower", "Tower", "TOWER"}));
}

TEST_P(EachList, LosesANameThatNoAssetCarries)
{
    addNames(GetParam().names(), {"Tower", "Tower", "Bell"});
    addNames(GetParam().names(), {"TOWER", "TOWER", "Bell"});
    addNames(GetParam().names(), {"Tower", "Tower", "Clock"}); // the last row has no next one to move to
    const QStringList before = usersRows(GetParam().names());
    addAsset(GetParam().area == "Mobile" ? "Outdoor" : "Mobile", "Tower", "Tower");
    open(Delete, GetParam().area, kind());
    const auto remove = [&](const QString& text, Answer answer, const QString& message = {}, int flags = Information) {
        deleting().cmbCat.setText(text);
        expectBox("Are You Sure You Want To Delete This " + name() + "?", Question, answer);
        if (answer == Answer::Yes)
            expectBox(message, flags);
        click(deleting().cmdUpdate);
    };
    remove(deleting().cmbCat.list(1), Answer::Yes,
        kind() + " Can Not Be Deleted...You Can Only Delete A " + kind() + " That You Have Added!");
    remove("Tower", Answer::No);
    remove("Tower", Answer::Yes,
        "Assets Are Using This " + kind() + "...Please Relocate Or Remove Asset(s) Before Deleting!", Stop);
    EXPECT_EQ(deleting().cmbCat.text(), "Tower");
    EXPECT_EQ(usersRows(GetParam().names()), before);

    removeRows(Data1.rsInventory);
    remove("Tower", Answer::Yes, "Your " + name() + " Has Been Deleted!");
    expectSelection("");
    EXPECT_FALSE(itemsOf(boxOf(kind())).contains("Tower"));
    EXPECT_TRUE(itemsOf(boxOf(kind())).contains("TOWER")); // another name
    reopenData();
    const QString bell = GetParam().ofLocations() ? "0|Tower|Bell" : "Tower|0|0";
    const QString clock = GetParam().ofLocations() ? "0|Tower|Clock" : "Tower|0|0";
    EXPECT_EQ(usersRows(GetParam().names()), QStringList({bell, "TOWER|TOWER|Bell", clock}));
}

INSTANTIATE_TEST_SUITE_P(Of, EachList,
    testing::Values(EditedList{"Indoor", "Location", 17001, 23001, 29001, 35001},
        EditedList{"Indoor", "Category", 20001, 24001, 30001, 36001},
        EditedList{"Outdoor", "Location", 18001, 25001, 31001, 37001},
        EditedList{"Outdoor", "Category", 21001, 26001, 32001, 38001},
        EditedList{"Mobile", "Location", 19001, 27001, 33001, 39001},
        EditedList{"Mobile", "Category", 22001, 28001, 34001, 40001}),
    [](const auto& list) { return QString(list.param.name()).remove(' ').toStdString(); });

} // namespace
