// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/comparison.h"

#include "tools/checking.h"

#include <map>
#include <string>

using storage::Snapshot;

namespace {

// A row as one text, which no other row has: each cell stands behind its length.
std::string contentsOf(const Snapshot& table, int row)
{
    std::string contents;
    const int columns = static_cast<int>(table.definition().columns.size());
    for (int column = 0; column < columns; ++column) {
        const std::string_view cell = table.utf8(row, column);
        contents.append(std::to_string(cell.size())).append(1, ':').append(cell);
    }
    return contents;
}

struct Changes {
    int entered = 0; // today, and not in the backup
    int changed = 0;
    int deleted = 0; // in the backup alone
};

// Rows that the database numbers, by their numbers.
Changes numberedChanges(const Snapshot& today, const Snapshot& backup)
{
    std::map<std::string_view, int> rows;
    for (int row = 0; row < backup.rowCount(); ++row)
        rows.emplace(backup.utf8(row, 0), row);
    Changes changes;
    for (int row = 0; row < today.rowCount(); ++row) {
        const auto found = rows.find(today.utf8(row, 0));
        if (found == rows.end())
            ++changes.entered;
        else if (contentsOf(today, row) != contentsOf(backup, found->second))
            ++changes.changed;
    }
    changes.deleted = backup.rowCount() - (today.rowCount() - changes.entered);
    return changes;
}

// Rows of one table that the other doesn't have, each as often as it is there.
int missingRows(const Snapshot& table, const Snapshot& other)
{
    std::map<std::string, int> there;
    for (int row = 0; row < other.rowCount(); ++row)
        ++there[contentsOf(other, row)];
    int missing = 0;
    for (int row = 0; row < table.rowCount(); ++row)
        if (there[contentsOf(table, row)]-- <= 0)
            ++missing;
    return missing;
}

// A name that has changed can't be known again: it is one more here and one more there.
int missingNames(const Household& household, const Household& other)
{
    int missing = 0;
    for (const char* table : checking::NameTables)
        missing += missingRows(household.table(table), other.table(table));
    return missing;
}

void tell(QStringList& lines, int count, const QString& one, const QString& many, const QString& what)
{
    if (count > 0)
        lines.append(counted(count, one, many) + what);
}

void tellNumbered(QStringList& lines, const Changes& changes, const QString& one, const QString& many)
{
    tell(lines, changes.entered, one, many, QStringLiteral(" entered since then would be lost."));
    tell(lines, changes.changed, one, many, QStringLiteral(" changed since then would be as before."));
    tell(lines, changes.deleted, one, many, QStringLiteral(" deleted since then would come back."));
}

} // namespace

QStringList what_Is_Lost(const Household& today, const Household& backup)
{
    QStringList lines;
    tellNumbered(lines, numberedChanges(today.table("Inventory"), backup.table("Inventory")), QStringLiteral("asset"),
        QStringLiteral("assets"));
    tellNumbered(lines, numberedChanges(today.table("Bank_Info"), backup.table("Bank_Info")), QStringLiteral("account"),
        QStringLiteral("accounts"));
    tell(lines, missingNames(today, backup), QStringLiteral("name"), QStringLiteral("names"),
        QStringLiteral(" added to the lists or changed since then would be lost."));
    tell(lines, missingNames(backup, today), QStringLiteral("name"), QStringLiteral("names"),
        QStringLiteral(" deleted from the lists or changed since then would come back."));
    if (missingRows(today.table("Personal_Info"), backup.table("Personal_Info")) > 0)
        lines.append(QStringLiteral("The personal information and the policy would be as before."));
    return lines;
}
