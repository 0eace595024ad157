// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

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
