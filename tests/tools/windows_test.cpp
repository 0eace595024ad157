// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "platform/forms/folder_choice.h"
#include "platform/storage/file_lock.h"
#include "tools/frmExport.h"
#include "tools/frmRestore.h"

using forms::Answer;
using forms::screen;

namespace {

class WindowsTest : public ToolsTest {
protected:
    ~WindowsTest() override { forms::setFolderDoor({}); }

    static frmRestore& restore() { return screen<frmRestore>(); }

    static void showAndReadAll()
    {
        restore().show();
        EXPECT_EQ(scene(), "20 frmRestore: lstBackups");
        readAll();
    }

    static void readAll()
    {
        while (restore().tmRead.isEnabled())
            restore().tmRead.elapse();
    }

    /// Of today's file, and of the backup that is picked.
    static QString told() { return restore().lblToday.caption() + ", " + restore().lblState.caption(); }
};

} // namespace

TEST_F(WindowsTest, ADamagedHouseholdIsBroughtBackByKeys)
{
    addAsset("Lamp", "$10.00");
    backUp();
    const QByteArray good = bytesOf(backupFile());
    for (int day = 10; day < 25; ++day) // more than there are steps of a restore
        putFile(places::earlierBackupsFolder() + QString("/2020-11-%1_08-00-00/KTL.db").arg(day), "no household");
    damage(today());

    showAndReadAll();
    EXPECT_EQ(told(), "Today's file: damaged or foreign, This backup can be read to its last page.");
    EXPECT_EQ(ring(restore()), "lstBackups cmdRestore cmdClose");
    press(Qt::Key_Down);
    EXPECT_EQ(restore().lstBackups.record(1)[4], "Damaged or foreign");
    EXPECT_TRUE(restore().lblState.caption().startsWith("This backup can't be restored: file is "));
    expectBox(restore().lblState.caption(), Stop);
    press(Qt::Key_Return);
    press(Qt::Key_Home);

    const QString question = "Go back to the backup of " + restore().lstBackups.record(0)[0]
        + "?\n\nThe backup: 1 asset, $10.00\nToday's file can't be read: database disk image is malformed\n\nToday's "
          "file is put aside and can be brought back in the same way.";
    expectBox(question, 52, Answer::No);
    accessKey('r');
    EXPECT_NE(bytesOf(today()), good);
    expectBox(question, 52, Answer::Yes);
    press(Qt::Key_Return);
    EXPECT_EQ(scene(), "20 frmRestored: cmdClose");
    EXPECT_EQ(bytesOf(today()), good);
}

TEST_F(WindowsTest, WithoutABackupOrWhileTheProgramRunsNothingIsRestored)
{
    showAndReadAll();
    EXPECT_EQ(contents(restore()), "pbRestore hidden, cmdRestore off");
    EXPECT_TRUE(told().startsWith("Today's file: 0 assets, $0.00, There is no backup yet"));
    press(Qt::Key_Return);
    closeBox(restore());
    EXPECT_EQ(endStatus(), 0);

    forms::destroyScreens();
    backUp();
    restore().show(); // chosen before it has been read
    const auto alone = std::exchange(restoring::list_Processes, [] {
        return std::vector{sys::thisProcess(), sys::Process{1, "Kestrill", {}, 7, 1}};
    });
    std::optional<storage::FileLock> running(today());
    restore().tmRead.elapse();
    EXPECT_EQ(restore().lblToday.caption(), "Today's file: in use");
    clickTold(restore().cmdRestore, "Kestrill is running. Close it first.", Stop);
    running.reset();
    restoring::list_Processes = alone;
    addAsset("Lamp", "$10.00"); // which the close puts into another backup
    backUp();
    clickTold(restore().cmdRestore, "There are other backups by now. Choose again.", Exclamation);
    EXPECT_EQ(static_cast<std::size_t>(restore().lstBackups.recordCount()), backups::all().size());

    sys::makePrivateFolder(places::earlierBackupsFolder());
    const sys::RunLock another(places::earlierBackupsFolder() + "/.restoring");
    expectBox("Go back to the backup of " + restore().lstBackups.record(0)[0]
            + "?\n\nThe backup: 1 asset, $10.00\nToday's file: 1 asset, $10.00\n\nBoth hold the same.\n\nToday's file "
              "is put aside and can be brought back in the same way.",
        52, Answer::Yes);
    clickTold(restore().cmdRestore, "Another restore is under way.", Stop);
    readAll();
    EXPECT_EQ(contents(restore()), "pbRestore hidden");
    accessKey('c');
    EXPECT_EQ(endStatus(), 0);
}

TEST_F(WindowsTest, TheExportAsksForAFolderAndSaysWhatItWrote)
{
    addAsset("Lamp", "$10.00");
    QString answer;
    forms::setFolderDoor([&answer] { return answer; });
    auto& window = screen<frmExport>();
    window.show();
    window.tmStart.elapse(); // and the user chooses none
    EXPECT_EQ(window.lblResult.caption(), "");
    EXPECT_FALSE(window.tmStart.isEnabled());
    answer = below("chosen");
    QDir().mkdir(answer);
    accessKey('f');
    EXPECT_EQ(ring(window), "cmdClose cmdChoose");
    click(window.cmdChoose);
    const QString name = "Kestrill " + QDate::currentDate().toString(Qt::ISODate);
    EXPECT_EQ(QDir(answer).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList({name, name + " (2)"}));
    EXPECT_EQ(window.lblResult.caption(), "Written: 1 asset, $10.00, in the folder\n" + answer + '/' + name + " (2)");
    EXPECT_EQ(scene(), "20 frmExport: cmdClose");

    damage(today());
    const auto before = everything();
    clickTold(window.cmdChoose, "database disk image is malformed", Stop);
    EXPECT_EQ(window.lblResult.caption(), "database disk image is malformed");
    EXPECT_EQ(everything(), before);
    closeBox(window);
    EXPECT_EQ(endStatus(), 0);
}
