// SPDX-License-Identifier: GPL-3.0-or-later
// What 32,000 assets are worth, from the press of the button to the screen, beside a bare sum over the same rows.
#include "data/data_store.h"
#include "frame/frmMain.h"
#include "household/frmTotals.h"
#include "sample_database.h"

#include <benchmark/benchmark.h>

#include <QApplication>

using forms::screen;

namespace {

constexpr int one = 1; // asset: what is left is the change of screens
constexpr int many = 32'000;

/// The sample database, open.
class Household {
public:
    explicit Household(int assets)
    {
        useDatabase(sampleDatabase(assets));
        Data1.rsGeneral.Open();
        Data1.rsInventory.Open();
    }

    ~Household()
    {
        forms::destroyScreens();
        Data1.Home.close();
    }

    Household(const Household&) = delete;
    Household& operator=(const Household&) = delete;
};

void BM_Totals(benchmark::State& state)
{
    const Household household(static_cast<int>(state.range(0)));
    Data1.rsGeneral.AddNew();
    Data1.rsGeneral.Fields(General::PolicyCoverage) = "$0.00";
    auto& menu = screen<frmMain>();
    screen<frmTotals>();
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        menu.show(); // a hidden button can't be pressed, and the totals hide the menu
        QApplication::processEvents(); // until it is painted
        state.ResumeTiming();
        menu.cmdValue.press();
        QApplication::processEvents();
    }
    state.counters["counted"] = static_cast<int>(screen<frmTotals>().TotalCount);
}
BENCHMARK(BM_Totals)->Arg(one)->Arg(many)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_BareSum(benchmark::State& state)
{
    const Household household(many);
    auto& rows = Data1.rsInventory;
    for ([[maybe_unused]] auto round : state) {
        values::Currency sum;
        for (rows.MoveFirst(); !rows.atEOF(); rows.MoveNext())
            sum += rows.Fields(Inventory::Amount).currency();
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_BareSum)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
