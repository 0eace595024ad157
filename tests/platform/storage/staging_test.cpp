// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_test.h"

namespace {

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
