// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/put_aside.h"

#include "data/data_store.h"
#include "data/earlier_backups.h"
#include "data/places.h"
#include "platform/storage/file_lock.h"
#include "platform/system/folder.h"
#include "tools/exit_codes.h"
#include "tools/restoring.h"

#include <QDateTime>
#include <QFileInfo>

using storage::FileReader;

namespace aside {

namespace {

[[noreturn]] void refuseInUse()
{
    throw Refusal(exit_code::InUse,
        QStringLiteral("Nothing was changed: %1 is in use. Close Kestrill first.").arg(places::databaseFile()));
}

// What the last run has left half written is taken back, as the next start would.
void settle()
{
    storage::Connection connection;
    connection.open(places::databaseFile(), databaseKey());
    connection.close();
}

std::vector<int> rowsOf(const Household& household)
{
    std::vector<int> rows;
    for (const storage::Snapshot& table : household.tables())
        rows.push_back(table.rowCount());
    return rows;
}

// A copy of the file among those put aside.
class Aside {
public:
    Aside()
        : kept_(places::earlierBackupsFolder())
        , folder_(kept_.madeEntered(earlier::freeName(QDateTime::currentDateTime(), true)))
    {
    }

    /// Gives the generation of the copy.
    qint64 make(const std::function<void(const Household& today)>& refuseStale) const;
    void giveUp() const;
    QString name() const { return folder_.name(); }

private:
    static QString fileName() { return QFileInfo(places::databaseFile()).fileName(); }
    QString file() const { return folder_.pathOf(fileName()); }

    sys::Folder kept_;
    sys::Folder folder_;
};

qint64 Aside::make(const std::function<void(const Household& today)>& refuseStale) const
{
    const storage::FileLock alone(places::databaseFile());
    if (!alone.isHeld())
        refuseInUse();
    const Household today(places::databaseFile(), FileReader::Locks::Passed);
    refuseStale(today);
    folder_.copy(sys::Folder(QFileInfo(places::databaseFile()).path()), fileName(), fileName());
    const Household copy(file());
    if (rowsOf(copy) != rowsOf(today))
        throw Refusal(exit_code::Failed, QStringLiteral("Nothing was changed: %1 is no whole copy.").arg(file()));
    folder_.sync();
    kept_.sync();
    return copy.generation();
}

void Aside::giveUp() const
{
    folder_.remove(fileName());
    kept_.removeEmpty(folder_.name());
}

// What fails before there is a copy has changed nothing, either.
template <class Step>
auto orUnchanged(Step step)
{
    try {
        return step();
    } catch (const values::RuntimeFailure& failure) {
        throw Refusal(exit_code::Failed, QStringLiteral("Nothing was changed: %1.").arg(failure.text()));
    }
}

} // namespace

void refuseStale()
{
    throw Refusal(exit_code::Failed, QStringLiteral("Nothing was changed: the file is another one by now."));
}

QString changeBehindCopy(const std::function<void(const Household& today)>& refuseStale,
    const std::function<void(qint64 generation)>& change)
{
    const sys::RunLock alone = orUnchanged(
        [] { return sys::RunLock(sys::Folder::made(places::earlierBackupsFolder()), restoring::LockName); });
    if (!alone.isHeld())
        throw Refusal(exit_code::InUse, QStringLiteral("A restore is under way."));
    orUnchanged([] { restoring::clear_Remains(); });
    const Aside aside = orUnchanged([] { return Aside(); });
    try {
        settle();
        change(aside.make(refuseStale));
    } catch (const values::RuntimeFailure& failure) {
        aside.giveUp();
        if (storage::isInUse(places::databaseFile()))
            refuseInUse();
        throw Refusal(exit_code::Failed, QStringLiteral("Nothing was changed: %1.").arg(failure.text()));
    } catch (const Refusal&) {
        aside.giveUp();
        throw;
    }
    return aside.name();
}

} // namespace aside
