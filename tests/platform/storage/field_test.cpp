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
