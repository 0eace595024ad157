// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/proofs.h"

#include "data/earlier_backups.h"
#include "data/places.h"
#include "support/files.h"
#include "support/print.h"

#include <QTemporaryDir>

TEST(Proofs, AreThoseOfTheLastFilesAndWrittenWhateverAWriteThatWasKilledHasLeft)
{
    const QTemporaryDir folder;
    places::setFolders(folder.filePath("data"), folder.filePath("backup"));
    const QString earlier = folder.filePath("earlier.db"), later = folder.filePath("later.db");
    const QString leftover = places::earlierBackupsFolder() + "/.proofs.new";
    for (const QString& file : {earlier, later, leftover, leftover + "-journal"})
        putFile(file, "what is in it");
    proofs::Book book;
    book.enter(proofs::stateOf(earlier), {1, "$1.00"});
    book.enter(proofs::stateOf(later), {2, "$1.00"});
    book.enter(proofs::stateOf(later), {2, "$2.00"});
    for (int others = 0; others < 199; ++others)
        book.enter(QString::number(others), {});
    book.enter("", {});
    book.write();
    const proofs::Book written;
    EXPECT_FALSE(written.of(earlier));
    ASSERT_TRUE(written.of(later));
    EXPECT_EQ(written.of(later)->assets, 2);
    EXPECT_EQ(written.of(later)->total, "$2.00");
    EXPECT_FALSE(written.of(folder.filePath("none.db")));
    EXPECT_EQ(QDir(places::earlierBackupsFolder()).entryList(QDir::Files | QDir::Hidden), QStringList(".proofs"));
}

TEST(KeptBackups, AreTheDatabasesInFoldersOfAMomentTheNewestFirst)
{
    const QTemporaryDir folder;
    places::setFolders(folder.filePath("data"), folder.filePath("backup"));
    const QString all = places::earlierBackupsFolder() + '/';
    EXPECT_TRUE(earlier::all().empty()) << "no folder yet";
    for (const char* name :
        {"2026-01-02_03-04-05", "2026-01-02_03-04-05_2", "2027-01-01_00-00-00_put-aside", "letters"})
        putFile(all + name + "/KTL.db", "");
    putFile(all + "2028-01-01_00-00-00/letter.txt", "of a close that broke off");
    QStringList told;
    for (const earlier::KeptFile& kept : earlier::all())
        told += kept.name + (kept.isPutAside ? ", put aside" : "") + kept.made.toString(" yyyy");
    EXPECT_EQ(told.join("; "),
        "2027-01-01_00-00-00_put-aside, put aside 2027; 2026-01-02_03-04-05_2 2026; 2026-01-02_03-04-05 2026");
}
