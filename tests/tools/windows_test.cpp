// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools_test.h"

#include "platform/forms/folder_choice.h"
#include "tools/frmExport.h"
#include "tools/frmRestore.h"
#include "tools/frmRestored.h"

#include <QAccessible>

using forms::Answer;
using forms::screen;

namespace {

class WindowsTest : public ToolsTest {
protected:
    static void readAll()
    {
        while (screen<frmRestore>().tmRead.isEnabled())
            screen<frmRestore>().tmRead.elapse();
    }
};

} // namespace

TEST_F(WindowsTest, ADamagedHouseholdIsBroughtBackByKeys)
{
    addAsset("Lamp", "$10.00");
    backUp();
    const QByteArray good = contentsOf(backupFile());
    const QString earlier = places::earlierBackupsFolder() + "/2020-11-20_08-00-00";
    sys::makePrivateFolder(earlier);
    put(earlier + "/KTL.db", "no household");
    damage(places::databaseFile());

    auto& restore = screen<frmRestore>();
    restore.show();
    EXPECT_EQ(scene(), "20 frmRestore: lstBackups");
    readAll();
    EXPECT_FALSE(restore.pbRestore.isVisible());
    EXPECT_EQ(restore.lblToday.caption(), "Today's file: damaged or foreign");
    ASSERT_EQ(restore.lstBackups.recordCount(), 2);
    EXPECT_EQ(restore.lblState.caption(), "This backup can be read to its last page.");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(restore.lstBackups.widget())->text(QAccessible::Name),
        "Backups, the newest first");

    press(Qt::Key_Down);
    EXPECT_EQ(restore.lstBackups.record(1)[4], "Damaged or foreign");
    EXPECT_TRUE(restore.lblState.caption().startsWith("This backup can't be restored: file is "));
    const QString refused = restore.lblState.caption();
    expectBox(refused, forms::box::Stop);
    press(Qt::Key_Return);
    press(Qt::Key_Home);
    EXPECT_EQ(restore.lstBackups.picked(), 0);

    const QString question = "Go back to the backup of " + restore.lstBackups.record(0)[0]
        + "?\n\nThe backup: 1 asset, $10.00\nToday's file can't be read: database disk image is malformed\n\nToday's "
          "file is put aside and can be brought back in the same way.";
    expectBox(question, 52, Answer::No);
    accessKey('r');
    EXPECT_NE(contentsOf(places::databaseFile()), good);
    expectBox(question, 52, Answer::Yes);
    press(Qt::Key_Return);
    EXPECT_EQ(scene(), "20 frmRestored: cmdClose");
    EXPECT_EQ(contentsOf(places::databaseFile()), good);
    EXPECT_TRUE(screen<frmRestored>().lblTell[2].caption().endsWith("_put-aside"));
    press(Qt::Key_Return);
    EXPECT_EQ(endStatus(), 0);
}

TEST_F(WindowsTest, WithoutABackupOrWhileTheProgramRunsNothingIsRestored)
{
    screen<frmRestore>().show();
    readAll();
    EXPECT_EQ(scene(), "20 frmRestore: lstBackups");
    EXPECT_FALSE(screen<frmRestore>().cmdRestore.isEnabled());
    EXPECT_EQ(screen<frmRestore>().lblToday.caption(), "Today's file: 0 assets, $0.00");
    EXPECT_TRUE(screen<frmRestore>().lblState.caption().startsWith("There is no backup yet"));
    press(Qt::Key_Return);
    closeBox(screen<frmRestore>());
    EXPECT_EQ(endStatus(), 0);

    forms::destroyScreens();
    backUp();
    screen<frmRestore>().show(); // chosen before it has been read
    restoring::list_Processes = [] { return std::vector{sys::thisProcess(), sys::Process{1, "Kestrill", {}, 7, 1}}; };
    expectBox("Kestrill is running. Close it first.", forms::box::Stop);
    click(screen<frmRestore>().cmdRestore);
    accessKey('c');
    EXPECT_EQ(endStatus(), 0);
}

TEST_F(WindowsTest, TheExportAsksForAFolderAndSaysWhatItWrote)
{
    addAsset("Lamp", "$10.00");
    const QString chosen = QFileInfo(places::databaseFolder()).path() + "/chosen";
    QDir().mkdir(chosen);
    QString answer;
    forms::setFolderDoor([&answer] { return answer; });
    auto& window = screen<frmExport>();
    window.show();
    window.tmStart.elapse(); // and the user chooses none
    EXPECT_EQ(window.lblResult.caption(), "");
    EXPECT_FALSE(window.tmStart.isEnabled());
    answer = chosen;
    accessKey('f');
    click(window.cmdChoose);
    const QStringList made = QDir(chosen).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    const QString name = "Kestrill " + QDate::currentDate().toString(Qt::ISODate);
    EXPECT_EQ(made, QStringList({name, name + " (2)"}));
    EXPECT_EQ(window.lblResult.caption(), "Written: 1 asset, $10.00, in the folder\n" + chosen + '/' + name + " (2)");
    EXPECT_EQ(scene(), "20 frmExport: cmdClose");

    answer = chosen + "/none";
    expectBox("Nothing can be written in " + answer + ": No such file or directory.", forms::box::Stop);
    click(window.cmdChoose);
    damage(places::databaseFile());
    answer = chosen;
    expectBox("database disk image is malformed", forms::box::Stop);
    click(window.cmdChoose);
    EXPECT_EQ(QDir(chosen).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), made);
    forms::setFolderDoor({});
    closeBox(window);
    EXPECT_EQ(endStatus(), 0);
}
