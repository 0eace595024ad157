// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmProgress.h"

#include "data/data_store.h"
#include "data/earlier_backups.h"
#include "data/places.h"
#include "frame/ending.h"
#include "frame/frmExit.h"
#include "platform/storage/schema.h"
#include "platform/system/folder_copy.h"
#include "platform/values/failure.h"

#include <algorithm>

using storage::TableCount;
using storage::TableView;

struct frmProgress::NameTable {
    TableView DataStore::*view;
    bool emptiesBar;
    bool standardIsNumber;
};

namespace {

// All four values are read, whatever the first ones are.
bool isBlankName(TableView& view, bool standardIsNumber)
{
    const bool location = view.Fields(Names::Location) == "0";
    const bool category = view.Fields(Names::Category) == "0";
    const bool type = view.Fields(Names::Type) == "0";
    const bool standard = standardIsNumber ? view.Fields(Names::Standard) == 0 : view.Fields(Names::Standard) == "0";
    return location && category && type && standard;
}

// Refuses a copy of the database that can't be opened and read through, or lacks a row.
void proveDatabase(const QString& copy, const std::vector<TableCount>& counts)
{
    const std::vector<TableCount> copied = storage::checkDatabase(copy, databaseKey());
    for (const TableCount& count : counts)
        if (std::find(copied.begin(), copied.end(), count) == copied.end())
            throw values::RuntimeFailure(values::FailureKind::Database,
                QStringLiteral("the backup copy of %1 doesn't hold its %2 rows").arg(count.table).arg(count.rows));
}

// An empty journal that couldn't be removed stays where it is, and so does what a restore that was killed has left.
bool isRemains(const QString& file)
{
    return file.endsWith(QLatin1String("-journal"))
        || file.startsWith(places::databaseFile() + places::RestoringSuffix);
}

// Nothing of the earlier backups is given up before the new one is in place.
QString back_Up_Database(const std::vector<TableCount>& counts, const proofs::Contents& contents)
{
    bool isProved = false;
    const auto proof = [&](const QString& source, const QString& copy) {
        if (source != places::databaseFile())
            return;
        proveDatabase(copy, counts);
        isProved = true;
    };
    earlier::Keeping earlierBackups;
    sys::copyFolder(places::databaseFolder(), places::backupFolder(), proof, isRemains);
    if (!isProved) // a link, say, leads to the data and is none
        throw values::RuntimeFailure(values::FailureKind::File,
            QStringLiteral("the backup holds no database, since %1 is no file").arg(places::databaseFile()));
    earlierBackups.thin(contents);
    return earlierBackups.trouble();
}

} // namespace

frmProgress::frmProgress()
    : forms::Form("frmProgress")
{
    look();
}

void frmProgress::Form_Activate()
{
    close_Program();
}

void frmProgress::Form_Unload(bool& cancel)
{
    cancel = true;
}

void frmProgress::close_Program()
{
    // The first table leaves the bar's value, and the second compares its last column with a number: on purpose.
    purge_Blank_Names({&DataStore::rsIndoor, false, false});
    purge_Blank_Names({&DataStore::rsOutdoor, true, true});
    purge_Blank_Names({&DataStore::rsMobile, true, false});
    const proofs::Contents contents = proofs::contentsOf(Data1.rsInventory.snapshot());
    const QString trouble = back_Up_Database(ending::closeViews(), contents);
    ending::noteBackup();
    hide();
    forms::screen<frmExit>().tell(trouble);
}

void frmProgress::purge_Blank_Names(const NameTable& table)
{
    TableView& view = Data1.*table.view;
    if (view.RecordCount() == 0)
        return; // the bar has no full scale of 0
    if (table.emptiesBar)
        pbSave.setValue(0);
    pbSave.setMax(view.RecordCount());
    if (!view.atBOF())
        view.MoveFirst();
    for (; !view.atEOF(); view.MoveNext()) {
        pbSave.setValue(pbSave.value() + 1);
        if (!isBlankName(view, table.standardIsNumber))
            continue;
        view.Delete();
        view.Update();
    }
}
