// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/household.h"

#include "data/data_store.h"
#include "data/proofs.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"

#include <algorithm>

using storage::FileReader;
using storage::Snapshot;
using values::Currency;
using values::RuntimeFailure;

namespace {

// What a failure says behind its kind.
QString reasonOf(const RuntimeFailure& failure)
{
    return failure.text().section(QStringLiteral(": "), 1);
}

// Runs a step of the reading; what fails in it is told with what that means.
template <class Step>
auto orUnreadable(const QString& state, Step step)
{
    try {
        return step();
    } catch (const storage::FileInUse& failure) {
        throw UnreadableHousehold(QStringLiteral("In use"), reasonOf(failure));
    } catch (const RuntimeFailure& failure) {
        throw UnreadableHousehold(state, reasonOf(failure));
    }
}

FileReader openedReader(const QString& file, FileReader::Locks locks)
{
    const sys::Kind kind = sys::kindOf(file);
    if (kind == sys::Kind::Nothing && !sys::isOutOfSight(file))
        throw UnreadableHousehold(QStringLiteral("Missing"), file + QStringLiteral(" does not exist"));
    if (!sys::isReadable(file))
        throw UnreadableHousehold(QStringLiteral("No permission"), file + QStringLiteral(" can't be read"));
    if (kind != sys::Kind::File)
        throw UnreadableHousehold(QStringLiteral("Damaged or foreign"), file + QStringLiteral(" is no regular file"));
    return orUnreadable(QStringLiteral("Damaged or foreign"), [&] { return FileReader(file, databaseKey(), locks); });
}

} // namespace

UnreadableHousehold::UnreadableHousehold(const QString& state, const QString& reason)
    : RuntimeFailure(values::FailureKind::Database, reason)
    , state_(state)
    , reason_(reason)
{
}

Household::Household(const QString& file, FileReader::Locks locks)
{
    FileReader reader = openedReader(file, locks);
    journal_ = reader.journal();
    orUnreadable(QStringLiteral("Damaged"), [&reader] { reader.readThrough(); });
    for (const storage::TableDefinition* table : databaseTables())
        tables_.push_back(orUnreadable(QStringLiteral("Another version"), [&] { return reader.rows(*table); }));
    if (this->table("Personal_Info").rowCount() == 0)
        throw UnreadableHousehold(QStringLiteral("Another version"), QStringLiteral("it holds no household"));
    orUnreadable(QStringLiteral("Damaged"), [&] {
        generation_ = reader.generation();
        lastAsset_ = reader.lastNumber(this->table("Inventory").definition());
    });
    total_ = proofs::sumOf(this->table("Inventory"));
}

const Snapshot& Household::table(std::string_view name) const
{
    return *std::find_if(
        tables_.begin(), tables_.end(), [name](const Snapshot& table) { return name == table.definition().name; });
}

int Household::assets() const
{
    return table("Inventory").rowCount();
}

QString Household::summary() const
{
    return worth(assets(), total());
}

QString worth(int assets, const std::optional<Currency>& total)
{
    return counted(assets, QStringLiteral("asset"), QStringLiteral("assets")) + QStringLiteral(", ")
        + (total ? total->toText() : QStringLiteral("more than can be counted"));
}

QString counted(int count, const QString& one, const QString& many)
{
    return QString::number(count) + u' ' + (count == 1 ? one : many);
}
