// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

using storage::TableView;
using values::Currency;
using values::FailureKind;

namespace {

class TableViewTest : public StorageTest {
protected:
    // The word of the current row, or where the view stands that has none.
    QString standing()
    {
        QString word = "deleted";
        const auto failure = failureOf([&] { word = wordsView.Fields(words::Word).text(); });
        if (wordsView.atBOF() || wordsView.atEOF())
            word = wordsView.atBOF() ? "before" : "behind";
        EXPECT_EQ(failure == FailureKind::NoCurrentRecord, QStringList({"before", "behind", "deleted"}).contains(word));
        return word;
    }

    storage::Field field(int column) { return thingsView.Fields(column); }

    // Stores the row; all is read anew from the file.
    void store()
    {
        thingsView.Update();
        thingsView.Close();
        thingsView.Open();
    }

    // Read from a copy: the file itself is kept to its one connection.
    QStringList stagedInFile() const
    {
        const QString copy = folder.filePath("copy.db");
        QFile::remove(copy);
        EXPECT_TRUE(QFile::copy(path(), copy));
        return inFile(copy, words::stage);
    }
};

} // namespace

TEST_F(TableViewTest, WalksBeyondBothEndsAndOverDeletedRowsWhereNoRowIsCurrent)
{
    openWith({"a", "b", "c"});
    QStringList places;
    for (const auto step : {&TableView::MovePrevious, &TableView::MoveNext, &TableView::MoveNext, &TableView::Delete,
             &TableView::Update, &TableView::MoveNext, &TableView::MoveNext, &TableView::MovePrevious,
             &TableView::Delete, &TableView::MovePrevious}) {
        (wordsView.*step)();
        places += standing();
    }
    EXPECT_EQ(places.join(' '), "before a b deleted deleted c behind c deleted a");
    wordsView.MovePrevious();
    EXPECT_EQ(failureOf([this] { wordsView.Delete(); }), FailureKind::NoCurrentRecord);
    EXPECT_EQ(wordsView.RecordCount(), 1);
    wordsView.Close();
    EXPECT_EQ(wordsInFile(), QStringList({"a"}));
    thingsView.Open();
    EXPECT_TRUE(thingsView.atEOF() && thingsView.atBOF());
    EXPECT_EQ(failureOf([this] { thingsView.MoveFirst(); }), FailureKind::NoCurrentRecord) << "an empty table";
}

TEST_F(TableViewTest, MovesStoreWhatIsPendingCancelAndCloseDropIt)
{
    openWith({"a", "b", "c"});
    wordsView.Fields(words::Word) = "A";
    wordsView.MoveNext();
    wordsView.Fields(words::Word) = "x";
    wordsView.CancelUpdate();
    EXPECT_EQ(standing(), "b");
    wordsView.AddNew();
    wordsView.Fields(words::Word) = "d";
    wordsView.AddNew();
    wordsView.CancelUpdate();
    wordsView.MoveFirst();
    wordsView.Fields(words::Word) = "dropped";
    wordsView.Close();
    EXPECT_EQ(wordsInFile(), QStringList({"A", "b", "c", "d"}));
}

TEST_F(TableViewTest, NumbersAndMoneyComeBackExactlyAndWhatIsNoneIsRefusedAtThePut)
{
    thingsView.Open();
    thingsView.AddNew();
    const Currency amount = Currency::fromTenThousandths(-12'345'678);
    field(things::Price) = "$1,234.5";
    field(things::Total) = amount;
    field(things::Count) = "-3";
    for (const char* text : {"", "$1/2.00", "None", "1.2.3", "$"})
        for (const int column : {things::Price, things::Total, things::Count})
            EXPECT_EQ(failureOf([&] { field(column) = text; }), FailureKind::TypeMismatch) << text << " in " << column;
    EXPECT_EQ(failureOf([this] { field(things::Name).integer(); }), FailureKind::TypeMismatch);
    EXPECT_EQ(failureOf([this] { field(things::ID) = 7; }), FailureKind::InvalidCall);
    store();
    EXPECT_EQ(field(things::ID), 1);
    EXPECT_EQ(field(things::Price), "$1,234.5") << "kept as it was given";
    EXPECT_EQ(field(things::Total).currency(), amount);
    EXPECT_EQ(field(things::Total), "($1,234.57)");
    EXPECT_TRUE(field(things::Count) == -3 && field(things::Count) == "-3");
    thingsView.Delete();
    thingsView.AddNew();
    store();
    EXPECT_EQ(field(things::ID), 2) << "no number is given twice";
}

TEST_F(TableViewTest, FieldsAreComparedWithoutRegardToCaseInAllOfUnicode)
{
    using storage::FoldedText;
    thingsView.Open();
    thingsView.AddNew();
    EXPECT_FALSE(field(things::Name).contains(FoldedText())) << "an empty field holds nothing";
    for (const char* text : {"Oak {", "stra\u00dfe", "\u00c9tag\u00e8re"}) {
        field(things::Name) = text;
        const QString upper = QString(text).toUpper();
        EXPECT_TRUE(field(things::Name).equals(FoldedText(upper))) << text;
        EXPECT_TRUE(field(things::Name).contains(FoldedText(upper.mid(2)))) << text;
        EXPECT_FALSE(field(things::Name).contains(FoldedText("["))) << text;
    }
}

TEST_F(TableViewTest, StagedChangesGoToTheFileTogetherAndARowStillPendingStaysPending)
{
    stageView.Open();
    addWord(stageView, "old");
    addWord(stageView, "older");
    EXPECT_EQ(stagedInFile(), QStringList());
    home.commitPending();
    EXPECT_EQ(stagedInFile(), QStringList({"old", "older"}));
    for (stageView.MoveFirst(); !stageView.atEOF(); stageView.MoveNext())
        stageView.Delete();
    addWord(stageView, "new");
    stageView.AddNew();
    stageView.Fields(words::Word) = "pending";
    home.commitPending();
    EXPECT_EQ(stagedInFile(), QStringList({"new"}));
    stageView.Update();
    home.close();
    EXPECT_EQ(stagedInFile(), QStringList({"new", "pending"})) << "closing writes what is staged";
}
