// SPDX-License-Identifier: GPL-3.0-or-later
// The data store beside the bare engine doing the same work under the same settings: each pair of lines is to be
// compared.
#include "bare_database.h"
#include "data/data_store.h"
#include "platform/storage/sql.h"
#include "sample_database.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <cstdlib>
#include <memory>

namespace {

using storage::TableView;

constexpr int copiedColumns = Print::Description + 1;

const storage::TableDefinition& table(const char* name)
{
    for (const storage::TableDefinition* definition : databaseTables()) {
        if (std::string_view(definition->name) == name)
            return *definition;
    }
    std::abort();
}

void openViews(DataStore& store, int assets)
{
    store.Home.setFile(sampleDatabase(assets), databaseKey());
    for (TableView* view : {&store.rsGeneral, &store.rsBank, &store.rsIndoor, &store.rsMobile, &store.rsInventory,
             &store.rsOutdoor, &store.rsPrint})
        view->Open();
}

void openBare(benchmark::State& state)
{
    const QString path = sampleDatabase(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        BareDatabase database(path);
        for (const storage::TableDefinition* definition : databaseTables())
            readTable(database, *definition, lookAt);
    }
}

void openStore(benchmark::State& state)
{
    const int assets = static_cast<int>(state.range(0));
    sampleDatabase(assets);
    std::size_t bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        auto store = std::make_unique<DataStore>();
        state.ResumeTiming();
        openViews(*store, assets);
        state.PauseTiming();
        bytes = mallinfo2().uordblks + mallinfo2().hblkhd - before;
        store.reset();
        state.ResumeTiming();
    }
    state.counters["MiB"] = static_cast<double>(bytes) / (1024 * 1024);
}

void walk(benchmark::State& state)
{
    DataStore store;
    openViews(store, static_cast<int>(state.range(0)));
    TableView& view = store.rsInventory;
    for (auto _ : state) {
        qsizetype length = 0;
        for (view.MoveFirst(); !view.atEOF(); view.MoveNext()) {
            for (int column = 0; column < copiedColumns; ++column)
                length += view.Fields(column).text().size();
        }
        benchmark::DoNotOptimize(length);
    }
}

void find(benchmark::State& state)
{
    DataStore store;
    openViews(store, static_cast<int>(state.range(0)));
    TableView& view = store.rsInventory;
    for (auto _ : state) {
        view.MoveFirst();
        while (!view.atEOF() && !(view.Fields(Inventory::ID) == -1))
            view.MoveNext();
    }
}

void sort(benchmark::State& state)
{
    DataStore store;
    openViews(store, static_cast<int>(state.range(0)));
    for (auto _ : state)
        store.rsInventory.Sort(QStringLiteral("Make"));
}

void updateBare(benchmark::State& state)
{
    BareDatabase database(sampleDatabase(static_cast<int>(state.range(0))));
    sqlite3_stmt* update = database.prepare("UPDATE Inventory SET Make = ? WHERE ID = 1");
    int turn = 0;
    for (auto _ : state) {
        const QByteArray make = QByteArray::number(++turn);
        sqlite3_bind_text(update, 1, make.constData(), -1, SQLITE_STATIC);
        sqlite3_step(update);
        BareDatabase::check(sqlite3_reset(update));
    }
    sqlite3_finalize(update);
}

void updateStore(benchmark::State& state)
{
    DataStore store;
    openViews(store, static_cast<int>(state.range(0)));
    int turn = 0;
    for (auto _ : state) {
        store.rsInventory.Fields(Inventory::Make) = ++turn;
        store.rsInventory.Update();
    }
}

// One transaction: the table emptied, the assets inserted. The texts are made outside the time measured.
void stageBare(benchmark::State& state)
{
    const int assets = static_cast<int>(state.range(0));
    BareDatabase database(sampleDatabase(assets));
    std::vector<std::vector<QByteArray>> rows;
    for (int asset = 0; asset < assets; ++asset) {
        std::vector<QByteArray>& row = rows.emplace_back();
        row.push_back(QByteArray::number(asset + 1));
        for (int column = 1; column < copiedColumns; ++column)
            row.push_back(sampleText(asset, column).toUtf8());
    }
    sqlite3_stmt* insert = database.prepare(storage::sql::insertRow(table("Print")));
    for (auto _ : state) {
        database.run("BEGIN; DELETE FROM Print");
        for (const std::vector<QByteArray>& row : rows) {
            for (int column = 0; column < copiedColumns; ++column) {
                const QByteArray& text = row[static_cast<std::size_t>(column)];
                sqlite3_bind_text(insert, column + 1, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
            }
            sqlite3_step(insert);
            BareDatabase::check(sqlite3_reset(insert));
        }
        database.run("COMMIT");
    }
    sqlite3_finalize(insert);
}

void clear(TableView& view)
{
    if (view.RecordCount() == 0)
        return;
    for (view.MoveFirst(); !view.atEOF(); view.MoveNext()) {
        view.Delete();
        view.Update();
    }
}

void stageStore(benchmark::State& state)
{
    DataStore store;
    openViews(store, static_cast<int>(state.range(0)));
    TableView& from = store.rsInventory;
    TableView& to = store.rsPrint;
    for (auto _ : state) {
        clear(to);
        for (from.MoveFirst(); !from.atEOF(); from.MoveNext()) {
            to.AddNew();
            for (int column = 0; column < copiedColumns; ++column)
                to.Fields(column) = from.Fields(column).text();
            to.Update();
        }
        store.Home.commitPending();
    }
}

} // namespace

BENCHMARK(openBare)->Arg(0)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(openStore)->Arg(0)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(walk)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(find)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(sort)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(updateBare)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(updateStore)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(stageBare)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(stageStore)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
