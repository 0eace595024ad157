// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/backups.h"

#include "data/earlier_backups.h"
#include "data/places.h"
#include "data/proofs.h"
#include "platform/system/files.h"
#include "tools/exit_codes.h"
#include "tools/household.h"

#include <QFileInfo>

#include <algorithm>

namespace backups {

namespace {

QString lastBackupFile()
{
    return places::backupFolder() + u'/' + QFileInfo(places::databaseFile()).fileName();
}

// What lies in a folder without rights isn't seen, and still is there.
void addLast(std::vector<Backup>& list)
{
    const QFileInfo file(lastBackupFile());
    const bool isHidden = sys::isOutOfSight(file.filePath());
    if (!file.isFile() && !isHidden)
        return;
    const QDateTime made = isHidden ? QFileInfo(file.path()).lastModified() : file.lastModified();
    list.push_back({made.toString(QStringLiteral("yyyy-MM-dd_HH-mm-ss")), made, QStringLiteral("Last close"),
        file.filePath(), {}, {}, 0, {}, {}});
}

// A folder that can't be looked into stands for all that may be in it.
void addClosedFolder(std::vector<Backup>& list)
{
    const QFileInfo folder(places::earlierBackupsFolder());
    if (!folder.isDir() || (folder.isReadable() && folder.isExecutable()))
        return;
    list.push_back({folder.fileName(), folder.lastModified(), QStringLiteral("Earlier close"), folder.filePath(), {},
        {}, 0, {}, {}});
}

void setInOrder(Backup& backup, const proofs::Contents& contents)
{
    backup.assets = static_cast<int>(contents.assets);
    backup.total = contents.total;
    backup.state = QStringLiteral("In order");
}

void fillInWhatIsKnown(std::vector<Backup>& list)
{
    const proofs::Book book;
    for (Backup& backup : list)
        if (const std::optional<proofs::Contents> known = book.of(backup.file))
            setInOrder(backup, *known);
}

bool isSeveral(const std::vector<const Backup*>& found)
{
    return std::any_of(
        found.begin(), found.end(), [&found](const Backup* each) { return each->file != found.front()->file; });
}

} // namespace

std::vector<Backup> all()
{
    std::vector<Backup> list;
    addLast(list);
    addClosedFolder(list);
    for (const earlier::KeptFile& kept : earlier::all()) {
        // A close that broke off has kept the backup that is still the last one.
        if (earlier::isOf(kept, lastBackupFile()))
            continue;
        const QString kind = kept.isPutAside ? QStringLiteral("Put aside") : QStringLiteral("Earlier close");
        list.push_back({kept.name, kept.made, kind, kept.file, {}, {}, 0, {}, {}});
    }
    std::stable_sort(list.begin(), list.end(), [](const Backup& a, const Backup& b) { return a.made > b.made; });
    fillInWhatIsKnown(list);
    return list;
}

void read(Backup& backup)
{
    try {
        const QString before = proofs::stateOf(backup.file);
        const Household household(backup.file);
        setInOrder(backup, proofs::contentsOf(household.table("Inventory")));
        backup.proved = before == proofs::stateOf(backup.file) ? before : QString();
    } catch (const UnreadableHousehold& failure) {
        backup.state = failure.state();
        backup.reason = failure.reason();
    }
}

void remember(const std::vector<Backup>& backups)
{
    proofs::Book book;
    for (const Backup& backup : backups)
        book.enter(backup.proved, {backup.assets, backup.total});
    try {
        book.write();
    } catch (const values::RuntimeFailure&) {
        return;
    }
}

const Backup& find(const std::vector<Backup>& among, const QString& name)
{
    std::vector<const Backup*> found;
    for (const Backup& backup : among) {
        if (backup.name == name || (name == "last" && backup.kind == "Last close"))
            return backup;
        if (backup.name.startsWith(name))
            found.push_back(&backup);
    }
    if (found.empty())
        throw Refusal(
            exit_code::Usage, QStringLiteral("There is no backup of %1. kestrill-restore --list shows all.").arg(name));
    if (isSeveral(found))
        throw Refusal(exit_code::Usage,
            QStringLiteral("There are several backups of %1. kestrill-restore --list shows all.").arg(name));
    return *found.front();
}

QString spoken(const QDateTime& moment)
{
    return moment.toString(QStringLiteral("M/d/yyyy h:mm AP"));
}

QStringList headings()
{
    return {QStringLiteral("Made"), QStringLiteral("Kind"), QStringLiteral("Assets"), QStringLiteral("Total"),
        QStringLiteral("State")};
}

QStringList columnsOf(const Backup& backup)
{
    const bool isCounted = backup.isInOrder();
    return {spoken(backup.made), backup.kind, isCounted ? QString::number(backup.assets) : QString(),
        isCounted ? backup.total : QString(), backup.isRead() ? backup.state : QStringLiteral("Being read...")};
}

} // namespace backups
