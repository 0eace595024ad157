// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"
#include "assets/frmWar.h"
#include "core/frmCalendar.h"
#include "core/frmStartup.h"
#include "platform/storage/statement.h"

using forms::Answer;
using forms::screen;

namespace {

const char* const Saved = "Your Warranty Information Has Been Saved!";
const char* const LoseQuestion = "Changes To Warranty Information Will Be Lost...Continue?";

// The warranty screen on the second of two assets.
class Warranty : public AssetScreenTest {
protected:
    Warranty()
    {
        addDesks({"$1.00", "$2.00"});
        openFound("2");
        open();
    }

    static frmWar& warranty() { return screen<frmWar>(); }

    static void open() { click(asset().cmdWarranty); }

    void saveWarranty()
    {
        clickTold(warranty().cmdSave, Saved, Information);
        EXPECT_EQ(forms::activeForm(), &asset());
    }

    // In the order of the columns.
    static QString terms(int id = 2)
    {
        stored(id, Inventory::ID);
        return cellsOf(Data1.rsInventory, Inventory::PartsType, Inventory::WarrantyDescription).join('|');
    }

    static QString partsDate() { return date(warranty().cmbPMonth, warranty().cmbPDay, warranty().cmbPYear); }
    static QString laborDate() { return date(warranty().cmbLMonth, warranty().cmbLDay, warranty().cmbLYear); }

    static QString date(const forms::ComboBox& month, const forms::ComboBox& day, const forms::ComboBox& year)
    {
        return month.text() + ' ' + day.text() + ' ' + year.text();
    }

    static void expectButtons(bool enabled)
    {
        EXPECT_EQ(warranty().cmdSave.isEnabled(), enabled);
        EXPECT_EQ(warranty().cmdCancel.isEnabled(), enabled);
    }
};

const QString Nothing = QString("None|").repeated(12) + "None";

TEST_F(Warranty, OfANewAssetShowsItsTypesAndNothingElseAndIsSavedAsItWas)
{
    EXPECT_EQ(scene(), "9 frmWar: cmbParts");
    EXPECT_EQ(contents(warranty()),
        "txtName=Antique Desk locked, cmbParts=None, txtPAmt=, txtPCover=, cmbPMonth=, cmbPDay=, cmbPYear=, "
        "cmbLabor=None, txtLAmt=, txtLCover=, cmbLMonth=, cmbLDay=, cmbLYear=, txtDescription=");
    EXPECT_EQ(screen<frmCalendar>().DateTarget, 1);
    saveWarranty();
    EXPECT_EQ(terms(), Nothing);
    open();
    click(warranty().cmdCancel); // asks nothing
    EXPECT_EQ(forms::activeForm(), &asset());
}

TEST_F(Warranty, IsFilledInTabOrderAndComesBackWithAmountsAsMoney)
{
    const auto fill = [](const QString& kind, const QString& month) {
        auto& box = *dynamic_cast<forms::ComboBox*>(warranty().activeControl());
        pick(box, kind);
        EXPECT_EQ(box.selectionLength(), kind.size());
        type("\t1234x5\t-7/5%.5\t"); // the coverage reads "75."
        pick(*dynamic_cast<forms::ComboBox*>(warranty().activeControl()), month);
        tab();
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        tab();
        press(Qt::Key_Down);
        tab();
    };
    fill("Limited", "Apr");
    fill("Lifetime", "Feb");
    EXPECT_EQ(warranty().activeControl(), &warranty().txtDescription);
    type("Only with\nreceipt");
    saveWarranty();
    EXPECT_EQ(terms(), "Limited|75.|$12345.00|Apr|2|2005|Lifetime|75.|$12345.00|Feb|2|2005|Only with\nreceipt");
    EXPECT_EQ(terms(1), Nothing);

    openFound("1");
    open();
    openFound("2");
    open();
    EXPECT_EQ(warranty().txtPAmt.text() + " " + laborDate(), "$12,345.00 Feb 2 2005");
    EXPECT_EQ(warranty().cmbLDay.listCount(), 29);
    expectToStay([] { click(warranty().cmdCancel); },
        LoseQuestion); // the amount is stored in another form
    saveWarranty();
    open();
    closeBox(warranty());
    EXPECT_EQ(forms::activeForm(), &asset());
}

TEST_F(Warranty, EmptyTypeIsStoredAsUnknownAndCountsAsAChangeEverAfter)
{
    const auto emptyTheType = [] {
        click(warranty().cmbParts);
        warranty().cmbParts.selectAll();
        press(Qt::Key_Delete);
    };
    emptyTheType();
    type(warranty().txtPAmt, "1/2");
    expectBox(Saved, Information);
    press(Qt::Key_Return); // the amount has not been left, so it is stored as it stands
    EXPECT_EQ(terms().section('|', 0, 2), "Unknown|None|$1/2");
    open();
    EXPECT_EQ(warranty().txtPAmt.text(), "$1/2");
    emptyTheType();
    expectBox(LoseQuestion, Question, Answer::Yes);
    closeBox(warranty());
    EXPECT_EQ(forms::activeForm(), &asset());
    EXPECT_EQ(terms().section('|', 0, 0), "Unknown");
}

TEST_F(Warranty, DaysFollowTheMonthAndAreNotPickedWithoutOne)
{
    for (const auto& [month, day] : {std::pair(&warranty().cmbPMonth, &warranty().cmbPDay),
             std::pair(&warranty().cmbLMonth, &warranty().cmbLDay)}) {
        clickTold(*day, "          Please Select A Month First!", Information);
        EXPECT_EQ(warranty().activeControl(), month);
        const int lengths[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        for (int index = 0; index < 12; ++index) {
            pick(*month, month->list(index));
            EXPECT_EQ(day->listCount(), lengths[index]) << index;
            EXPECT_EQ(day->text(), "");
            EXPECT_EQ(month->selectionLength(), 3);
            pick(*day, QString::number(lengths[index]));
        }
        click(*month);
        click(*day);
        EXPECT_EQ(day->selectionLength(), 2);
    }
    warranty().cmbPMonth.setText({});
    EXPECT_EQ(warranty().cmbPDay.listCount(), 31);
    EXPECT_EQ(warranty().cmbPDay.text(), "");
}

TEST_F(Warranty, DatesAreOnlyPickedAndTheirBoxesSwallowEveryOtherKey)
{
    pick(warranty().cmbPMonth, "Jan");
    pick(warranty().cmbPDay, "5");
    pick(warranty().cmbPYear, "2030");
    for (forms::ComboBox* box : {&warranty().cmbPMonth, &warranty().cmbPDay, &warranty().cmbPYear}) {
        box->setFocus();
        type("7a");
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F1, Qt::Key_PageDown, Qt::Key_F4})
            press(key);
        paste("9");
        EXPECT_EQ(partsDate(), "Jan 5 2030") << qPrintable(box->name());
        EXPECT_FALSE(openedHelp()) << qPrintable(box->name());
    }
    warranty().cmbPYear.setSelectionStart(1);
    press(Qt::Key_A);
    EXPECT_EQ(warranty().cmbPYear.selectionLength(), 4);
    press(Qt::Key_Up);
    EXPECT_EQ(warranty().cmbPYear.text(), "2029");
    warranty().cmbPMonth.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(partsDate(), "Feb  2029");
    warranty().txtPCover.setFocus();
    press(Qt::Key_F1);
    EXPECT_EQ(openedHelp(), 6001);
}

TEST_F(Warranty, TextsHaveTheirLimitsAndAreSelectedByAClick)
{
    click(warranty().cmdCancel);
    stored(2, Inventory::ID);
    put(Data1.rsInventory, {{Inventory::PartsCoverage, "100"}, {Inventory::WarrantyDescription, "Terms"}});
    open();
    click(warranty().txtPCover);
    EXPECT_EQ(scene(), "9 frmWar: txtPCover [100]");
    type("9876");
    click(warranty().txtDescription);
    EXPECT_EQ(scene(), "9 frmWar: txtDescription [Terms]");
    paste(QString(300, u'x'));
    type(warranty().cmbLabor, "x");
    warranty().cmbLabor.selectAll();
    paste(QString(300, u'x'));
    EXPECT_EQ(warranty().cmbLabor.text().size(), 255);
    press(Qt::Key_Backspace);
    click(warranty().txtName);
    type("Other");
    EXPECT_EQ(warranty().txtPCover.text(), "987");
    EXPECT_EQ(warranty().txtDescription.text().size(), 254);
    EXPECT_EQ(warranty().cmbLabor.text().size(), 254);
    EXPECT_EQ(warranty().txtName.text(), "Antique Desk");
}

TEST_F(Warranty, CalendarFillsTheDateOfItsSideAndHoldsTheButtonsMeanwhile)
{
    const auto expectShown = [](int month, int day, int year) {
        const auto& shown = screen<frmCalendar>().calDate;
        EXPECT_TRUE(shown.Month() == month && shown.Day() == day && shown.Year() == year) << month << '/' << day;
    };
    pick(warranty().cmbPMonth, "Jan"); // incomplete: today
    whileModal([&] {
        expectShown(11, 24, 2026);
        expectButtons(false);
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        EXPECT_EQ(frmStartup::CurrentScreen, 9);
    });
    click(warranty().picPDate);
    expectButtons(true);
    EXPECT_EQ(partsDate(), "Nov 25 2026");
    EXPECT_EQ(warranty().cmbPDay.listCount(), 30);

    pick(warranty().cmbPDay, "30");
    pick(warranty().cmbLMonth, "Feb");
    pick(warranty().cmbLDay, "29");
    pick(warranty().cmbLYear, "2007");
    whileModal([&] {
        expectShown(2, 28, 2007); // there is no 29th
        press(Qt::Key_Return);
    });
    click(warranty().picLDate);
    EXPECT_EQ(laborDate(), "Feb 28 2007");
    whileModal([&] {
        expectShown(11, 30, 2026); // not cut to the February before
        press(Qt::Key_Right);
        press(Qt::Key_Space);
    });
    clickTold(warranty().picPDate, "Are You Sure You Want To Close The Calendar?", Question, Answer::Yes);
    expectButtons(true);
    EXPECT_EQ(partsDate(), "Nov 30 2026");
    EXPECT_EQ(frmStartup::CurrentScreen, 9);
}

TEST_F(Warranty, OfAnAssetThatIsGoneKeepsWhatWasShownAndSavesSilently)
{
    type(warranty().txtPCover, "50");
    stored(2, Inventory::ID);
    Data1.rsInventory.Delete();
    click(warranty().cmdSave);
    EXPECT_EQ(forms::activeForm(), &warranty());
    click(warranty().cmdCancel); // asks nothing
    EXPECT_EQ(forms::activeForm(), &asset());
    open();
    EXPECT_EQ(warranty().txtPCover.text(), "50");
    EXPECT_EQ(terms(1), Nothing);
}

TEST_F(Warranty, ThatTheFileRefusesIsReportedWithTheRowWhole)
{
    type(warranty().txtPCover, "50");
    type(warranty().txtDescription, "Terms");
    refuseWrites("UPDATE", "Inventory");
    click(warranty().cmdSave);
    EXPECT_EQ(failedHandler(), "frmWar.cmdSave_Click");
    reopenData();
    EXPECT_EQ(terms(), Nothing);
}

// ---- behind a save

class WarrantyBehindASave : public AssetScreenTest {
protected:
    WarrantyBehindASave()
    {
        openToAdd();
        setClearBox(true);
        if (asset().chkWar.value() == 0)
            click(asset().chkWar);
        fillIn();
    }
};

TEST_F(WarrantyBehindASave, OpensOnTheNewAssetAndComesBackToTheNextOne)
{
    save();
    auto& warranty = screen<frmWar>();
    EXPECT_EQ(scene(), "9 frmWar: cmbParts");
    EXPECT_EQ(warranty.txtName.text(), "Antique Desk");
    type(warranty.txtLCover, "80");
    clickTold(warranty.cmdSave, Saved, Information);
    EXPECT_EQ(stored(Inventory::LaborCoverage), "80");
    EXPECT_EQ(forms::activeForm(), &asset());
    EXPECT_EQ(asset().cmbLoc.text(), "");
    EXPECT_TRUE(asset().cmdAdd.isEnabled());

    click(asset().chkWar);
    fillIn();
    save();
    EXPECT_EQ(scene(), "10 frmAddUpDel: cmbLoc");
}

TEST_F(WarrantyBehindASave, OfAnAssetNumberBeyondSixteenBitsIsRefusedWithTheRowStored)
{
    storage::execute(Data1.Home.handle(), "INSERT INTO sqlite_sequence (name, seq) VALUES ('Inventory', 32767)");
    expectBox(Added, Information);
    save(BadDate, Exclamation);
    EXPECT_EQ(forms::activeForm(), &asset());
    EXPECT_EQ(stored(Inventory::ID), "32768");
    EXPECT_EQ(inventory(), "1: $1,234.50");
}

} // namespace
