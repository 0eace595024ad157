// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/restoring.h"

#include "core/already_running.h"
#include "core/data_store.h"
#include "core/earlier_backups.h"
#include "core/places.h"
#include "platform/storage/file_lock.h"
#include "platform/system/files.h"
#include "tools/exit_codes.h"
#include "tools/household.h"

#include <QDir>
#include <QFileInfo>

#include <optional>

using storage::FileReader;
using values::RuntimeFailure;

namespace restoring {

std::function<std::vector<sys::Process>()> list_Processes = [] { return sys::runningProcesses(); };

namespace {

const QString Journal = QStringLiteral("-journal");

bool hasContents(const QString& path)
{
    return QFileInfo(path).size() > 0;
}

QString fileOf(const QString& path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? path : real;
}

// What a run that broke off has half written is taken back, as the next start would, where that makes the file whole.
// Else both stay as they are.
void settle(const QString& file)
{
    if (!hasContents(file + Journal) || !QFileInfo::exists(file))
        return;
    try {
        const Household triedOnACopy(file);
        storage::Connection connection;
        connection.open(file, databaseKey());
        connection.close();
    } catch (const RuntimeFailure&) {
        return;
    }
}

class LayingDown {
public:
    LayingDown(const QString& source, const Steps& steps)
        : source_(source)
        , file_(fileOf(places::databaseFile()))
        , beside_(file_ + places::RestoringSuffix)
        , aside_(earlier::folderFor(QDateTime::currentDateTime(), true))
        , steps_(steps)
    {
    }

    Result run();

private:
    enum class Reached { Nothing, JournalGone, LaidDown };

    void step();
    void lockToday();
    void layBeside();
    void putAside();
    void replace();
    void proveInPlace();
    void takeBack();
    void forgetAside();
    void removeBeside();
    QString asideFile() const { return aside_ + u'/' + QFileInfo(places::databaseFile()).fileName(); }

    QString source_;
    QString file_;
    QString beside_;
    QString aside_;
    const Steps& steps_;
    int done_ = 0;
    Reached reached_ = Reached::Nothing;
    std::optional<storage::FileLock> today_;
    std::optional<storage::FileLock> laid_;
    QString summary_;
};

void LayingDown::step()
{
    ++done_;
    if (steps_)
        steps_(done_);
}

Result LayingDown::run()
{
    sys::makePrivateFolder(QFileInfo(file_).path());
    settle(file_);
    lockToday();
    try {
        layBeside();
        putAside();
        replace();
        proveInPlace();
    } catch (...) {
        takeBack();
        throw;
    }
    const bool isAside = QFileInfo::exists(asideFile());
    return {summary_, isAside ? QFileInfo(aside_).fileName() : QString()};
}

// A file that can't be written can't be locked either. The program doesn't start on it.
void LayingDown::lockToday()
{
    if (!QFileInfo::exists(file_))
        return;
    today_.emplace(file_);
    if (!today_->isHeld() && storage::isInUse(file_))
        throw Refusal(exit_code::InUse, QStringLiteral("%1 is in use by another program.").arg(file_));
}

// Whole, on the disk and read through before it is in anybody's way, and out of reach until all is done.
void LayingDown::layBeside()
{
    removeBeside(); // of a restore that was killed
    step();
    sys::copyFile(source_, beside_);
    if (hasContents(source_ + Journal)) {
        step();
        sys::copyFile(source_ + Journal, beside_ + Journal);
        step();
        settle(beside_);
        sys::removeFile(beside_ + Journal);
    }
    summary_ = Household(beside_, FileReader::Locks::Passed).summary();
    laid_.emplace(beside_);
}

// Under a second name: the file stays where it is.
void LayingDown::putAside()
{
    const bool isThere = QFileInfo(file_).isFile();
    const bool hasJournal = hasContents(file_ + Journal);
    if (!isThere && !hasJournal)
        return;
    step();
    sys::makePrivateFolder(aside_);
    step();
    if (isThere)
        sys::keepFile(file_, asideFile());
    step();
    if (hasJournal)
        sys::keepFile(file_ + Journal, asideFile() + Journal);
    step();
    sys::syncFolder(aside_);
    sys::syncFolder(QFileInfo(aside_).path());
}

// The journal goes first, which by now belongs to a file that it doesn't mend: beside the new file the next start might
// take it for that one's.
void LayingDown::replace()
{
    step();
    reached_ = Reached::JournalGone;
    sys::removeFile(file_ + Journal);
    step();
    sys::renameFile(beside_, file_);
    reached_ = Reached::LaidDown;
    step();
    sys::syncFolder(QFileInfo(file_).path());
}

void LayingDown::proveInPlace()
{
    step();
    if (Household(file_, FileReader::Locks::Passed).summary() != summary_)
        throw Refusal(exit_code::Failed, QStringLiteral("%1 does not hold what was laid down.").arg(file_));
}

// Each step is a step back to today's file, whatever has failed.
void LayingDown::takeBack()
{
    try {
        removeBeside();
        if (reached_ == Reached::LaidDown && QFileInfo::exists(asideFile())) {
            sys::keepFile(asideFile(), beside_);
            sys::renameFile(beside_, file_);
        }
        if (reached_ != Reached::Nothing && QFileInfo::exists(asideFile() + Journal)
            && !QFileInfo::exists(file_ + Journal))
            sys::keepFile(asideFile() + Journal, file_ + Journal);
        forgetAside();
    } catch (const RuntimeFailure& failure) {
        if (reached_ == Reached::Nothing) // today's file lies where it lay
            return;
        throw Refusal(exit_code::Failed,
            QStringLiteral("The restore failed, and today's file could not be put back (%1). It lies in %2.")
                .arg(failure.text(), aside_));
    }
}

void LayingDown::forgetAside()
{
    sys::removeFile(asideFile() + Journal);
    sys::removeFile(asideFile());
    QDir().rmdir(aside_);
}

void LayingDown::removeBeside()
{
    sys::removeFile(beside_ + Journal);
    sys::removeFile(beside_);
}

} // namespace

void refuse_While_Running()
{
    if (count_Running(list_Processes(), sys::thisProcess()) > 0)
        throw Refusal(exit_code::InUse, QStringLiteral("Kestrill is running. Close it first."));
}

Result lay_Down(const Backup& chosen, const Steps& steps)
{
    try {
        refuse_While_Running();
        sys::makePrivateFolder(places::earlierBackupsFolder());
        const sys::RunLock alone(places::earlierBackupsFolder() + QStringLiteral("/.restoring"));
        if (!alone.isHeld())
            throw Refusal(exit_code::InUse, QStringLiteral("Another restore is under way."));
        return LayingDown(chosen.file, steps).run();
    } catch (const UnreadableHousehold& failure) {
        throw Refusal(
            exit_code::Unreadable, QStringLiteral("This backup can't be restored: %1.").arg(failure.reason()));
    } catch (const RuntimeFailure& failure) {
        throw Refusal(exit_code::Failed, failure.text());
    }
}

} // namespace restoring
