// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/ending.h"

#include "data/data_store.h"
#include "data/places.h"
#include "platform/values/failure.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>

using storage::TableCount;
using storage::TableView;

namespace ending {

namespace {

struct ViewOfTable {
    TableView DataStore::*view;
    const char* table;
};

constexpr ViewOfTable closingOrder[] = {
    {&DataStore::rsBank, "Bank_Info"},
    {&DataStore::rsGeneral, "Personal_Info"},
    {&DataStore::rsPrint, "Print"},
    {&DataStore::rsMobile, "Mobile_Items"},
    {&DataStore::rsIndoor, "Indoor_Items"},
    {&DataStore::rsOutdoor, "Outdoor_Items"},
    {&DataStore::rsInventory, "Inventory"},
};

// What each table held when the store was closed, and what failed then.
struct LastSeen {
    std::vector<TableCount> rows;
    QString failure;
    bool lacksBackup = false; // closed, and not backed up yet
};

LastSeen& lastSeen()
{
    static LastSeen instance;
    return instance;
}

// A second step of one end meets views that the first one has closed, and adds nothing.
void rememberRows()
{
    const auto isOpen = [](const ViewOfTable& closing) { return (Data1.*closing.view).isOpen(); };
    if (!std::all_of(std::begin(closingOrder), std::end(closingOrder), isOpen))
        return;
    lastSeen() = {};
    for (const ViewOfTable& closing : closingOrder)
        lastSeen().rows.push_back({closing.table, (Data1.*closing.view).RecordCount()});
}

template <typename Step>
void noteFailure(Step step)
{
    try {
        step();
    } catch (const values::RuntimeFailure& failure) {
        lastSeen().failure = failure.text();
        throw;
    }
}

void readThrough()
{
    const std::vector<TableCount> found = storage::checkDatabase(places::databaseFile(), databaseKey());
    for (const TableCount& count : lastSeen().rows)
        if (std::find(found.begin(), found.end(), count) == found.end())
            throw values::RuntimeFailure(values::FailureKind::Database,
                QStringLiteral("%1 doesn't hold its %2 rows any more").arg(count.table).arg(count.rows));
}

QString journalAdvice()
{
    const QFileInfo journal(places::databaseFile() + QStringLiteral("-journal"));
    if (journal.size() == 0)
        return {};
    return QStringLiteral("\nLeave %1 beside it: the next start mends the database by it.").arg(journal.fileName());
}

QString backupPlace()
{
    const QFileInfo backup(places::backupFolder() + u'/' + QFileInfo(places::databaseFile()).fileName());
    if (!backup.exists())
        return QStringLiteral("There is no backup yet.");
    return QStringLiteral("The backup of the last normal close: ") + backup.filePath();
}

QString missingBackup()
{
    if (!lastSeen().lacksBackup)
        return {};
    return QStringLiteral("\nNo backup of it could be made in %1.").arg(places::backupFolder());
}

} // namespace

std::vector<TableCount> closeViews()
{
    rememberRows();
    noteFailure([] {
        for (const ViewOfTable& closing : closingOrder)
            (Data1.*closing.view).Close();
    });
    lastSeen().lacksBackup = true;
    return lastSeen().rows;
}

void noteBackup()
{
    lastSeen().lacksBackup = false;
}

bool closeStore()
{
    rememberRows();
    try {
        noteFailure([] { Data1.Home.close(); });
        return true;
    } catch (const values::RuntimeFailure& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return false;
    }
}

QString whatIsKnown()
{
    QString wrong = lastSeen().failure;
    try {
        if (wrong.isEmpty()) {
            readThrough();
            return QStringLiteral("Everything that you saved is safe.") + missingBackup();
        }
    } catch (const values::RuntimeFailure& failure) {
        wrong = failure.text();
    }
    return QStringLiteral("Your data may not be whole.\nThe file with your list: %1%2\n%3\nWhat was found: %4")
        .arg(places::databaseFile(), journalAdvice(), backupPlace(), wrong);
}

} // namespace ending
