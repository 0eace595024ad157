// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/proofs.h"

#include "data/data_store.h"
#include "data/places.h"
#include "platform/storage/file_reader.h"
#include "platform/storage/schema.h"
#include "platform/system/folder.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>

using storage::Snapshot;
using values::Currency;
using values::RuntimeFailure;

namespace proofs {

namespace {

const QString FileName = QStringLiteral(".proofs");
constexpr std::size_t MostEntries = 200; // some of files that are gone

enum Column { State, Assets, Total };
constexpr storage::Column columns[] = {{"State"}, {"Assets"}, {"Total"}};
constexpr storage::TableDefinition table{"Proofs", columns, true};
constexpr const storage::TableDefinition* tables[] = {&table};

// A key as the engine takes it as it is: to make one of a passphrase is slow on purpose.
QByteArray bookKey()
{
    return "x'" + QCryptographicHash::hash(databaseKey().passphrase, QCryptographicHash::Sha256).toHex() + '\'';
}

} // namespace

std::optional<Currency> sumOf(const Snapshot& inventory)
{
    Currency sum;
    try {
        for (int row = 0; row < inventory.rowCount(); ++row)
            sum += Currency::tryParse(inventory.text(row, Inventory::Amount)).value_or(Currency());
    } catch (const RuntimeFailure&) {
        return std::nullopt;
    }
    return sum;
}

QString stateOf(const QString& path)
{
    const QFileInfo file(path);
    try {
        const sys::Folder folder(file.path());
        const auto found = folder.look(file.fileName());
        const auto journal = folder.look(file.fileName() + QStringLiteral("-journal"));
        if (!found || found->kind != sys::Kind::File || (journal && journal->size > 0))
            return {};
        return QStringLiteral("%1 %2 %3 %4")
            .arg(found->number)
            .arg(found->size)
            .arg(found->modified)
            .arg(found->changed);
    } catch (const RuntimeFailure&) {
        return {};
    }
}

Contents contentsOf(const Snapshot& inventory)
{
    const std::optional<Currency> sum = sumOf(inventory);
    return {inventory.rowCount(), sum ? sum->toText() : QStringLiteral("?")};
}

Book::Book()
{
    const QString file = places::earlierBackupsFolder() + u'/' + FileName;
    if (!QFileInfo(file).isFile())
        return;
    try {
        const Snapshot rows = storage::FileReader(file, bookKey()).rows(table);
        for (int row = 0; row < rows.rowCount(); ++row)
            entries_.push_back({rows.text(row, State), {rows.text(row, Assets).toLongLong(), rows.text(row, Total)}});
    } catch (const RuntimeFailure&) {
        // As if nothing had been proved yet.
    }
}

std::optional<Contents> Book::of(const QString& file) const
{
    const QString state = stateOf(file);
    const auto found = std::ranges::find(entries_, state, &Entry::state);
    return state.isEmpty() || found == entries_.end() ? std::nullopt : std::optional(found->contents);
}

void Book::enter(const QString& state, const Contents& contents)
{
    if (state.isEmpty())
        return;
    std::erase_if(entries_, [&state](const Entry& entry) { return entry.state == state; });
    entries_.push_back({state, contents});
    if (entries_.size() > MostEntries)
        entries_.erase(entries_.begin());
    hasChanged_ = true;
}

void Book::write()
{
    if (!hasChanged_)
        return;
    const sys::Folder folder = sys::Folder::made(places::earlierBackupsFolder());
    const QString fresh = FileName + QStringLiteral(".new");
    folder.remove(fresh + QStringLiteral("-journal"));
    folder.remove(fresh);
    storage::createDatabase(folder.wayTo(fresh), bookKey(), tables);
    storage::Connection connection;
    storage::TableView view(connection, table);
    connection.setFile(folder.wayTo(fresh), bookKey());
    view.Open();
    for (const Entry& entry : entries_) {
        view.AddNew();
        view.Fields(State) = entry.state;
        view.Fields(Assets) = QString::number(entry.contents.assets);
        view.Fields(Total) = entry.contents.total;
        view.Update();
    }
    connection.close();
    folder.rename(fresh, FileName);
    hasChanged_ = false;
}

} // namespace proofs
