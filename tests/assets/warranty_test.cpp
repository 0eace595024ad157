// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"
#include "assets/frmWar.h"
#include "core/frmCalendar.h"
#include "core/frmStartup.h"

using forms::Answer;
using forms::screen;

namespace {

const char* const Saved = "Your Warranty Information Has Been Saved!";
const char* const LoseQuestion = "Changes To Warranty Information Will Be Lost...Continue?";
const char* const MonthFirst = "          Please Select A Month First!";
const char* const CloseQuestion = "Are You Sure You Want To Close The Calendar?";

// The warranty screen on the second of two new assets.
class Warranty : public AssetScreenTest {
protected:
    void SetUp() override
    {
        AssetScreenTest::SetUp();
        openToAdd();
        if (asset().chkClear.value() == 1)
            click(asset().chkClear);
        fillIn();
        save();
        save();
        leaveToMainMenu();
        openFound("2");
    }

    static frmWar& warranty() { return screen<frmWar>(); }

    static void open() { click(asset().cmdWarranty); }

    void saveWarranty()
    {
        expectBox(Saved, Information);
        click(warranty().cmdSave);
        EXPECT_EQ(forms::activeForm(), &asset());
    }

    // In the order of the columns.
    static QStringList terms(int id = 2)
    {
        QStringList texts;
        for (int column = Inventory::PartsType; column <= Inventory::WarrantyDescription; ++column)
            texts.append(stored(id, static_cast<Inventory::Column>(column)));
        return texts;
    }

    static void store(Inventory::Column column, const QString& text)
    {
        stored(2, column);
        Data1.rsInventory.Fields(column) = text;
        Data1.rsInventory.Update();
    }

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

const QStringList Nothing(13, "None");

TEST_F(Warranty, OfANewAssetShowsItsTypesAndNothingElseAndIsSavedAsItWas)
{
    open();
    EXPECT_EQ(frmStartup::CurrentScreen, 9);
    EXPECT_EQ(screen<frmCalendar>().DateTarget, 1);
    EXPECT_FALSE(asset().isVisible());
    EXPECT_EQ(warranty().txtName.text(), "Antique Desk");
    EXPECT_EQ(warranty().cmbParts.text() + warranty().cmbLabor.text(), "NoneNone");
    for (const forms::Control* control : warranty().controls()) {
        const auto* box = dynamic_cast<const forms::TextEntry*>(control);
        if (box && box != &warranty().txtName && box != &warranty().cmbParts && box != &warranty().cmbLabor) {
            EXPECT_EQ(box->text(), "") << qPrintable(box->name());
        }
    }
    saveWarranty();
    EXPECT_EQ(terms(), Nothing);

    open();
    click(warranty().cmdCancel); // asks nothing
    EXPECT_EQ(forms::activeForm(), &asset());
}

TEST_F(Warranty, IsFilledInTabOrderAndComesBackWithAmountsAsMoney)
{
    open();
    EXPECT_EQ(warranty().activeControl(), &warranty().cmbParts);
    const auto fill = [](const QString& type_, const QString& month) {
        auto& box = *dynamic_cast<forms::ComboBox*>(warranty().activeControl());
        pick(box, type_);
        EXPECT_EQ(box.selectionLength(), type_.size());
        tab();
        type("1234x5");
        tab();
        type("-7/5%.5"); // "75."
        tab();
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
    EXPECT_EQ(terms(),
        QStringList({"Limited", "75.", "$12345.00", "Apr", "2", "2005", "Lifetime", "75.", "$12345.00", "Feb", "2",
            "2005", "Only with\nreceipt"}));
    EXPECT_EQ(terms(1), Nothing);

    openFound("1");
    open();
    openFound("2");
    open();
    EXPECT_EQ(warranty().txtPAmt.text(), "$12,345.00");
    EXPECT_EQ(date(warranty().cmbLMonth, warranty().cmbLDay, warranty().cmbLYear), "Feb 2 2005");
    EXPECT_EQ(warranty().cmbLDay.listCount(), 29);
    expectBox(LoseQuestion, Question, Answer::No);
    click(warranty().cmdCancel); // the amount is stored in another form
    EXPECT_TRUE(warranty().isVisible());
    saveWarranty();
    open();
    closeBox(warranty());
    EXPECT_EQ(forms::activeForm(), &asset());
}

TEST_F(Warranty, EmptyTypeIsStoredAsUnknownAndCountsAsAChangeEverAfter)
{
    open();
    click(warranty().cmbParts);
    warranty().cmbParts.selectAll();
    press(Qt::Key_Delete);
    type(warranty().txtPAmt, "1/2");
    expectBox(Saved, Information);
    press(Qt::Key_Return); // the amount has not been left, so it is stored as it stands
    EXPECT_EQ(terms().at(0) + terms().at(2), "Unknown$1/2");

    open();
    EXPECT_EQ(warranty().txtPAmt.text(), "$1/2");
    warranty().cmbParts.setFocus();
    warranty().cmbParts.selectAll();
    press(Qt::Key_Delete);
    expectBox(LoseQuestion, Question, Answer::Yes);
    closeBox(warranty());
    EXPECT_EQ(forms::activeForm(), &asset());
    EXPECT_EQ(terms().at(0), "Unknown");
}

TEST_F(Warranty, DaysFollowTheMonthAndAreNotPickedWithoutOne)
{
    open();
    for (const auto& [month, day] : {std::pair(&warranty().cmbPMonth, &warranty().cmbPDay),
             std::pair(&warranty().cmbLMonth, &warranty().cmbLDay)}) {
        expectBox(MonthFirst, Information);
        click(*day);
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
    forms::ComboBox& day = warranty().cmbPDay;
    warranty().cmbPMonth.setText({});
    EXPECT_EQ(day.listCount(), 31);
    EXPECT_EQ(day.text(), "");
}

TEST_F(Warranty, DatesAreOnlyPickedAndTheirBoxesSwallowEveryOtherKey)
{
    open();
    pick(warranty().cmbPMonth, "Jan");
    pick(warranty().cmbPDay, "5");
    pick(warranty().cmbPYear, "2030");
    for (forms::ComboBox* box : {&warranty().cmbPMonth, &warranty().cmbPDay, &warranty().cmbPYear}) {
        const QString text = box->text();
        box->setFocus();
        type("7a");
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_F1, Qt::Key_PageDown, Qt::Key_F4})
            press(key);
        paste("9");
        EXPECT_EQ(box->text(), text) << qPrintable(box->name());
        EXPECT_FALSE(openedHelp()) << qPrintable(box->name());
    }
    warranty().cmbPYear.setSelectionStart(1);
    press(Qt::Key_A);
    EXPECT_EQ(warranty().cmbPYear.selectionLength(), 4);
    press(Qt::Key_Up);
    EXPECT_EQ(warranty().cmbPYear.text(), "2029");
    warranty().cmbPMonth.setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(date(warranty().cmbPMonth, warranty().cmbPDay, warranty().cmbPYear), "Feb  2029");
    warranty().txtPCover.setFocus();
    press(Qt::Key_F1);
    EXPECT_EQ(openedHelp(), 6001);
}

TEST_F(Warranty, TextsHaveTheirLimitsAndAreSelectedByAClick)
{
    store(Inventory::PartsCoverage, "100");
    store(Inventory::WarrantyDescription, "Terms");
    open();
    click(warranty().txtPCover);
    EXPECT_EQ(warranty().txtPCover.selectionLength(), 3);
    type("9876");
    EXPECT_EQ(warranty().txtPCover.text(), "987");
    click(warranty().txtDescription);
    EXPECT_EQ(warranty().txtDescription.selectionLength(), 5);
    paste(QString(300, u'x'));
    EXPECT_EQ(warranty().txtDescription.text().size(), 254);
    type(warranty().cmbLabor, "x");
    warranty().cmbLabor.selectAll();
    paste(QString(300, u'x'));
    EXPECT_EQ(warranty().cmbLabor.text().size(), 255);
    press(Qt::Key_Backspace);
    EXPECT_EQ(warranty().cmbLabor.text().size(), 254);
    click(warranty().txtName);
    type("Other");
    EXPECT_EQ(warranty().txtName.text(), "Antique Desk");
}

TEST_F(Warranty, CalendarFillsTheDateOfItsSideAndHoldsTheButtonsMeanwhile)
{
    auto& calendar = screen<frmCalendar>();
    const auto shown = [&calendar] {
        return QStringLiteral("%1/%2/%3")
            .arg(calendar.calDate.Month())
            .arg(calendar.calDate.Day())
            .arg(calendar.calDate.Year());
    };
    open();
    pick(warranty().cmbPMonth, "Jan"); // incomplete: today
    whileModal([&] {
        EXPECT_EQ(shown(), "11/24/2026");
        expectButtons(false);
        press(Qt::Key_Right);
        press(Qt::Key_Return);
        EXPECT_EQ(frmStartup::CurrentScreen, 9);
    });
    click(warranty().picPDate);
    expectButtons(true);
    EXPECT_EQ(date(warranty().cmbPMonth, warranty().cmbPDay, warranty().cmbPYear), "Nov 25 2026");
    EXPECT_EQ(warranty().cmbPDay.listCount(), 30);

    pick(warranty().cmbPDay, "30");
    pick(warranty().cmbLMonth, "Feb");
    pick(warranty().cmbLDay, "29");
    pick(warranty().cmbLYear, "2007");
    whileModal([&] {
        EXPECT_EQ(shown(), "2/28/2007"); // there is no 29th
        press(Qt::Key_Return);
    });
    click(warranty().picLDate);
    EXPECT_EQ(date(warranty().cmbLMonth, warranty().cmbLDay, warranty().cmbLYear), "Feb 28 2007");
    expectBox(CloseQuestion, Question, Answer::Yes);
    whileModal([&] {
        EXPECT_EQ(shown(), "11/30/2026"); // not cut to the February before
        press(Qt::Key_Right);
        press(Qt::Key_Space);
    });
    click(warranty().picPDate);
    expectButtons(true);
    EXPECT_EQ(date(warranty().cmbPMonth, warranty().cmbPDay, warranty().cmbPYear), "Nov 30 2026");
    EXPECT_EQ(frmStartup::CurrentScreen, 9);
}

TEST_F(Warranty, OfAnAssetThatIsGoneKeepsWhatWasShownAndSavesSilently)
{
    open();
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
    open();
    type(warranty().txtPCover, "50");
    type(warranty().txtDescription, "Terms");
    refuseWrites("UPDATE", "Inventory");
    click(warranty().cmdSave);
    EXPECT_EQ(reportedFailure().value().handler, "frmWar.cmdSave_Click");
    closeData();
    openData();
    EXPECT_EQ(terms(), Nothing);
}

// ---- behind a save

class WarrantyBehindASave : public AssetScreenTest {
protected:
    void SetUp() override
    {
        AssetScreenTest::SetUp();
        openToAdd();
        for (forms::CheckBox* box : {&asset().chkClear, &asset().chkWar})
            if (box->value() == 0)
                click(*box);
        fillIn();
    }
};

TEST_F(WarrantyBehindASave, OpensOnTheNewAssetAndComesBackToTheNextOne)
{
    save();
    auto& warranty = screen<frmWar>();
    EXPECT_EQ(forms::activeForm(), &warranty);
    EXPECT_FALSE(asset().isVisible());
    EXPECT_EQ(warranty.txtName.text(), "Antique Desk");
    type(warranty.txtLCover, "80");
    expectBox(Saved, Information);
    click(warranty.cmdSave);
    EXPECT_EQ(stored(Inventory::LaborCoverage), "80");
    EXPECT_EQ(forms::activeForm(), &asset());
    EXPECT_EQ(asset().cmbLoc.text(), "");
    EXPECT_TRUE(asset().cmdAdd.isEnabled());

    click(asset().chkWar);
    fillIn();
    save();
    EXPECT_EQ(forms::activeForm(), &asset());
    EXPECT_EQ(asset().activeControl(), &asset().cmbLoc);
}

TEST_F(WarrantyBehindASave, OfAnAssetNumberBeyondSixteenBitsIsRefusedWithTheRowStored)
{
    storage::execute(Data1.Home.handle(), "INSERT INTO sqlite_sequence (name, seq) VALUES ('Inventory', 32767)");
    expectBox(Added, Information);
    save(BadDate, Exclamation);
    EXPECT_EQ(forms::activeForm(), &asset());
    EXPECT_EQ(stored(Inventory::ID), "32768");
    EXPECT_EQ(assetValue().toText(), "$1,234.50");
}

} // namespace
