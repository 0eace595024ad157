// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"
#include "assets/frmWar.h"
#include "core/frmCalendar.h"
#include "platform/storage/statement.h"

namespace {

const char* const Saved = "Your Warranty Information Has Been Saved!";
const char* const LoseQuestion = "Changes To Warranty Information Will Be Lost...Continue?";
const QString Nothing = QString("None|").repeated(12) + "None";

// The warranty screen on the second of two assets.
class Warranty : public AssetScreenTest {
protected:
    Warranty()
    {
        addDesks({"$1.00", "$2.00"});
        open();
    }

    static frmWar& warranty() { return screen<frmWar>(); }

    static void open(const QString& id = "2")
    {
        openFound(id);
        click(asset().cmdWarranty);
    }

    static void expectToBeBack() { EXPECT_EQ(scene(), "10 frmAddUpDel: cmdWarranty"); }

    void saveWarranty()
    {
        clickTold(warranty().cmdSave, Saved, Information);
        expectToBeBack();
    }

    // In the order of the columns.
    static QString terms(int place = 2)
    {
        return rowsOf(Data1.rsInventory, Inventory::PartsType, Inventory::WarrantyDescription).value(place - 1);
    }

    // "cmbPMonth=Jan, cmbPDay=5, cmbPYear=2030", and the same of the labour.
    static QString partsDate() { return contents(warranty()).section(", ", 4, 6); }
    static QString laborDate() { return contents(warranty()).section(", ", 10, 12); }
};

TEST_F(Warranty, OfANewAssetShowsItsTypesAndNothingElseAndIsSavedAsItWas)
{
    EXPECT_EQ(contents(warranty()),
        "txtName=Antique Desk locked, cmbParts=None, txtPAmt=, txtPCover=, cmbPMonth=, cmbPDay=, cmbPYear=, "
        "cmbLabor=None, txtLAmt=, txtLCover=, cmbLMonth=, cmbLDay=, cmbLYear=, txtDescription=");
    EXPECT_EQ(screen<frmCalendar>().DateTarget, 1);
    saveWarranty();
    EXPECT_EQ(terms(), Nothing);
    open();
    click(warranty().cmdCancel); // asks nothing
    expectToBeBack();
}

TEST_F(Warranty, IsFilledInTabOrderAndComesBackWithAmountsAsMoney)
{
    const auto pickInFocus = [](const QString& item) {
        pick(dynamic_cast<forms::ComboBox&>(*warranty().activeControl()), item);
        EXPECT_EQ(scene().section(' ', 3), "[" + item + "]");
    };
    for (const auto& [kind, month] : {std::pair("Limited", "Apr"), std::pair("Lifetime", "Feb")}) {
        pickInFocus(kind);
        type("\t1234x5\t-7/5%.5\t"); // the coverage reads "75."
        pickInFocus(month);
        press({Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Tab});
    }
    EXPECT_EQ(scene(), "9 frmWar: txtDescription");
    type("Only with\nreceipt");
    saveWarranty();
    EXPECT_EQ(terms(), "Limited|75.|$12345.00|Apr|2|2005|Lifetime|75.|$12345.00|Feb|2|2005|Only with\nreceipt");
    EXPECT_EQ(terms(1), Nothing);

    open("1");
    open("2");
    EXPECT_EQ(line(warranty().txtPAmt.text(), laborDate()), "$12,345.00, cmbLMonth=Feb, cmbLDay=2, cmbLYear=2005");
    expectToStay([] { click(warranty().cmdCancel); }, LoseQuestion); // the amount is stored in another form
    saveWarranty();
    open();
    closeBox(warranty());
    expectToBeBack();
}

TEST_F(Warranty, EmptyTypeIsStoredAsUnknownAndCountsAsAChangeEverAfter)
{
    retype(warranty().cmbParts, {});
    paste(QString(300, u'x'));
    EXPECT_EQ(warranty().cmbParts.text().size(), 255);
    retype(warranty().cmbParts, {});
    press(Qt::Key_Delete);
    type(warranty().txtPAmt, "1/2");
    expectBox(Saved, Information);
    press(Qt::Key_Return); // the amount has not been left, so it is stored as it stands
    EXPECT_EQ(terms().section('|', 0, 2), "Unknown|None|$1/2");
    open();
    EXPECT_EQ(warranty().txtPAmt.text(), "$1/2");
    retype(warranty().cmbParts, {});
    press(Qt::Key_Delete);
    expectBox(LoseQuestion, YesNoQuestion, Answer::Yes);
    closeBox(warranty());
    EXPECT_EQ(line(front(), terms().section('|', 0, 0)), "10 frmAddUpDel, Unknown");
}

TEST_F(Warranty, DaysFollowTheMonthAndAreNotPickedWithoutOne)
{
    for (const auto& [month, day] : {std::pair(&warranty().cmbPMonth, &warranty().cmbPDay),
             std::pair(&warranty().cmbLMonth, &warranty().cmbLDay)}) {
        clickTold(*day, "          Please Select A Month First!", Information);
        EXPECT_EQ(warranty().activeControl(), month);
        QStringList lengths;
        for (int index = 0; index < 12; ++index) {
            pick(*month, month->list(index));
            lengths += QString::number(day->listCount()) + day->text() + scene().section(' ', 3);
            pick(*day, day->list(27));
        }
        EXPECT_EQ(lengths.join(' '),
            "31[Jan] 29[Feb] 31[Mar] 30[Apr] 31[May] 30[Jun] 31[Jul] 31[Aug] 30[Sep] 31[Oct] 30[Nov] 31[Dec]");
        click(*month);
        click(*day);
        EXPECT_EQ(scene().section(' ', 3), "[28]");
    }
}

TEST_F(Warranty, DatesAreOnlyPickedAndTheirBoxesSwallowEveryOtherKey)
{
    pick(warranty().cmbPMonth, "Jan");
    pick(warranty().cmbPDay, "5");
    pick(warranty().cmbPYear, "2030");
    for (forms::ComboBox* box : {&warranty().cmbPMonth, &warranty().cmbPDay, &warranty().cmbPYear}) {
        box->setFocus();
        press({Qt::Key_7, Qt::Key_A, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F1, Qt::Key_PageDown, Qt::Key_F4});
        paste("9");
        EXPECT_EQ(partsDate(), "cmbPMonth=Jan, cmbPDay=5, cmbPYear=2030") << qPrintable(box->name());
        EXPECT_FALSE(openedHelp()) << qPrintable(box->name());
    }
    warranty().cmbPYear.setSelectionStart(1);
    press(Qt::Key_A);
    EXPECT_EQ(scene(), "9 frmWar: cmbPYear [2030]");
    press(Qt::Key_Up);
    warranty().cmbPMonth.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(partsDate(), "cmbPMonth=Feb, cmbPDay=, cmbPYear=2029");
}

TEST_F(Warranty, CalendarFillsTheDateOfItsSideAndHoldsTheButtonsMeanwhile)
{
    const auto visit = [this](forms::Picture& picture, const QString& shown, const std::vector<Qt::Key>& keys) {
        whileModal([&] {
            const auto& date = screen<frmCalendar>().calDate;
            EXPECT_EQ(QString("%1/%2/%3").arg(date.Month()).arg(date.Day()).arg(date.Year()), shown);
            EXPECT_FALSE(warranty().cmdSave.isEnabled() || warranty().cmdCancel.isEnabled());
            press(keys);
        });
        click(picture);
        EXPECT_EQ(
            line(front(), warranty().cmdSave.isEnabled(), warranty().cmdCancel.isEnabled()), "9 frmWar, true, true");
    };
    pick(warranty().cmbPMonth, "Jan"); // incomplete: today
    visit(warranty().picPDate, "11/24/2026", {Qt::Key_Right, Qt::Key_Return});
    EXPECT_EQ(line(partsDate(), warranty().cmbPDay.listCount()), "cmbPMonth=Nov, cmbPDay=25, cmbPYear=2026, 30");

    pick(warranty().cmbPDay, "30");
    pick(warranty().cmbLMonth, "Feb");
    pick(warranty().cmbLDay, "29");
    pick(warranty().cmbLYear, "2007");
    visit(warranty().picLDate, "2/28/2007", {Qt::Key_Return}); // there is no 29th
    expectBox("Are You Sure You Want To Close The Calendar?", YesNoQuestion, Answer::Yes);
    visit(warranty().picPDate, "11/30/2026", {Qt::Key_Right, Qt::Key_Space}); // not cut to the February before
    EXPECT_EQ(partsDate(), "cmbPMonth=Nov, cmbPDay=30, cmbPYear=2026");
    EXPECT_EQ(laborDate(), "cmbLMonth=Feb, cmbLDay=28, cmbLYear=2007");
}

TEST_F(Warranty, ThatTheFileRefusesIsReportedWithTheRowWholeAndOfARowThatIsGoneIsSilent)
{
    const std::pair<forms::TextEntry&, QString> typed[] = {
        {warranty().txtPCover, "50"}, {warranty().txtLCover, "60"}, {warranty().txtDescription, "Terms"}};
    for (const auto& [box, text] : typed) {
        type(box, text);
        click(box);
        EXPECT_EQ(scene(), "9 frmWar: " + box.name() + " [" + text + "]");
    }
    refuseWrites("UPDATE", "Inventory");
    click(warranty().cmdSave);
    EXPECT_EQ(failedHandler(), "frmWar.cmdSave_Click");
    reopenData();
    EXPECT_EQ(terms(), Nothing);

    Data1.rsInventory.MoveNext();
    Data1.rsInventory.Delete();
    click(warranty().cmdSave);
    EXPECT_EQ(forms::activeForm(), &warranty());
    click(warranty().cmdCancel); // asks nothing
    expectToBeBack();
    open();
    EXPECT_EQ(line(warranty().txtPCover.text(), terms(1)), line("50", Nothing)) << "what was shown stays";
}

// Behind a save it opens on the new asset, and comes back to the next one.
TEST_F(AssetScreenTest, AWarrantyIsAskedForBehindASaveUnlessTheNumberIsBeyondSixteenBits)
{
    openToAdd();
    click(asset().chkWar);
    fillIn();
    save();
    auto& warranty = screen<frmWar>();
    EXPECT_EQ(line(scene(), warranty.txtName.text()), "9 frmWar: cmbParts, Antique Desk");
    type(warranty.txtLCover, "80");
    clickTold(warranty.cmdSave, Saved, Information);
    EXPECT_EQ(line(newest(Inventory::LaborCoverage), front(), asset().cmbLoc.text(), asset().cmdAdd.isEnabled()),
        "80, 10 frmAddUpDel, , true");

    storage::execute(Data1.Home.handle(), "UPDATE sqlite_sequence SET seq = 32767 WHERE name = 'Inventory'");
    fillIn();
    expectBox(Added, Information);
    save(BadDate, Exclamation);
    EXPECT_EQ(line(front(), newest(Inventory::ID), inventory()), "10 frmAddUpDel, 32768, 2: $2,469.00");
    click(asset().chkWar);
    fillIn();
    save();
    EXPECT_EQ(scene(), "10 frmAddUpDel: cmbLoc");
}

} // namespace
