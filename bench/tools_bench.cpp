// SPDX-License-Identifier: GPL-3.0-or-later
// The check and the export of a household, beside the same file checked and read by the bare engine, and beside the PDF
// files alone, which are most of an export.
#include "bare_database.h"
#include "sample_database.h"
#include "tools/checking.h"
#include "tools/exporting.h"
#include "tools/report_files.h"
#include "tools/table_texts.h"
#include "tools/text_file.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

/// The sample with the row of the household, which the others don't need.
QString sampleHousehold(int assets)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("%1.db").arg(assets));
    if (!QFile::copy(sampleDatabase(assets), path))
        return path; // made before
    DataStore store;
    store.Home.open(path, databaseKey());
    store.rsGeneral.Open();
    store.rsGeneral.AddNew();
    for (int column = General::Last; column < General::AssetValue; ++column)
        store.rsGeneral.Fields(column) = "None";
    store.rsGeneral.Update();
    return path;
}

void readBare(benchmark::State& state)
{
    const QString path = sampleHousehold(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state) {
        BareDatabase database(path);
        database.run("PRAGMA cache_size=-65536");
        database.run("PRAGMA quick_check");
        for (const storage::TableDefinition* table : databaseTables())
            readTable(database, *table);
    }
}

void checkHousehold(benchmark::State& state)
{
    const QString path = sampleHousehold(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state) {
        const Household household(path);
        benchmark::DoNotOptimize(checking::findings(household));
        benchmark::DoNotOptimize(checking::sums(household));
    }
}

/// The rows of all tables, in both forms, without the reports.
void writeRows(benchmark::State& state)
{
    const QString path = sampleHousehold(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state) {
        const Household household(path);
        const QTemporaryDir folder;
        TextFile csv(folder.filePath("csv"));
        TextFile json(folder.filePath("json"));
        for (const storage::Snapshot& table : household.tables()) {
            for (int row = 0; row < table.rowCount(); ++row) {
                csv.write(table_texts::csvRow(table, row));
                json.write(table_texts::jsonRow(table, row));
            }
        }
        csv.finish();
        json.finish();
    }
}

void writeReports(benchmark::State& state)
{
    const Household household(sampleHousehold(static_cast<int>(state.range(0))));
    const QTemporaryDir folder;
    for ([[maybe_unused]] auto round : state)
        for (const ReportFile& report : reportsOf(household))
            report::savePdf(*report.pages, folder.filePath(report.name));
}

void exportHousehold(benchmark::State& state)
{
    const QString path = sampleHousehold(static_cast<int>(state.range(0)));
    const QTemporaryDir folder;
    for ([[maybe_unused]] auto round : state) {
        const Household household(path);
        exporting::write(household, folder.filePath(QStringLiteral("out")), exporting::Former::Replaced);
    }
}

} // namespace

BENCHMARK(readBare)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(checkHousehold)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeRows)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeReports)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(exportHousehold)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
