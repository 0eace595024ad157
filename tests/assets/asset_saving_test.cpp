// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/asset_screen.h"

using forms::Answer;

namespace {

using AssetSaving = AssetScreenTest;

TEST_F(AssetSaving, WritesEveryColumnAndAddsThePriceToTheTotal)
{
    addDesks({"$10.00"});
    openToAdd();
    fillIn();
    fillInTheRest();
    save();
    EXPECT_EQ(row(2),
        "Indoor|Library|Antiques|Antique Desk|1890|Acme|M 2|S-3|11/24/2026|$1234.50|Yes|Desk "
        "drawer|Oak\nold|Used|None");
    EXPECT_EQ(stored(Inventory::WarrantyDescription) + inventory(), "None2: $1,244.50");
}

TEST_F(AssetSaving, ComesBackFromTheFileAsItWasTyped)
{
    QStringList texts;
    for (const char* text :
        {"\U0001F6B2\U0001F468\u200D\U0001F469\u200D\U0001F467", "שלום עולם", "e\u0301 ﷽", "  ' \" ; -- % _  "})
        texts.append(QString::fromUtf8(text));
    openToAdd();
    setClearBox(false);
    fillIn();
    for (const QString& text : texts) {
        asset().txtMake.setFocus();
        paste(text);
        save();
    }
    asset().txtMod.setFocus();
    paste(QString(1'000'000, u'ß'));
    save();
    reopenData();
    EXPECT_EQ(columnOf(Data1.rsInventory, Inventory::Make), texts + QStringList(texts.last()));
    EXPECT_EQ(stored(Inventory::Model), QString(49, u'ß'));
}

TEST_F(AssetSaving, KeepsTheScreenForASimilarAssetOrClearsItAndLearnsNewNamesWithTheOldOnesOfTheirRow)
{
    openToAdd("Mobile");
    const int known = Data1.rsMobile.RecordCount();
    setClearBox(false);
    fillIn("Car", "Aircraft", "drone", "10"); // known in another spelling, in other rows
    save();
    EXPECT_EQ(asset().cmbLoc.text() + asset().txtPPrice.text() + scene(), "Car$10.0010 frmAddUpDel: cmbLoc");
    save();
    EXPECT_EQ(inventory(), "2: $20.00");
    EXPECT_EQ(Data1.rsMobile.RecordCount(), known);
    retype(asset().cmbType, "Zeppelin");
    setClearBox(true);
    save();
    EXPECT_EQ(asset().cmbLoc.text() + asset().txtPPrice.text(), "");
    QStringList learned;
    for (const auto column : {Names::Location, Names::Category, Names::Type, Names::Standard})
        learned += columnOf(Data1.rsMobile, column).mid(known);
    EXPECT_EQ(learned, QStringList({"Car", "Aircraft", "Zeppelin", "0"}));
}

TEST_F(AssetSaving, IndoorAloneIsClearedBeforeTheUserIsToldOfAnAssetWithANewName)
{
    for (const QString area : {"Indoor", "Outdoor", "Mobile"}) {
        openToAdd(area);
        setClearBox(true);
        fillIn(asset().cmbLoc.list(1), asset().cmbCat.list(1), "Never Seen");
        QString whenTold = "nothing";
        forms::setMessageDoor([&whenTold](const forms::Message&) {
            whenTold = asset().cmbType.text();
            return Answer::OK;
        });
        click(asset().cmdAdd);
        EXPECT_EQ(whenTold, area == "Indoor" ? "" : "Never Seen") << area.toStdString();
        EXPECT_EQ(asset().cmbType.text(), "");
        asset().hide();
    }
}

TEST_F(AssetSaving, SettlesTheReceiptLocation)
{
    enum Choice { Yes, No, NoThenLocation };
    const std::tuple<Choice, const char*, bool, const char*> cases[] = {
        {Yes, "nOnE", false, "Yes None"},
        {Yes, "Desk", false, "Yes Desk"},
        {Yes, "", false, "Yes Unknown"}, // left empty
        {No, "", false, "No None"},
        {NoThenLocation, "Desk", false, "Yes Not Specified"}, // "No" was stepped on last
        {Yes, "", true, "Yes Not Specified"}, // by Enter in the box itself: it has not been left
        {NoThenLocation, "", true, "Yes None"},
    };
    openToAdd();
    setClearBox(false);
    fillIn();
    for (const auto& [choice, typed, byEnter, location] : cases) {
        click(asset().optRecOnFile[choice == Yes ? 0 : 1]);
        if (choice == NoThenLocation)
            click(asset().txtLoc);
        type(typed);
        expectBox(Added, Information);
        if (byEnter)
            press(Qt::Key_Return);
        else
            click(asset().cmdAdd);
        EXPECT_EQ(stored(Inventory::Receipt) + " " + stored(Inventory::ReceiptLocation), location) << typed;
    }
}

const char* const NoLocation = "The Location Of The Asset Must Be Selected Before Saving!";
const char* const NoCategory = "The Category Of The Asset Must Be Selected Before Saving!";

class AssetRefusals : public AssetScreenTest {
protected:
    AssetRefusals()
    {
        openToAdd();
        fillIn();
    }

    struct Step {
        forms::TextEntry& field;
        const char* wrong;
        QString message;
        const char* right;
    };

    // A refusal leads to its field and leaves its text, an empty one with its default.
    void expectRefused(const Step& step, const QString& left)
    {
        save(step.message, Exclamation);
        EXPECT_EQ(asset().activeControl(), &step.field) << step.message.toStdString();
        EXPECT_EQ(step.field.text() + ", " + inventory(), left + ", 0: $0.00") << step.message.toStdString();
        step.field.setText(step.right);
    }
};

// All fields are wrong at first; each is put right after its refusal.
TEST_F(AssetRefusals, ComeInTheOrderOfTheFields)
{
    const QString orUnknown = "  If Unavailable Please Type \"Unknown\"";
    const std::pair<Step, const char*> steps[] = {
        {{asset().cmbLoc, "", NoLocation, "Library"}, ""},
        {{asset().cmbCat, "", NoCategory, "Antiques"}, ""},
        {{asset().cmbType, "", "An Item Must Be Selected Before Saving Asset!", "Antique Desk"}, ""},
        {{asset().cmbYear, "", "The Year The Asset Was Made Must Be Entered Before Saving!", "2005"}, "2005"},
        {{asset().txtMake, "", "The Make Of The Asset Must Be Entered Before Saving!" + orUnknown, "A"}, "Unknown"},
        {{asset().txtMod, "", "The Model Of The Asset Must Be Entered Before Saving!" + orUnknown, "B"}, "Unknown"},
        {{asset().txtSerial, "",
             "The Serial Number Of The Asset Must Be Entered Before Saving...If Unavailable Please Type \"Unknown\"",
             "C"},
            "Unknown"},
        {{asset().txtPur, "MM/DD/YYYY", "The Purchase Date Of The Asset Must Be Entered Before Saving!", "11/24/2026"},
            "MM/DD/YYYY"},
        {{asset().txtPPrice, "$.00", NoPrice, "$1.00"}, "$.00"},
    };
    asset().cmdMain.setFocus();
    for (const auto& [step, left] : steps)
        step.field.setText(step.wrong);
    for (const auto& [step, left] : steps)
        expectRefused(step, left);
    save();
    EXPECT_EQ(inventory(), "1: $1.00");
}

TEST_F(AssetRefusals, AnswerToEachOddText)
{
    const Step steps[] = {
        {asset().cmbLoc, "< Add/Edit Location >", NoLocation, "Library"},
        {asset().cmbCat, "< Add/Edit Category >", NoCategory, "Antiques"},
        {asset().txtPur, "2/30/2006", BadDate, "24/11/2026"},
        {asset().txtPur, "dd/mm/yyyy", BadDate, "24/11/2026"},
        {asset().txtPPrice, "", NoPrice, "$0.00"},
        {asset().txtPur, "11/25/2026", "The Purchase Date Can Not Be A Future Date!", "24/11/2026"},
    };
    asset().cmbLoc.setFocus(); // a price that is left empty takes its empty state
    asset().txtPPrice.setText({}); // a date that is none ends the check before the price is looked at
    asset().cmbType.setText("< Add/Edit Item >");
    for (const Step& step : steps) {
        step.field.setText(step.wrong);
        expectRefused(step, step.wrong);
    }
    save(); // the marker of items alone is a name; day and month change places where they must
    EXPECT_EQ(row(1).section('|', 3, 9), "< Add/Edit Item >|2026|Unknown|Unknown|Unknown|24/11/2026|$0.00");
}

TEST_F(AssetRefusals, AnAmountThatIsNoneLeavesNothingBehindButWhatWasTyped)
{
    enterPrice("1/2");
    expectRefused({asset().txtPur, "", BadDate, "11/24/2026"}, "11/24/2026");
    EXPECT_EQ(asset().txtPPrice.text() + asset().cmbType.text(), "$1/2.00Antique Desk");
    asset().txtPPrice.setFocus();
    type("2");
    asset().optPurNewUsed[0].setValue(false);
    asset().txtDescription.setText({});
    expectBox("Please Indicate How The Asset Was Purchased...New or Used.", Exclamation);
    save(); // which the question doesn't stop
    reopenData();
    EXPECT_EQ(inventory() + " " + stored(Inventory::Amount), "1: $2.00 $2.00");
    EXPECT_EQ(stored(Inventory::Purchased) + stored(Inventory::Description), "Used");
}

} // namespace
