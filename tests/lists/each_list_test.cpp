// SPDX-License-Identifier: GPL-3.0-or-later
// The six lists, each on its way through the menu and the three editors.
#include "lists/list_editors.h"

namespace {

struct EditedList {
    QString area;
    QString kind;
    int menuHelp;
    int addHelp; // changing has its help 6,000 on, deleting 12,000

    QString name() const { return area + " " + kind; }
    storage::TableView& names() const { return areas::ofName(area).nameTable(); }
    bool ofLocations() const { return kind == "Location"; }
    QString row(const QString& name) const { return ofLocations() ? name + "|0|0" : "0|" + name + "|0"; }
};

class EachList : public ListEditors, public testing::WithParamInterface<EditedList> {
protected:
    // "Add Indoor Location, 11 frmAddField: txtAdd, 23001"
    QString seen(forms::Form& form, const char* heading)
    {
        press(Qt::Key_F1);
        return line(control<forms::Label>(form, heading).caption(), scene(), openedHelp().value_or(0));
    }

    const EditedList list_ = GetParam();
    const QString name_ = list_.name();
    const QString onAsset_ = "10 frmAddUpDel: cmb" + list_.kind.left(3) + ", ";
    forms::ComboBox& box_ = boxOf(list_.kind);
};

TEST_P(EachList, IsNamedOnEveryScreenAndHasItsHelp)
{
    openToAdd(list_.area);
    const std::tuple<Option, forms::Form&, const char*, QString> editors[] = {
        {Add, adding(), "lblHead", "Add %1, 11 frmAddField: txtAdd, %2"},
        {Change, changing(), "lblHead4", "Change %1, 14 frmUpdate: cmdUpdate, %2"},
        {Delete, deleting(), "lblHead", "Delete %1, 16 frmDelField: cmbCat, %2"}};
    for (const auto& [option, editor, heading, expected] : editors) {
        pickMarker(list_.kind);
        EXPECT_EQ(seen(menu(), "lblHead"),
            QString("Add/Edit %1, 12 frmEditCmbBoxes: cmdUpdate, %2").arg(name_).arg(list_.menuHelp));
        choose(option);
        EXPECT_EQ(seen(editor, heading), expected.arg(name_).arg(list_.addHelp + 6000 * option));
        EXPECT_EQ(control<forms::Label>(editor, "lblChoice").caption(), option == Change ? "Current" : list_.kind);
        closeBox(editor);
        EXPECT_EQ(line(scene(), box_.text()), onAsset_); // without the marker that led away
    }
    EXPECT_EQ(itemsOf(changing().cmbCat) + itemsOf(deleting().cmbCat), itemsOf(box_).mid(1) + itemsOf(box_).mid(1));
}

TEST_P(EachList, TakesANewNameInAnySpellingOnce)
{
    openToAdd(list_.area);
    const QString old = box_.list(1);
    pick(box_, old);
    pickMarker(list_.kind);
    choose(Add);
    type("2nd Tower ");
    add(" Your " + name_ + " Has Been Added!");
    type(adding().txtAdd, "2ND tOWER "); // the click has selected the name that stands there
    add("This " + name_ + " Is Already Available!", Exclamation);
    click(adding().txtAdd); // selects it, with the focus there already
    type(old); // the name of a standard row
    add("This " + name_ + " Is Already Available!", Exclamation);
    EXPECT_EQ(usersRows(list_.names()), QStringList(list_.row("2nd Tower ")));

    expectToStay([] { closeBox(adding()); }, LeaveEditor);
    EXPECT_EQ(box_.text(), old); // behind the editor, already
    clickTold(adding().cmdCancel, LeaveEditor, YesNoQuestion, Answer::Yes);
    EXPECT_EQ(line(scene(), box_.text()), onAsset_ + old);
    EXPECT_EQ(itemsOf(box_).first(3), QStringList({"< Add/Edit " + list_.kind + " >", "2nd Tower ", old}));
}

TEST_P(EachList, ChangesANameWithTheAssetsOfItsAreaThatCarryIt)
{
    addNames(list_.names(), list_.row("Tower").split('|'));
    addNames(list_.names(), {"TOWER", "TOWER", "Bell"}); // goes whole
    addAssetRow({list_.area, "Tower", "Tower"});
    addAssetRow({list_.area == "Indoor" ? "Mobile" : "Indoor", "Tower", "Tower"});
    addAssetRow({list_.area, "TOWER", "TOWER"});
    QStringList assets = rowsOf(Data1.rsInventory, Inventory::Area, Inventory::Category);
    open(Change, list_.area, list_.kind);
    change("Tower", "Spire", "Your " + name_ + " Has Been Changed!");
    EXPECT_EQ(line(scene(), box_.text(), adding().SavedCategory), onAsset_ + "Spire, Spire"); // of a location too
    EXPECT_EQ(itemsOf(box_).filter(QRegularExpression("^<|tower", QRegularExpression::CaseInsensitiveOption)),
        QStringList("< Add/Edit " + list_.kind + " >"));
    reopenData();
    EXPECT_EQ(usersRows(list_.names()), QStringList(list_.row("Spire")));
    assets[0] = list_.area + (list_.ofLocations() ? "|Spire|Tower" : "|Tower|Spire");
    EXPECT_EQ(rowsOf(Data1.rsInventory, Inventory::Area, Inventory::Category), assets);
}

TEST_P(EachList, LosesANameThatNoAssetCarries)
{
    addNames(list_.names(), {"Tower", "Tower", "Bell"});
    addNames(list_.names(), {"TOWER", "TOWER", "Bell"});
    addNames(list_.names(), {"Tower", "Tower", "Clock"}); // the last row has no next one to move to
    open(Delete, list_.area, list_.kind);
    const QString standard = deleting().cmbCat.list(1);
    addNames(list_.names(), {standard, standard, "0"}); // a user and an asset have it too
    addAssetRow({list_.area, standard, standard});
    addAssetRow({list_.area == "Mobile" ? "Outdoor" : "Mobile", "Tower", "Tower"});
    QStringList before = usersRows(list_.names());
    remove(name_, standard,
        QString("%1 Can Not Be Deleted...You Can Only Delete A %1 That You Have Added!").arg(list_.kind));
    deleting().cmbCat.setText("Tower");
    clickTold(deleting().cmdUpdate, "Are You Sure You Want To Delete This " + name_ + "?", YesNoQuestion, Answer::No);
    remove(name_, "Tower",
        "Assets Are Using This " + list_.kind + "...Please Relocate Or Remove Asset(s) Before Deleting!", Stop);
    expectToStay([] { closeBox(deleting()); }, LeaveEditor);
    EXPECT_EQ(usersRows(list_.names()), before);

    removeRows(Data1.rsInventory);
    remove(name_, "Tower", "Your " + name_ + " Has Been Deleted!");
    EXPECT_EQ(line(scene(), box_.text()), onAsset_);
    EXPECT_EQ(itemsOf(box_).filter("Tower", Qt::CaseInsensitive), QStringList("TOWER")); // another name
    reopenData();
    before.replaceInStrings(
        QRegularExpression(list_.ofLocations() ? "^Tower" : "^Tower.*"), list_.ofLocations() ? "0" : "Tower|0|0");
    EXPECT_EQ(usersRows(list_.names()), before);
}

INSTANTIATE_TEST_SUITE_P(Of, EachList,
    testing::Values(EditedList{"Indoor", "Location", 17001, 23001}, EditedList{"Indoor", "Category", 20001, 24001},
        EditedList{"Outdoor", "Location", 18001, 25001}, EditedList{"Outdoor", "Category", 21001, 26001},
        EditedList{"Mobile", "Location", 19001, 27001}, EditedList{"Mobile", "Category", 22001, 28001}),
    [](const auto& list) { return QString(list.param.name()).remove(' ').toStdString(); });

} // namespace
