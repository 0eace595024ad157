// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

namespace {

using AssetSaving = AssetScreenTest;

TEST_F(AssetSaving, WritesEveryColumnAsItWasTypedAndAddsThePriceToTheTotal)
{
    const QString make = QString::fromUtf8("\U0001F6B2\U0001F468\u200D\U0001F469\u200D\U0001F467 שלום עולם");
    const QString serial = QString::fromUtf8("e\u0301 ﷽  ' \" ; -- % _  ");
    addDesks({"$10.00"});
    openToAdd();
    fillIn();
    fillInTheRest();
    const std::pair<forms::TextEntry&, QString> pasted[] = {
        {asset().txtMake, make}, {asset().txtMod, QString(1'000'000, u'ß')}, {asset().txtSerial, serial}};
    for (const auto& [field, text] : pasted) {
        retype(field, {});
        paste(text);
    }
    save();
    reopenData();
    EXPECT_EQ(row(2),
        "Indoor|Library|Antiques|Antique Desk|1890|" + make + '|' + QString(49, u'ß') + '|' + serial
            + "|11/24/2026|$1234.50|Yes|Desk drawer|Oak\nold|Used|None");
    EXPECT_EQ(line(newest(Inventory::WarrantyDescription), inventory()), "None, 2: $1,244.50");
}

TEST_F(AssetSaving, KeepsTheScreenForASimilarAssetAndLearnsNewNamesWithTheOldOnesOfTheirRow)
{
    openToAdd("Mobile");
    const int known = Data1.rsMobile.RecordCount();
    click(asset().chkClear);
    fillIn("Car", "Aircraft", "drone", "10"); // known in another spelling, in other rows
    save();
    EXPECT_EQ(line(asset().cmbLoc.text(), asset().txtPPrice.text(), scene()), "Car, $10.00, 10 frmAddUpDel: cmbLoc");
    save();
    EXPECT_EQ(line(inventory(), Data1.rsMobile.RecordCount()), line("2: $20.00", known));
    retype(asset().cmbType, "Zeppelin");
    save();
    EXPECT_EQ(
        rowsOf(Data1.rsMobile, Names::Location, Names::Standard).mid(known), QStringList("Car|Aircraft|Zeppelin|0"));
}

TEST_F(AssetSaving, IndoorAloneIsClearedBeforeTheUserIsToldOfAnAssetWithANewName)
{
    for (const QString area : {"Indoor", "Outdoor", "Mobile"}) {
        openToAdd(area);
        fillIn(asset().cmbLoc.list(1), asset().cmbCat.list(1), "Never Seen");
        QString whenTold = "nothing";
        forms::setMessageDoor([&whenTold](const forms::Message&) {
            whenTold = asset().cmbType.text();
            return Answer::OK;
        });
        click(asset().cmdAdd);
        EXPECT_EQ(line(whenTold, contents(asset()).section(", ", 1, 3)),
            line(area == "Indoor" ? "" : "Never Seen", "cmbLoc=, cmbCat=, cmbType="));
        asset().hide();
    }
}

TEST_F(AssetSaving, SettlesTheReceiptLocation)
{
    const std::tuple<bool, QString, const char*> cases[] = {
        {false, "nOnE", "Yes None"},
        {false, "", "Yes Unknown"}, // left empty
        {true, "Desk", "Yes Not Specified"}, // "No" was stepped on last
        {false, "\n", "Yes Not Specified"}, // Enter in the box itself, which has not been left
        {true, "\n", "Yes None"},
    };
    openToAdd();
    click(asset().chkClear);
    fillIn();
    for (const auto& [overNo, typed, location] : cases) {
        click(asset().optRecOnFile[overNo ? 1 : 0]);
        click(asset().txtLoc);
        expectBox(Added, Information);
        type(typed);
        if (typed != "\n")
            click(asset().cmdAdd);
        EXPECT_EQ(newest(Inventory::Receipt) + " " + newest(Inventory::ReceiptLocation), location)
            << overNo << typed.toStdString();
    }
}

class AssetRefusals : public AssetScreenTest {
protected:
    AssetRefusals()
    {
        openToAdd();
        fillIn();
    }

    // A refusal leads to its field, where this text stands by then, and nothing is saved.
    void expectRefused(const QString& message, const forms::TextEntry& field, const QString& text)
    {
        save(message, Exclamation);
        EXPECT_EQ(asset().activeControl(), &field) << message.toStdString();
        EXPECT_EQ(line(field.text(), inventory()), line(text, "0: $0.00")) << message.toStdString();
    }
};

// All fields are wrong at first; each is changed after its refusal, to what is right at last.
TEST_F(AssetRefusals, ComeInTheOrderOfTheFieldsAndAnswerToEachOddText)
{
    const QString noLocation = "The Location Of The Asset Must Be Selected Before Saving!";
    const QString noCategory = "The Category Of The Asset Must Be Selected Before Saving!";
    const QString missing = "The %1 Of The Asset Must Be Entered Before Saving";
    const QString typeUnknown = "If Unavailable Please Type \"Unknown\"";
    const QString location = "< Add/Edit Location >", category = "< Add/Edit Category >";
    const std::tuple<forms::TextEntry&, QString, QString, QString> steps[] = {
        {asset().cmbLoc, "", noLocation, location},
        {asset().cmbLoc, location, noLocation, "Library"},
        {asset().cmbCat, "", noCategory, category},
        {asset().cmbCat, category, noCategory, "Antiques"},
        {asset().cmbType, "", "An Item Must Be Selected Before Saving Asset!", "< Add/Edit Item >"}, // is a name
        {asset().cmbYear, "2005", "The Year The Asset Was Made Must Be Entered Before Saving!", "1999"},
        {asset().txtMake, "Unknown", missing.arg("Make") + "!  " + typeUnknown, "A"},
        {asset().txtMod, "Unknown", missing.arg("Model") + "!  " + typeUnknown, "B"},
        {asset().txtSerial, "Unknown", missing.arg("Serial Number") + "..." + typeUnknown, "C"},
        {asset().txtPur, "MM/DD/YYYY", missing.arg("Purchase Date") + "!", "2/30/2006"},
        {asset().txtPur, "2/30/2006", BadDate, "dd/mm/yyyy"},
        {asset().txtPur, "dd/mm/yyyy", BadDate, "11/25/2026"},
        {asset().txtPur, "11/25/2026", "The Purchase Date Can Not Be A Future Date!", "24/11/2026"}, // turned round
        {asset().txtPPrice, "", NoPrice, "$.00"},
        {asset().txtPPrice, "$.00", NoPrice, "$0.00"},
    };
    asset().cmdMain.setFocus();
    for (const auto& [field, text, message, next] : steps)
        field.setText({});
    asset().txtPur.setText("MM/DD/YYYY");
    for (const auto& [field, text, message, next] : steps) {
        expectRefused(message, field, text);
        field.setText(next);
    }
    save();
    EXPECT_EQ(row(1).section('|', 0, 9), "Indoor|Library|Antiques|< Add/Edit Item >|1999|A|B|C|24/11/2026|$0.00");
}

TEST_F(AssetRefusals, AnAmountThatIsNoneLeavesNothingBehindButWhatWasTyped)
{
    enterPrice("1/2");
    expectRefused(BadDate, asset().txtPur, "11/24/2026");
    EXPECT_EQ(line(asset().txtPPrice.text(), asset().cmbType.text()), "$1/2.00, Antique Desk");
    enterPrice("2");
    asset().optPurNewUsed[0].setValue(false);
    asset().txtDescription.setText({});
    expectBox("Please Indicate How The Asset Was Purchased...New or Used.", Exclamation);
    save(); // which the question doesn't stop
    reopenData();
    EXPECT_EQ(line(inventory(), row(1).section('|', 9)), "1: $2.00, $2.00|No|None||Used|None");
}

} // namespace
