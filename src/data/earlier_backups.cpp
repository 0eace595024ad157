// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/earlier_backups.h"

#include "data/places.h"
#include "data/thinning.h"
#include "platform/system/files.h"
#include "platform/values/failure.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <tuple>

namespace earlier {

namespace {

const QString NameFormat = QStringLiteral("yyyy-MM-dd_HH-mm-ss");
const QString AsideMark = QStringLiteral("_put-aside");
const QString TroubleFile = QStringLiteral(".trouble");
constexpr int LengthOfMoment = 19;
constexpr qint64 LeastShareOfFreeDisk = 10; // of the free disk they take a tenth at most

QString databaseName()
{
    return QFileInfo(places::databaseFile()).fileName();
}

QString databaseIn(const QString& folder)
{
    return folder + u'/' + databaseName();
}

QString lastBackup()
{
    return databaseIn(places::backupFolder());
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
QString freeNameFor(const QDateTime& made, bool isPutAside, const QString& backup = {})
{
    const QString all = places::earlierBackupsFolder() + u'/';
    const QString first = made.toString(NameFormat) + (isPutAside ? AsideMark : QString());
    QString name = first;
    for (int number = 2; QFileInfo::exists(databaseIn(all + name)) && !holdsBackup(all + name, backup); ++number)
        name = first + QStringLiteral("_%1").arg(number);
    return name;
}

// A second name costs nothing now, and keeps the file when the new backup takes the first one. Gives the name of its
// folder.
QString keepLast()
{
    const std::optional<sys::Folder> backup = sys::Folder::found(places::backupFolder());
    if (!backup || !backup->hasFile(databaseName()))
        return {};
    const sys::Folder all = sys::Folder::made(places::earlierBackupsFolder());
    QString name = freeNameFor(QFileInfo(lastBackup()).lastModified(), false, lastBackup());
    const sys::Folder folder = all.madeEntered(name);
    if (!folder.look(databaseName()))
        folder.keep(*backup, databaseName(), databaseName());
    return name;
}

void giveUp(const sys::Folder& all, const KeptFile& kept)
{
    all.entered(kept.name).remove(databaseName());
    all.removeEmpty(kept.name); // stays where the user has put something in
}

// What a restore has put aside takes room too, but only its owner gives it up.
void thinOut(const proofs::Book& book, const QDateTime& now)
{
    const sys::Folder folder = sys::Folder::made(places::earlierBackupsFolder());
    qint64 room = folder.freeSpace() / LeastShareOfFreeDisk;
    std::vector<KeptFile> files;
    std::vector<thinning::Kept> kept;
    for (const KeptFile& file : all()) {
        const qint64 size = QFileInfo(file.file).size();
        if (file.isPutAside) {
            room -= size;
            continue;
        }
        files.push_back(file);
        kept.push_back({file.made, size, book.of(file.file).has_value()});
    }
    std::exception_ptr failed; // one that can't be given up keeps none of the others
    for (const std::size_t index : thinning::givenUp(kept, now, room)) {
        try {
            giveUp(folder, files[index]);
        } catch (const values::RuntimeFailure&) {
            failed = std::current_exception();
        }
    }
    if (failed)
        std::rethrow_exception(failed);
}

QString troubleText(const values::RuntimeFailure& failure)
{
    return QStringLiteral("The backup of %1 could not be kept: %2.")
        .arg(QFileInfo(lastBackup()).lastModified().toString(QStringLiteral("M/d/yyyy h:mm AP")),
            failure.text().section(QStringLiteral(": "), -1));
}

QString troubleFile()
{
    return places::earlierBackupsFolder() + u'/' + TroubleFile;
}

void writeTrouble(const QString& trouble)
{
    if (trouble.isEmpty()) {
        sys::Folder(places::earlierBackupsFolder()).remove(TroubleFile);
        return;
    }
    QSaveFile file(troubleFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(trouble.toUtf8()) < 0 || !file.commit())
        throw values::RuntimeFailure(values::FailureKind::File, file.errorString());
}

// Does a step, and says what failed, unless something was said of this close before.
void attempt(QString& said, const std::function<void()>& step)
{
    try {
        step();
    } catch (const std::exception& failure) { // whatever it is
        if (said.isEmpty())
            std::fprintf(stderr, "Earlier backups: %s\n", failure.what());
        said = QString::fromUtf8(failure.what());
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
    if (!QFileInfo(places::earlierBackupsFolder()).isReadable())
        return files;
    const sys::Folder folder(places::earlierBackupsFolder());
    for (const QString& name : folder.names()) {
        const QDateTime made = QDateTime::fromString(name.left(LengthOfMoment), NameFormat);
        const QString file = databaseIn(folder.pathOf(name));
        if (made.isValid() && QFileInfo(file).isFile())
            files.push_back({name, made, isForPutAside(name), file});
    }
    // Of one second, the name of the later one has the higher number.
    std::ranges::sort(files,
        [](const KeptFile& a, const KeptFile& b) { return std::tie(a.made, a.name) > std::tie(b.made, b.name); });
    return files;
}

bool isForPutAside(const QString& name)
{
    return name.mid(LengthOfMoment).startsWith(AsideMark);
}

QString freeName(const QDateTime& made, bool isPutAside)
{
    return freeNameFor(made, isPutAside);
}

Keeping::Keeping()
{
    attempt(said_, [this] {
        proof_ = proofs::Book().of(lastBackup()); // a second name changes the file's own time
        try {
            kept_ = keepLast();
        } catch (const values::RuntimeFailure& failure) {
            trouble_ = troubleText(failure);
            throw;
        }
    });
}

void Keeping::thin(const proofs::Contents& contents)
{
    proofs::Book book;
    book.enter(proofs::stateOf(lastBackup()), contents);
    if (proof_ && !kept_.isEmpty())
        book.enter(proofs::stateOf(databaseIn(places::earlierBackupsFolder() + u'/' + kept_)), *proof_);
    attempt(said_, [&book] { thinOut(book, QDateTime::currentDateTime()); });
    attempt(said_, [&book] { book.write(); });
    attempt(said_, [this] { writeTrouble(trouble_); });
}

QString lastTrouble()
{
    QFile file(troubleFile());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace earlier
