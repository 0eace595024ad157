// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/restoring.h"

#include "data/data_store.h"
#include "data/earlier_backups.h"
#include "data/places.h"
#include "platform/storage/file_lock.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "tools/exit_codes.h"
#include "tools/household.h"

#include <QFileInfo>

#include <optional>

using storage::FileReader;
using values::RuntimeFailure;

namespace restoring {

namespace {

const QString Journal = QStringLiteral("-journal");
const QString OwnSuffix = QStringLiteral(".own"); // of a copy that is to part from today's file

// A file as an entry of its open folder.
struct Place {
    sys::Folder folder;
    QString name;

    QString file() const { return folder.pathOf(name); }
    Place besides(const QString& suffix) const { return {folder, name + suffix}; }
    Place journal() const { return besides(Journal); }
    bool isThere() const { return folder.look(name).has_value(); }
    bool hasContents() const
    {
        const auto found = folder.look(name);
        return found && found->size > 0;
    }
    void copyFrom(const Place& source) const { folder.copy(source.folder, source.name, name); }
    void keepFrom(const Place& source) const { folder.keep(source.folder, source.name, name); }
    void remove() const { folder.remove(name); }
};

// A link that its user has laid is followed once, here.
QString followed(const QString& path)
{
    const QString real = sys::realPath(path);
    return real.isEmpty() ? path : real;
}

Place placeOf(const QString& path)
{
    const QFileInfo file(followed(path));
    return {sys::Folder(file.path()), file.fileName()};
}

Place placeOfToday()
{
    const QFileInfo file(followed(places::databaseFile()));
    return {sys::Folder::made(file.path()), file.fileName()};
}

// What a run that broke off has half written is taken back, as the next start would, where that makes the file whole.
// Else both stay as they are.
void settle(const Place& place)
{
    if (!place.journal().hasContents() || !place.isThere())
        return;
    try {
        const Household triedOnACopy(place.file());
        storage::Connection connection;
        connection.open(place.file(), databaseKey());
        connection.close();
    } catch (const RuntimeFailure&) {
        return;
    }
}

class LayingDown {
public:
    LayingDown(const QString& source, const Steps& steps)
        : source_(placeOf(source))
        , today_(placeOfToday())
        , beside_(today_.besides(places::RestoringSuffix))
        , steps_(steps)
    {
    }

    Result run();

private:
    void step();
    void lockToday();
    void layBeside();
    void putAside();
    static void setAside(const Place& place, const Place& aside);
    void replace();
    QString doubt();
    void takeBack();
    void putJournalBack();
    void forgetAside();
    void removeBeside();

    Place source_;
    Place today_;
    Place beside_;
    std::optional<Place> aside_; // once its folder is made
    bool isAside_ = false;
    const Steps& steps_;
    int done_ = 0;
    std::optional<storage::FileLock> lockOfToday_;
    std::optional<storage::FileLock> lockOfBackup_;
    QString summary_;
};

void LayingDown::step()
{
    ++done_;
    if (steps_)
        steps_(done_);
}

// Up to the moment at which the backup gets its name a failure leaves today's file, and behind it there is none.
Result LayingDown::run()
{
    settle(today_);
    lockToday();
    try {
        layBeside();
        putAside();
        replace();
    } catch (...) {
        takeBack();
        throw;
    }
    return {summary_, isAside_ ? aside_->folder.name() : QString(), doubt()};
}

// A file that can't be written can't be locked either. The program doesn't start on it.
void LayingDown::lockToday()
{
    if (!today_.isThere())
        return;
    lockOfToday_.emplace(today_.file());
    if (!lockOfToday_->isHeld() && storage::isInUse(today_.file()))
        throw Refusal(exit_code::InUse, QStringLiteral("%1 is in use by another program.").arg(today_.file()));
}

// Whole, on the disk and read through before it is in anybody's way, and out of reach until all is done.
void LayingDown::layBeside()
{
    removeBeside(); // of a restore that was killed
    step();
    beside_.copyFrom(source_);
    if (source_.journal().hasContents()) {
        step();
        beside_.journal().copyFrom(source_.journal());
        step();
        settle(beside_);
        beside_.journal().remove();
    }
    summary_ = Household(beside_.file(), FileReader::Locks::Passed).summary();
    lockOfBackup_.emplace(beside_.file());
}

void LayingDown::putAside()
{
    const bool hasJournal = today_.journal().hasContents();
    isAside_ = today_.isThere();
    if (!isAside_ && !hasJournal)
        return;
    step();
    const sys::Folder kept(places::earlierBackupsFolder());
    const QString name = earlier::freeName(QDateTime::currentDateTime(), true);
    aside_.emplace(Place{kept.madeEntered(name), QFileInfo(places::databaseFile()).fileName()});
    step();
    if (isAside_)
        setAside(today_, *aside_);
    step();
    if (hasJournal)
        setAside(today_.journal(), aside_->journal());
    step();
    aside_->folder.sync();
    kept.sync();
}

// A file of its own, which nothing changes that is stored in today's later, should this be killed. A file that its disk
// doesn't give any more, or for which there is no room, gets a second name, which is its only one when all is done.
void LayingDown::setAside(const Place& place, const Place& aside)
{
    try {
        aside.copyFrom(place);
    } catch (const RuntimeFailure&) {
        aside.keepFrom(place);
    }
}

// The journal goes first, which by now belongs to a file that it doesn't mend: beside the new file the next start might
// take it for that one's.
void LayingDown::replace()
{
    step();
    today_.journal().remove();
    step();
    today_.folder.rename(beside_.name, today_.name);
}

// The backup is in place, and no failure changes that any more.
QString LayingDown::doubt()
{
    try {
        step();
        today_.folder.sync();
        return {};
    } catch (const RuntimeFailure& failure) {
        return failure.text().section(QStringLiteral(": "), -1);
    }
}

// Whatever has failed, today's file lies where it lay. What the attempt leaves behind is in nobody's way.
void LayingDown::takeBack()
{
    putJournalBack();
    try {
        removeBeside();
        forgetAside();
    } catch (const RuntimeFailure&) {
        return;
    }
}

void LayingDown::putJournalBack()
{
    if (!aside_ || !aside_->journal().isThere() || today_.journal().isThere())
        return;
    try {
        today_.journal().keepFrom(aside_->journal());
    } catch (const RuntimeFailure& failure) {
        throw Refusal(exit_code::Failed,
            QStringLiteral("The restore failed. Today's file is in its place, but its journal could not be put back "
                           "beside it (%1). It lies in %2.")
                .arg(failure.text(), aside_->folder.path()));
    }
}

void LayingDown::forgetAside()
{
    if (!aside_)
        return;
    aside_->journal().remove();
    aside_->remove();
    sys::Folder(places::earlierBackupsFolder()).removeEmpty(aside_->folder.name());
}

void LayingDown::removeBeside()
{
    beside_.journal().remove();
    beside_.remove();
}

// A copy takes the place of the second name, in one step.
void partFromToday(const earlier::KeptFile& kept)
{
    const storage::FileLock lock(kept.file); // nobody stores anything in it meanwhile
    if (!lock.isHeld())
        return;
    const Place aside = placeOf(kept.file);
    const Place own = aside.besides(OwnSuffix);
    own.remove();
    own.copyFrom(aside);
    aside.folder.rename(own.name, aside.name);
    aside.folder.sync();
}

} // namespace

void clear_Remains()
{
    const sys::Folder all(places::earlierBackupsFolder());
    const QString file = QFileInfo(places::databaseFile()).fileName();
    for (const QString& name : all.names()) {
        const auto found = all.look(name);
        if (!earlier::isForPutAside(name) || !found || found->kind != sys::Kind::Folder)
            continue;
        const sys::Folder folder = all.entered(name);
        for (const QString& begun : {file, QString(file + Journal), QString(file + OwnSuffix)})
            folder.removePart(begun);
        all.removeEmpty(name);
    }
}

void refuse_While_Running()
{
    if (storage::isInUse(places::databaseFile()))
        throw Refusal(exit_code::InUse, QStringLiteral("Kestrill is running. Close it first."));
}

QString doubtText(const Result& result)
{
    return QStringLiteral("The disk has not confirmed it: %1. Look after the disk, and check the file with "
                          "kestrill-check before you go on.")
        .arg(result.doubt);
}

void part_From_Today()
{
    for (const earlier::KeptFile& kept : earlier::all()) {
        if (!kept.isPutAside || !sys::isSameFile(kept.file, places::databaseFile()))
            continue;
        try {
            partFromToday(kept);
        } catch (const RuntimeFailure&) {
            continue;
        }
    }
}

Result lay_Down(const Backup& chosen, const Steps& steps)
{
    try {
        refuse_While_Running();
        const sys::RunLock alone(sys::Folder::made(places::earlierBackupsFolder()), LockName);
        if (!alone.isHeld())
            throw Refusal(exit_code::InUse, QStringLiteral("Another restore is under way."));
        clear_Remains();
        part_From_Today();
        return LayingDown(chosen.file, steps).run();
    } catch (const UnreadableHousehold& failure) {
        throw Refusal(
            exit_code::Unreadable, QStringLiteral("This backup can't be restored: %1.").arg(failure.reason()));
    } catch (const RuntimeFailure& failure) {
        throw Refusal(exit_code::Failed, failure.text());
    }
}

} // namespace restoring
