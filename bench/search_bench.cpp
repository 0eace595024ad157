// SPDX-License-Identifier: GPL-3.0-or-later
// The search beside the work that it can't do without: the rows copied and read by the bare engine, and one pass over
// the texts, folded beforehand.
#include "bare_database.h"
#include "sample_database.h"
#include "search/frmSearch.h"
#include "search/frmSearchResults.h"
#include "shared/theme.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <malloc.h>

#include <vector>

using forms::screen;

namespace {

constexpr int assets = 32'000;
constexpr int copiedColumns = Print::Description + 1;
const QString nowhere = QStringLiteral("quicksands");

double mebibytesInUse()
{
    return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / (1024 * 1024);
}

/// A copy of the sample database, open, with the search screen in front.
class Household {
public:
    Household()
    {
        if (!QFile::copy(sampleDatabase(assets), file()))
            qFatal("There is no room for a database");
        useDatabase(file());
        for (storage::TableView* view : {&Data1.rsGeneral, &Data1.rsBank, &Data1.rsIndoor, &Data1.rsMobile,
                 &Data1.rsInventory, &Data1.rsOutdoor, &Data1.rsPrint})
            view->Open();
        screen<frmSearchResults>();
        screen<frmSearch>().show();
    }

    ~Household()
    {
        forms::destroyScreens();
        Data1.Home.close();
    }

    Household(const Household&) = delete;
    Household& operator=(const Household&) = delete;

    QString file() const { return folder_.filePath(QStringLiteral("KTL.db")); }

private:
    QTemporaryDir folder_;
};

// With the commit that follows the handler, until the screen is painted.
template <class Handler>
void asUser(Handler handler)
{
    forms::runAsHandler(QStringLiteral("bench"), handler);
    QApplication::processEvents();
}

void searchFor(const QString& word)
{
    screen<frmSearch>().txtKey.setText(word);
    asUser([] { screen<frmSearch>().cmdContinue.press(); });
}

void searchAll(benchmark::State& state)
{
    const Household household;
    const double before = mebibytesInUse();
    searchFor({});
    state.counters["MiB"] = mebibytesInUse() - before;
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        asUser([] { screen<frmSearchResults>().cmdBack.press(); });
        state.ResumeTiming();
        searchFor({});
    }
    state.counters["found"] = static_cast<int>(screen<frmSearchResults>().MatchCount);
}

// As after an update of an asset, which may have changed what is found.
void returnToResults(benchmark::State& state)
{
    const Household household;
    searchFor({});
    int number = 0;
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        Data1.rsInventory.MoveFirst();
        Data1.rsInventory.Fields(Inventory::Make) = QStringLiteral("Make %1").arg(++number);
        Data1.rsInventory.Update();
        state.ResumeTiming();
        asUser([] {
            auto& results = screen<frmSearchResults>();
            results.FromSearchScreen = false;
            results.load_From_Search_Screen();
            results.show();
        });
    }
}

void sortByMake(benchmark::State& state)
{
    const Household household;
    searchFor({});
    for ([[maybe_unused]] auto round : state)
        asUser([] { screen<frmSearchResults>().lblSubHead[5].Click.fire(); });
}

void copyAndReadBare(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("KTL.db"));
    QFile::copy(sampleDatabase(assets), file);
    BareDatabase database(file);
    const storage::TableDefinition& print = *databaseTables().back();
    QByteArrayList columns;
    for (const storage::Column& column : print.columns)
        columns += storage::sql::quoted(column.name);
    const QByteArray list = columns.join(", ");
    const QByteArray copy = "INSERT INTO Print (" + list + ") SELECT " + list + " FROM Inventory";
    for ([[maybe_unused]] auto round : state) {
        database.run("BEGIN; DELETE FROM Print");
        database.run(copy);
        database.run("COMMIT");
        readTable(database, print, lookAt);
    }
}

void searchNowhere(benchmark::State& state)
{
    const Household household;
    const double before = mebibytesInUse();
    searchFor(nowhere);
    state.counters["MiB"] = mebibytesInUse() - before;
    for ([[maybe_unused]] auto round : state)
        searchFor(nowhere);
}

// The first search after the start, which folds the texts.
void searchNowhereFirst(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        {
            const Household household;
            state.ResumeTiming();
            searchFor(nowhere);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

void containsBare(benchmark::State& state)
{
    std::vector<QString> texts;
    for (int asset = 0; asset < assets; ++asset) {
        texts.push_back(QString::number(asset + 1));
        for (int column = 1; column < copiedColumns; ++column)
            texts.push_back(sampleText(asset, column).toUpper());
    }
    const QString word = nowhere.toUpper();
    for ([[maybe_unused]] auto round : state) {
        int found = 0;
        for (const QString& text : texts)
            found += text.contains(word);
        benchmark::DoNotOptimize(found);
    }
}

// Next, on the page before the last of so many rows.
void nextPage(benchmark::State& state)
{
    const Household household;
    searchFor({});
    auto& results = screen<frmSearchResults>();
    const int page = static_cast<int>(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        results.CurrentPage = page;
        results.PageOffset = (page - 1) * frmSearchResults::Rows;
        results.cmdNext.setEnabled(true);
        state.ResumeTiming();
        asUser([&results] { results.cmdNext.press(); });
    }
}

// The platform without a screen complains of every window that is raised.
void quietHandler(QtMsgType, const QMessageLogContext&, const QString&) { }

} // namespace

BENCHMARK(copyAndReadBare)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(searchAll)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(returnToResults)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(sortByMake)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(containsBare)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(searchNowhere)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(searchNowhereFirst)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(nextPage)->Arg(1)->Arg(assets / frmSearchResults::Rows - 1)->UseRealTime()->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(quietHandler);
    QApplication application(argc, argv);
    forms::prepare(application, programTheme());
    forms::setMessageHandler([](const forms::Message& message) {
        return message.flags & forms::box::YesNo ? forms::Answer::Yes : forms::Answer::OK;
    });
    forms::onHandlerReturn([] { Data1.Home.commitPending(); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
