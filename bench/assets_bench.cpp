// SPDX-License-Identifier: GPL-3.0-or-later
// The asset screen: how long the user waits for the message behind "Add Asset", beside the commits that it can't do
// without; how long the screen takes to open with its lists filled; and how long one asset of many takes to open and to
// update, beside one bare commit.
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "frame/frmMain.h"
#include "lists/name_list.h"
#include "platform/storage/connection.h"
#include "sample_database.h"
#include "search/frmSearchResults.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <chrono>

using forms::screen;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int shipped = 0; // rows: the names that come with the program
constexpr int many = 10'000;

/// A fresh database, as shipped or with so many names in the Indoor area.
class Household {
public:
    explicit Household(int rows)
    {
        const QString file = folder_.filePath(QStringLiteral("KTL.db"));
        if (!QFile::copy(QStringLiteral(KESTRILL_SHIPPED_DATABASE), file))
            qFatal("There is no database to copy");
        useDatabase(file);
        for (storage::TableView* view : {&Data1.rsGeneral, &Data1.rsBank, &Data1.rsIndoor, &Data1.rsMobile,
                 &Data1.rsInventory, &Data1.rsOutdoor, &Data1.rsPrint})
            view->Open();
        if (rows > 0)
            addNames(rows);
    }

    ~Household()
    {
        forms::destroyScreens();
        Data1.Home.close();
    }

    Household(const Household&) = delete;
    Household& operator=(const Household&) = delete;

    static void open(const QString& title)
    {
        screen<frmAuto>().lblHead1[0].setCaption(title);
        screen<frmAddUpDel>().check_Form_Type();
    }

    void addAssets(int count) const
    {
        storage::Transaction atOnce(Data1.Home.handle());
        for (int asset = 0; asset < count; ++asset) {
            Data1.rsInventory.AddNew();
            for (int column = Inventory::Area; column <= Inventory::WarrantyDescription; ++column)
                Data1.rsInventory.Fields(column) = sampleText(asset, column);
            Data1.rsInventory.Update();
        }
        atOnce.commit();
    }

private:
    // As a household's own would be: new items in known places, and places of their own.
    static void addNames(int rows)
    {
        storage::Transaction atOnce(Data1.Home.handle());
        for (int row = 0; row < rows; ++row) {
            Data1.rsIndoor.AddNew();
            Data1.rsIndoor.Fields(Names::Location) = QStringLiteral("Room %1").arg(row % 2000);
            Data1.rsIndoor.Fields(Names::Category) = QStringLiteral("Category %1").arg(row % 500);
            Data1.rsIndoor.Fields(Names::Type) = QStringLiteral("Item %1").arg(row);
            Data1.rsIndoor.Fields(Names::Standard) = "0";
            Data1.rsIndoor.Update();
        }
        atOnce.commit();
    }

    QTemporaryDir folder_;
};

void enterAsset(int number)
{
    auto& asset = screen<frmAddUpDel>();
    asset.cmbLoc.setText("Library");
    asset.cmbCat.setText("Antiques");
    asset.cmbType.setText(QStringLiteral("New item %1").arg(number));
    asset.txtPur.setText("11/24/2006");
    asset.txtPPrice.setText("$1234.50");
}

// From the click to the message; the name is new each time.
void BM_AddAssetToMessage(benchmark::State& state)
{
    const Household household(static_cast<int>(state.range(0)));
    Household::open("Indoor Asset Management");
    screen<frmAddUpDel>().chkClear.setValue(0);
    Clock::time_point told;
    forms::setMessageHandler([&told](const forms::Message&) {
        told = Clock::now();
        return forms::Answer::OK;
    });
    int number = 0;
    for ([[maybe_unused]] auto round : state) {
        enterAsset(++number);
        const auto clicked = Clock::now();
        screen<frmAddUpDel>().cmdAdd.press();
        state.SetIterationTime(std::chrono::duration<double>(told - clicked).count());
    }
}
BENCHMARK(BM_AddAssetToMessage)->Arg(shipped)->Arg(many)->UseManualTime()->Unit(benchmark::kMillisecond);

// The row, the total and the name, with nothing around them.
void BM_BareCommits(benchmark::State& state)
{
    const Household household(shipped);
    int number = 0;
    for ([[maybe_unused]] auto round : state) {
        Data1.rsInventory.AddNew();
        for (int column = Inventory::Area; column <= Inventory::WarrantyDescription; ++column)
            Data1.rsInventory.Fields(column) = column == Inventory::Amount ? "$1234.50" : "None";
        Data1.rsInventory.Update();
        Data1.rsGeneral.Fields(General::AssetValue) = values::Currency::fromTenThousandths(++number);
        Data1.rsGeneral.Update();
        Data1.rsIndoor.AddNew();
        Data1.rsIndoor.Fields(Names::Type) = QStringLiteral("New item %1").arg(number);
        Data1.rsIndoor.Fields(Names::Standard) = "0";
        Data1.rsIndoor.Update();
    }
}
BENCHMARK(BM_BareCommits)->Unit(benchmark::kMillisecond)->UseRealTime();

constexpr int assets = 32'000;

// The last asset, the longest way to walk: opened from the results, one field changed, "Update Asset", to the message.
void BM_OpenAndUpdateAsset(benchmark::State& state)
{
    const Household household(shipped);
    household.addAssets(assets);
    screen<frmMain>().FromResults = true;
    screen<frmSearchResults>().SelectedAsset = QString::number(assets);
    auto& asset = screen<frmAddUpDel>();
    Clock::time_point told;
    forms::setMessageHandler([&told](const forms::Message&) {
        told = Clock::now();
        return forms::Answer::OK;
    });
    int number = 0;
    for ([[maybe_unused]] auto round : state) {
        const auto opened = Clock::now();
        asset.check_Form_Type();
        asset.txtMake.setText(QStringLiteral("Make %1").arg(++number));
        asset.cmdUpdate.press();
        state.SetIterationTime(std::chrono::duration<double>(told - opened).count());
        asset.hide();
        QApplication::processEvents(); // as between two visits of a user
    }
}
BENCHMARK(BM_OpenAndUpdateAsset)->UseManualTime()->Unit(benchmark::kMillisecond);

// The same row in the same database, with nothing around it.
void BM_BareCommit(benchmark::State& state)
{
    const Household household(shipped);
    household.addAssets(assets);
    int number = 0;
    for ([[maybe_unused]] auto round : state) {
        Data1.rsInventory.Fields(Inventory::Make) = QStringLiteral("Make %1").arg(++number);
        Data1.rsInventory.Update();
    }
}
BENCHMARK(BM_BareCommit)->Unit(benchmark::kMillisecond)->UseRealTime();

// Coming from another area, which fills both lists twice.
void BM_OpenScreen(benchmark::State& state)
{
    const Household household(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        Household::open("Mobile Asset Management");
        screen<frmAddUpDel>().hide();
        state.ResumeTiming();
        Household::open("Indoor Asset Management");
    }
    state.counters["locations"] = screen<frmAddUpDel>().cmbLoc.listCount();
}
BENCHMARK(BM_OpenScreen)->Arg(shipped)->Arg(many)->Unit(benchmark::kMillisecond);

void BM_FillLocations(benchmark::State& state)
{
    const Household household(static_cast<int>(state.range(0)));
    auto& list = screen<frmAddUpDel>().cmbLoc;
    for ([[maybe_unused]] auto round : state) {
        list.clear();
        fill_Name_List(list, Data1.rsIndoor, Names::Location);
    }
}
BENCHMARK(BM_FillLocations)->Arg(shipped)->Arg(many)->Unit(benchmark::kMillisecond);

void BM_FillItems(benchmark::State& state)
{
    const Household household(static_cast<int>(state.range(0)));
    auto& list = screen<frmAddUpDel>().cmbType;
    for ([[maybe_unused]] auto round : state)
        fill_Item_List(list, Data1.rsIndoor, "Antiques");
}
BENCHMARK(BM_FillItems)->Arg(shipped)->Arg(many)->Unit(benchmark::kMillisecond);

} // namespace
