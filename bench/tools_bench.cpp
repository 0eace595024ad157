// SPDX-License-Identifier: GPL-3.0-or-later
// The check and the export of a household, beside the same file checked and read by the bare engine, and beside the PDF
// files alone, which are most of an export; the import of a table, beside one bare transaction of the same rows.
#include "bare_database.h"
#include "data/places.h"
#include "sample_database.h"
#include "tools/checking.h"
#include "tools/exporting.h"
#include "tools/importing.h"
#include "tools/report_files.h"
#include "tools/table_texts.h"
#include "tools/text_file.h"

#include <QDir>
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

void readAllBare(const QString& path, auto use)
{
    BareDatabase database(path);
    database.run("PRAGMA cache_size=-65536");
    database.run("PRAGMA quick_check");
    for (const storage::TableDefinition* table : databaseTables())
        readTable(database, *table, use);
}

void readBare(benchmark::State& state)
{
    const QString path = sampleHousehold(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state)
        readAllBare(path, lookAt);
}

/// The same rows read, and each text written as it is into two files: a comma behind it, its column's name before it.
void writeRowsBare(benchmark::State& state)
{
    const QString path = sampleHousehold(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state) {
        const QTemporaryDir folder;
        TextFile csv(folder.filePath("csv"));
        TextFile json(folder.filePath("json"));
        readAllBare(path, [&csv, &json](const char* cell) {
            csv.write(cell);
            csv.write(",");
            json.write(R"("ItemColumn": ")");
            json.write(cell);
            json.write("\", ");
        });
        csv.finish();
        json.finish();
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

/// The household that the program comes with, where it looks for one, and a table of so many assets.
class ImportedTable {
public:
    explicit ImportedTable(int assets)
    {
        places::setFolders(folder_.filePath(QStringLiteral("data")), folder_.filePath(QStringLiteral("backup")));
        QDir().mkpath(places::databaseFolder());
        QFile table(path());
        table.open(QIODevice::WriteOnly);
        table.write("Area,Location,Category,Item,Make,Model,Serial,Date,Price,Description\n");
        for (int i = 0; i < assets; ++i)
            table.write(QStringLiteral("Indoor,Room %1,Category %2,Item %3,Make %4,M-%5,S%5,2006-07-%6,%5.50,Note %5\n")
                            .arg(i % 20)
                            .arg(i % 15)
                            .arg(i % 300)
                            .arg(i % 100)
                            .arg(i)
                            .arg(i % 28 + 1, 2, 10, QLatin1Char('0'))
                            .toUtf8());
        beginAnew();
    }

    QString path() const { return folder_.filePath(QStringLiteral("table.csv")); }

    static void beginAnew()
    {
        QDir(places::earlierBackupsFolder()).removeRecursively();
        QFile::remove(places::databaseFile());
        QFile::copy(QStringLiteral(KESTRILL_SHIPPED_DATABASE), places::databaseFile());
    }

    importing::Plan plan() const
    {
        return importing::planned(importing::Source(path()), {}, Household(places::databaseFile()));
    }

private:
    QTemporaryDir folder_;
};

void insertBare(benchmark::State& state)
{
    const ImportedTable table(static_cast<int>(state.range(0)));
    const importing::Plan plan = table.plan();
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        ImportedTable::beginAnew();
        BareDatabase database(places::databaseFile());
        sqlite3_stmt* insert = database.prepare(
            "INSERT INTO Inventory VALUES (NULL" + QByteArray(", ?").repeated(Inventory::WarrantyDescription) + ')');
        std::vector<std::vector<std::string>> rows;
        for (const importing::Asset& asset : plan.assets)
            for (std::vector<std::string>& row = rows.emplace_back(); const QString& text : asset)
                row.push_back(text.toStdString());
        state.ResumeTiming();
        database.run("BEGIN IMMEDIATE");
        for (const std::vector<std::string>& row : rows) {
            for (int column = Inventory::Area; column <= Inventory::WarrantyDescription; ++column) {
                const std::string& text = row[static_cast<std::size_t>(column)];
                sqlite3_bind_text(insert, column, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
            }
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
        database.run("COMMIT");
        sqlite3_finalize(insert);
    }
}

void carryOutImport(benchmark::State& state)
{
    const ImportedTable table(static_cast<int>(state.range(0)));
    const importing::Plan plan = table.plan();
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        ImportedTable::beginAnew();
        state.ResumeTiming();
        benchmark::DoNotOptimize(importing::carry_Out(plan));
    }
}

void planImport(benchmark::State& state)
{
    const ImportedTable table(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(table.plan());
}

} // namespace

BENCHMARK(readBare)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(checkHousehold)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeRowsBare)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeRows)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeReports)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(exportHousehold)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(insertBare)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(carryOutImport)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(planImport)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
