// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

using values::Currency;
using values::FailureKind;

namespace {

class TableViewTest : public StorageTest {
protected:
    void open(const QStringList& words)
    {
        wordsView.Open();
        for (const QString& word : words)
            addWord(wordsView, word);
        if (!words.isEmpty())
            wordsView.MoveFirst();
    }

    QString current() { return wordsView.Fields(words::Word).text(); }
};

class FieldTest : public StorageTest {
protected:
    FieldTest()
    {
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

class StagingTest : public StorageTest {
protected:
    void stageRow(const QString& name)
    {
        stageView.AddNew();
        stageView.Fields(stage::Name) = name;
        stageView.Update();
    }

    // Read from a copy: the file itself is kept to its one connection.
    QStringList stagedInFile() const
    {
        const QString copy = folder.filePath("copy.db");
        QFile::remove(copy);
        EXPECT_TRUE(QFile::copy(path(), copy));
        return inFile(copy, stage::table);
    }
};

} // namespace

TEST_F(TableViewTest, WalksBeyondBothEndsAndHasNoRowThere)
{
    open({"a", "b"});
    wordsView.MovePrevious();
    EXPECT_TRUE(wordsView.atBOF() && !wordsView.atEOF());
    EXPECT_EQ(failureOf([this] { current(); }), FailureKind::NoCurrentRecord);
    wordsView.MoveNext();
    EXPECT_EQ(current(), "a");
    wordsView.MoveNext();
    wordsView.MoveNext();
    EXPECT_TRUE(wordsView.atEOF() && !wordsView.atBOF());
    wordsView.MovePrevious();
    EXPECT_EQ(current(), "b");
    thingsView.Open();
    EXPECT_TRUE(thingsView.atEOF() && thingsView.atBOF());
    EXPECT_EQ(failureOf([this] { thingsView.MoveFirst(); }), FailureKind::NoCurrentRecord) << "an empty table";
}

TEST_F(TableViewTest, MovesStoreWhatIsPendingCancelAndCloseDropIt)
{
    open({"a", "b", "c"});
    wordsView.Fields(words::Word) = "A";
    wordsView.MoveNext();
    wordsView.Fields(words::Word) = "x";
    wordsView.CancelUpdate();
    EXPECT_EQ(current(), "b");
    wordsView.AddNew();
    wordsView.Fields(words::Word) = "d";
    wordsView.AddNew();
    wordsView.CancelUpdate();
    wordsView.MoveFirst();
    wordsView.Fields(words::Word) = "dropped";
    wordsView.Close();
    EXPECT_EQ(wordsInFile(), QStringList({"A", "b", "c", "d"}));
}

TEST_F(TableViewTest, DeleteLeavesNoRowCurrentAndTheWalkGoesOnWithTheNext)
{
    open({"a", "b", "c"});
    wordsView.MoveNext();
    wordsView.Delete();
    EXPECT_EQ(wordsView.RecordCount(), 2);
    EXPECT_EQ(failureOf([this] { current(); }), FailureKind::NoCurrentRecord);
    EXPECT_EQ(failureOf([this] { wordsView.Delete(); }), FailureKind::NoCurrentRecord);
    wordsView.Update();
    wordsView.MoveNext();
    EXPECT_EQ(current(), "c");
    wordsView.Delete();
    wordsView.MovePrevious();
    EXPECT_EQ(current(), "a");
    wordsView.Close();
    EXPECT_EQ(wordsInFile(), QStringList({"a"}));
}

TEST_F(TableViewTest, IdentitiesAreGivenOnStoringAndNeverTwice)
{
    thingsView.Open();
    thingsView.AddNew();
    EXPECT_EQ(failureOf([this] { thingsView.Fields(things::ID) = 7; }), FailureKind::InvalidCall);
    thingsView.Update();
    EXPECT_EQ(thingsView.Fields(things::ID).text(), "1");
    thingsView.Delete();
    thingsView.Close();
    thingsView.Open();
    thingsView.AddNew();
    thingsView.Update();
    EXPECT_EQ(thingsView.Fields(things::ID).integer(), 2);
}

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

TEST_F(StagingTest, ChangesGoToTheFileTogetherAndARowStillPendingStaysPending)
{
    stageView.Open();
    stageRow("old");
    stageRow("older");
    EXPECT_EQ(stagedInFile(), QStringList());
    home.commitPending();
    EXPECT_EQ(stagedInFile(), QStringList({"old", "older"}));
    for (stageView.MoveFirst(); !stageView.atEOF(); stageView.MoveNext())
        stageView.Delete();
    stageRow("new");
    stageView.AddNew();
    stageView.Fields(stage::Name) = "pending";
    home.commitPending();
    EXPECT_EQ(stagedInFile(), QStringList({"new"}));
    stageView.Update();
    home.close();
    EXPECT_EQ(stagedInFile(), QStringList({"new", "pending"})) << "closing writes what is staged";
}
