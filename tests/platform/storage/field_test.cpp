// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

using values::Currency;
using values::FailureKind;

namespace {

class FieldTest : public StorageTest {
protected:
    void SetUp() override
    {
        StorageTest::SetUp();
        thingsView.Open();
        thingsView.AddNew();
    }

    storage::Field field(int column) { return thingsView.Fields(column); }

    // Stores the row and reads it back from the file.
    void store()
    {
        thingsView.Update();
        thingsView.Close();
        thingsView.Open();
    }
};

} // namespace

TEST_F(FieldTest, NumbersAndMoneyComeBackExactlyAndWhatIsNoneIsRefusedAtThePut)
{
    const Currency amount = Currency::fromTenThousandths(-12'345'678);
    field(things::Price) = "$1,234.5";
    field(things::Total) = amount;
    field(things::Count) = "-3";
    for (const char* text : {"", "$1/2.00", "None", "1.2.3", "$"}) {
        for (const int column : {things::Price, things::Total, things::Count})
            EXPECT_EQ(failureOf([&] { field(column) = text; }), FailureKind::TypeMismatch) << text << " in " << column;
    }
    EXPECT_EQ(failureOf([this] { field(things::Name).integer(); }), FailureKind::TypeMismatch);
    store();
    EXPECT_EQ(field(things::Price), "$1,234.5") << "kept as it was given";
    EXPECT_EQ(field(things::Total).currency(), amount);
    EXPECT_EQ(field(things::Total), "($1,234.57)");
    EXPECT_TRUE(field(things::Count) == -3 && field(things::Count) == "-3");
}

TEST_F(FieldTest, IsComparedWithoutRegardToCaseInAllOfUnicode)
{
    using storage::FoldedText;
    const struct {
        const char* stored;
        const char* asked;
        bool equal;
        bool contained;
    } cases[] = {{"Oak Desk", "oak dESK", true, true}, {"Oak Desk", "K D", false, true}, {"oak", "oak ", false, false},
        {"stra\u00dfe", "STRASSE", true, true}, {"\u00c9tag\u00e8re {|}", "tag\u00c8RE {", false, true},
        {"z{", "Z[", false, false}, {"Oak", "", false, true}, {"", "", true, false}, {"", "a", false, false}};
    for (const auto& [stored, asked, equal, contained] : cases) {
        field(things::Name) = stored;
        for (int again = 0; again < 2; ++again) {
            EXPECT_EQ(field(things::Name).equals(FoldedText(asked)), equal) << stored << " " << asked;
            EXPECT_EQ(field(things::Name).contains(FoldedText(asked)), contained) << stored << " " << asked;
        }
        EXPECT_EQ(field(things::Name), stored) << "and is as it was";
    }
    field(things::Total) = "1234.5";
    EXPECT_TRUE(field(things::Total).contains(FoldedText(",234.")));
    EXPECT_TRUE(field(things::Total).equals(FoldedText("$1,234.50")));
}
