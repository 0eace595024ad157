// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/earlier_backups.h"

#include "core/places.h"
#include "core/thinning.h"
#include "platform/system/files.h"
#include "platform/values/failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace earlier {

namespace {

const QString NameFormat = QStringLiteral("yyyy-MM-dd_HH-mm-ss");
const QString AsideMark = QStringLiteral("_put-aside");
constexpr int LengthOfMoment = 19;
constexpr qint64 LeastShareOfFreeDisk = 10; // of the free disk they take a tenth at most

QString databaseIn(const QString& folder)
{
    return folder + u'/' + QFileInfo(places::databaseFile()).fileName();
}

// Where the file system has no links, a backup that is kept is a copy.
bool haveSameContents(const QString& one, const QString& other)
{
    QFile first(one);
    QFile second(other);
    return QFileInfo(one).size() == QFileInfo(other).size() && first.open(QIODevice::ReadOnly)
        && second.open(QIODevice::ReadOnly) && first.readAll() == second.readAll();
}

bool holdsBackup(const QString& folder, const QString& backup)
{
    return sys::isSameFile(databaseIn(folder), backup) || haveSameContents(databaseIn(folder), backup);
}

// The name is taken only by a folder with another file: a close that broke off may have left the rest.
QString freeFolder(const QDateTime& made, bool isPutAside, const QString& backup = {})
{
    const QString name =
        places::earlierBackupsFolder() + u'/' + made.toString(NameFormat) + (isPutAside ? AsideMark : QString());
    QString folder = name;
    for (int number = 2; QFileInfo::exists(databaseIn(folder)) && !holdsBackup(folder, backup); ++number)
        folder = name + QStringLiteral("_%1").arg(number);
    return folder;
}

// A second name costs nothing now, and keeps the file when the new backup takes the first one.
void keep(const QString& backup)
{
    const QFileInfo file(backup);
    if (!file.isFile() || file.isSymLink())
        return;
    const QString folder = freeFolder(file.lastModified(), false, backup);
    if (holdsBackup(folder, backup))
        return;
    sys::Folder::made(folder).keep(sys::Folder(file.path()), file.fileName(), file.fileName());
}

void giveUp(const KeptFile& kept)
{
    const sys::Folder all(places::earlierBackupsFolder());
    all.entered(kept.name).remove(QFileInfo(kept.file).fileName());
    all.removeEmpty(kept.name); // stays where the user has put something in
}

std::vector<KeptFile> withoutPutAside(std::vector<KeptFile> files)
{
    std::erase_if(files, [](const KeptFile& file) { return file.isPutAside; });
    return files;
}

void thinByDate(const QDateTime& now)
{
    const std::vector<KeptFile> files = withoutPutAside(all());
    std::vector<QDateTime> made;
    made.reserve(files.size());
    for (const KeptFile& file : files)
        made.push_back(file.made);
    const std::vector<bool> kept = thinning::isKept(made, now);
    for (std::size_t i = 0; i < files.size(); ++i)
        if (!kept[i])
            giveUp(files[i]);
}

qint64 roomOf(const std::vector<KeptFile>& files)
{
    return std::accumulate(files.begin(), files.end(), qint64{0},
        [](qint64 sum, const KeptFile& file) { return sum + QFileInfo(file.file).size(); });
}

// The disk is counted as it is when the new backup lies there. What a restore has put aside takes room too, but only
// its owner gives it up.
void thinByRoom()
{
    std::vector<KeptFile> files = all();
    if (files.empty())
        return;
    const qint64 isFree = sys::Folder(places::earlierBackupsFolder()).freeSpace() - QFileInfo(places::databaseFile()).size();
    qint64 taken = roomOf(files);
    files = withoutPutAside(files);
    for (; taken > isFree / LeastShareOfFreeDisk && !files.empty(); files.pop_back()) {
        taken -= QFileInfo(files.back().file).size();
        giveUp(files.back());
    }
}

} // namespace

bool isOf(const KeptFile& kept, const QString& backup)
{
    const bool isOfThatMoment =
        !kept.isPutAside && kept.name.startsWith(QFileInfo(backup).lastModified().toString(NameFormat));
    return sys::isSameFile(kept.file, backup) || (isOfThatMoment && haveSameContents(kept.file, backup));
}

std::vector<KeptFile> all()
{
    std::vector<KeptFile> files;
    const QDir folder(places::earlierBackupsFolder());
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDateTime made = QDateTime::fromString(name.left(LengthOfMoment), NameFormat);
        const QString file = databaseIn(folder.filePath(name));
        if (made.isValid() && QFileInfo(file).isFile())
            files.push_back({name, made, isForPutAside(name), file});
    }
    std::stable_sort(files.begin(), files.end(), [](const KeptFile& a, const KeptFile& b) { return a.made > b.made; });
    return files;
}

bool isForPutAside(const QString& name)
{
    return name.mid(LengthOfMoment).startsWith(AsideMark);
}

QString freeName(const QDateTime& made, bool isPutAside)
{
    return QFileInfo(freeFolder(made, isPutAside)).fileName();
}

void keep_Backup()
{
    try {
        keep(places::backupFolder() + u'/' + QFileInfo(places::databaseFile()).fileName());
        thinByDate(QDateTime::currentDateTime());
        thinByRoom();
    } catch (const std::exception& failure) { // whatever it is
        std::fprintf(stderr, "Earlier backups: %s\n", failure.what());
    }
}

} // namespace earlier
