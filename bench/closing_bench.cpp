// SPDX-License-Identifier: GPL-3.0-or-later
// The closing sequence with its proved backup, beside a plain copy of the same file, flushed, that the bare engine
// opens, checks and counts.
#include "data/data_store.h"
#include "data/places.h"
#include "frame/frmProgress.h"
#include "sample_database.h"

#include <benchmark/benchmark.h>
#include <sqlcipher/sqlite3.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

namespace {

void check(bool well)
{
    if (!well)
        std::abort();
}

/// A folder with the database and one for its backup.
class Household {
public:
    explicit Household(int assets)
    {
        check(QDir(folder_.path()).mkdir(QStringLiteral("data")));
        places::setFolders(folder_.filePath(QStringLiteral("data")), folder_.filePath(QStringLiteral("backup")));
        check(QFile::copy(sampleDatabase(assets), places::databaseFile()));
    }

private:
    QTemporaryDir folder_;
};

void openViews()
{
    useDatabase(places::databaseFile());
    for (storage::TableView* view : {&Data1.rsGeneral, &Data1.rsBank, &Data1.rsIndoor, &Data1.rsMobile,
             &Data1.rsInventory, &Data1.rsOutdoor, &Data1.rsPrint})
        view->Open();
}

void closeProgram(benchmark::State& state)
{
    const Household household(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        forms::destroyScreens();
        openViews();
        auto& progress = forms::screen<frmProgress>();
        state.ResumeTiming();
        progress.show();
        check(!Data1.Home.isOpen());
    }
    forms::destroyScreens();
    check(QFile::exists(places::backupFolder() + QStringLiteral("/KTL.db")));
}

void copyFlushed(const QString& source, const QString& target)
{
    const int from = ::open(QFile::encodeName(source).constData(), O_RDONLY | O_CLOEXEC);
    const int to = ::open(QFile::encodeName(target).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    check(from >= 0 && to >= 0);
    static char block[1 << 20];
    ssize_t count = 0;
    while ((count = ::read(from, block, sizeof block)) > 0)
        check(::write(to, block, static_cast<std::size_t>(count)) == count);
    check(count == 0 && ::fsync(to) == 0);
    ::close(to);
    ::close(from);
}

void run(sqlite3* database, const QByteArray& sql)
{
    check(sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK);
}

void proveBare(const QString& path)
{
    sqlite3* database = nullptr;
    check(sqlite3_open_v2(path.toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK);
    const QByteArray key = databaseKey().passphrase;
    check(sqlite3_key(database, key.constData(), static_cast<int>(key.size())) == SQLITE_OK);
    run(database, "PRAGMA cipher_compatibility = 3");
    run(database, "PRAGMA quick_check");
    for (const storage::TableDefinition* table : databaseTables())
        run(database, QByteArray("SELECT count(*) FROM ") + table->name);
    sqlite3_close(database);
}

void copyAndProveBare(benchmark::State& state)
{
    const Household household(static_cast<int>(state.range(0)));
    const QString copy = places::databaseFolder() + QStringLiteral("/copy.db");
    for ([[maybe_unused]] auto round : state) {
        copyFlushed(places::databaseFile(), copy);
        proveBare(copy);
    }
}

} // namespace

BENCHMARK(closeProgram)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(copyAndProveBare)->Arg(32000)->UseRealTime()->Unit(benchmark::kMillisecond);
