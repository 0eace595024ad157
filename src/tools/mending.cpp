// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/mending.h"

#include "data/data_store.h"
#include "data/earlier_backups.h"
#include "data/name_markers.h"
#include "data/places.h"
#include "platform/storage/file_lock.h"
#include "platform/storage/statement.h"
#include "platform/system/files.h"
#include "tools/checking.h"
#include "tools/exit_codes.h"
#include "tools/restoring.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <string_view>

using storage::FileReader;
using storage::TableView;

namespace mending {

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

    void make(const std::vector<Mend>& mends) const;
    void giveUp() const;
    qint64 generation() const { return storage::generationOf(opened().get()); }
    QString name() const { return folder_.name(); }

private:
    static QString fileName() { return QFileInfo(places::databaseFile()).fileName(); }
    QString file() const { return folder_.pathOf(fileName()); }
    storage::Handle opened() const { return storage::openFile(file(), databaseKey(), storage::Access::ReadOnly); }

    sys::Folder kept_;
    sys::Folder folder_;
};

void Aside::make(const std::vector<Mend>& mends) const
{
    const storage::FileLock alone(places::databaseFile());
    if (!alone.isHeld())
        refuseInUse();
    const Household today(places::databaseFile(), FileReader::Locks::Passed);
    const std::vector<Mend> now = possible(today);
    for (const Mend& mend : mends)
        if (std::find(now.begin(), now.end(), mend) == now.end())
            throw Refusal(exit_code::Failed, QStringLiteral("Nothing was changed: the file is another one by now."));
    folder_.copy(sys::Folder(QFileInfo(places::databaseFile()).path()), fileName(), fileName());
    if (rowsOf(Household(file())) != rowsOf(today))
        throw Refusal(exit_code::Failed, QStringLiteral("Nothing was changed: %1 is no whole copy.").arg(file()));
    folder_.sync();
    kept_.sync();
}

void Aside::giveUp() const
{
    folder_.remove(fileName());
    kept_.removeEmpty(folder_.name());
}

values::Currency sumOf(TableView& assets)
{
    values::Currency sum;
    for (rewind(assets); !assets.atEOF(); assets.MoveNext())
        sum += assets.Fields(Inventory::Amount).currency();
    return sum;
}

TableView& nameTable(DataStore& store, std::string_view table)
{
    if (table == "Indoor_Items")
        return store.rsIndoor;
    return table == "Outdoor_Items" ? store.rsOutdoor : store.rsMobile;
}

void addMarkerRow(TableView& table)
{
    table.Open();
    table.AddNew();
    table.Fields(Names::Location) = names::LocationMarker;
    table.Fields(Names::Category) = names::CategoryMarker;
    table.Fields(Names::Type) = names::ItemMarker;
    table.Fields(Names::Standard) = "1";
    table.Update();
}

void mend(DataStore& store, const Mend& mend)
{
    switch (mend.kind) {
    case Mend::Kind::RunningTotal:
        store.rsGeneral.Fields(General::AssetValue) = sumOf(store.rsInventory);
        store.rsGeneral.Update();
        break;
    case Mend::Kind::Alert:
        store.rsGeneral.Fields(General::PolicyNotify) = "No";
        store.rsGeneral.Update();
        break;
    case Mend::Kind::MarkerRow:
        addMarkerRow(nameTable(store, mend.table));
        break;
    }
}

void mendAll(const std::vector<Mend>& mends, qint64 generation)
{
    DataStore store;
    store.Home.open(places::databaseFile(), databaseKey());
    if (storage::generationOf(store.Home.handle()) != generation) // between the copy and this moment
        throw Refusal(exit_code::Failed, QStringLiteral("Nothing was changed: the file is another one by now."));
    store.rsGeneral.Open();
    store.rsInventory.Open();
    storage::Transaction all(store.Home.handle());
    for (const Mend& each : mends)
        mend(store, each);
    all.commit();
}

} // namespace

std::vector<Mend> possible(const Household& household)
{
    std::vector<Mend> mends;
    const bool isOneHousehold = household.table("Personal_Info").rowCount() == 1;
    if (isOneHousehold && checking::is_Sum_Known(household) && checking::is_Total_Off(household))
        mends.push_back({Mend::Kind::RunningTotal, "Personal_Info",
            QStringLiteral("Set the running total to %1, the sum of the amounts").arg(household.total()->toText())});
    if (isOneHousehold && checking::does_Alert_Stop(household))
        mends.push_back({Mend::Kind::Alert, "Personal_Info",
            QStringLiteral("Turn off the alert about the insurance policy, whose date stays as it is")});
    for (const char* table : checking::NameTables)
        if (checking::lacks_Marker_Row(household.table(table)))
            mends.push_back({Mend::Kind::MarkerRow, table,
                QStringLiteral("Add the row to %1 that leads to the list editors").arg(QString::fromUtf8(table))});
    return mends;
}

QString carry_Out(const std::vector<Mend>& mends)
{
    const sys::RunLock alone(sys::Folder::made(places::earlierBackupsFolder()), restoring::LockName);
    if (!alone.isHeld())
        throw Refusal(exit_code::InUse, QStringLiteral("A restore is under way."));
    restoring::clear_Remains();
    const Aside aside;
    try {
        settle();
        aside.make(mends);
        mendAll(mends, aside.generation());
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

} // namespace mending
