// SPDX-License-Identifier: GPL-3.0-or-later
// A name that 5,000 of 32,000 assets carry is changed, in a table of 10,000 names: from the click to the message,
// beside the bare engine storing as many rows of the same file one by one, and beside the same with the file's
// generation counted.
#include "assets/frmAddUpDel.h"
#include "assets/frmAuto.h"
#include "data/data_store.h"
#include "lists/frmUpdate.h"
#include "platform/storage/statement.h"
#include "sample_database.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

#include <chrono>

using forms::screen;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int assets = 32'000;
constexpr int carriers = 5'000;
constexpr int nameRows = 10'000;

const QString& other(const QString& name)
{
    static const QString barn = "Barn";
    static const QString stable = "Stable";
    return name == barn ? stable : barn;
}

void addName(const QString& location)
{
    Data1.rsIndoor.AddNew();
    Data1.rsIndoor.Fields(Names::Location) = location;
    Data1.rsIndoor.Fields(Names::Category) = "0";
    Data1.rsIndoor.Fields(Names::Type) = "0";
    Data1.rsIndoor.Update();
}

/// A copy of the sample database with the names, open.
class Household {
public:
    Household()
    {
        const QString file = folder_.filePath(QStringLiteral("KTL.db"));
        if (!QFile::copy(sampleDatabase(assets), file))
            qFatal("There is no database to copy");
        useDatabase(file);
        Data1.Home.open(file, databaseKey());
        storage::execute(
            Data1.Home.handle(), "UPDATE Inventory SET Location = 'Barn' WHERE ID <= " + QByteArray::number(carriers));
        for (storage::TableView* view : {&Data1.rsGeneral, &Data1.rsIndoor, &Data1.rsInventory})
            view->Open();
        storage::Transaction atOnce(Data1.Home.handle());
        for (int row = 1; row < nameRows; ++row)
            addName(QStringLiteral("Room %1").arg(row));
        addName("Barn");
        Data1.rsGeneral.AddNew();
        Data1.rsGeneral.Fields(General::WarrantyCheck) = "Unchecked";
        Data1.rsGeneral.Update();
        atOnce.commit();
    }

    ~Household()
    {
        forms::destroyScreens();
        Data1.Home.close();
    }

    Household(const Household&) = delete;
    Household& operator=(const Household&) = delete;

private:
    QTemporaryDir folder_;
};

void BM_ChangeNameToMessage(benchmark::State& state)
{
    const Household household;
    screen<frmAuto>().lblHead1[0].setCaption("Indoor Asset Management");
    screen<frmAddUpDel>().check_Form_Type();
    auto& editor = screen<frmUpdate>();
    editor.lblHead4.setCaption("Change Indoor Location");
    Clock::time_point told;
    forms::setMessageHandler([&told](const forms::Message&) {
        told = Clock::now();
        return forms::Answer::OK;
    });
    QString name = "Barn";
    for ([[maybe_unused]] auto round : state) {
        editor.show();
        editor.cmbCat.setText(name);
        editor.txtNew.setText(name = other(name));
        const auto clicked = Clock::now();
        editor.cmdUpdate.press();
        state.SetIterationTime(std::chrono::duration<double>(told - clicked).count());
    }
}
BENCHMARK(BM_ChangeNameToMessage)->UseManualTime()->Iterations(2)->Unit(benchmark::kMillisecond);

void runBare(storage::Statement& change)
{
    change.run();
}

// As the data store does it: the file's generation is counted up too, which writes a page more.
void runCounted(storage::Statement& change)
{
    storage::Transaction transaction(Data1.Home.handle());
    change.run();
    transaction.commit();
}

// The same number of commits, with no screen and no view around them.
void BM_Commits(benchmark::State& state, void (*run)(storage::Statement&))
{
    const Household household;
    storage::Statement change(Data1.Home.handle(), "UPDATE Inventory SET Location = ? WHERE ID = ?");
    storage::Statement rename(Data1.Home.handle(), "UPDATE Indoor_Items SET Location = ? WHERE rowid = ?");
    QString name = "Barn";
    for ([[maybe_unused]] auto round : state) {
        name = other(name);
        const std::string text = name.toStdString();
        for (int row = nameRows; row > nameRows - 2; --row) { // one goes, one comes
            rename.bind(1, text);
            rename.bind(2, row);
            run(rename);
        }
        for (int asset = 1; asset <= carriers; ++asset) {
            change.bind(1, text);
            change.bind(2, asset);
            run(change);
        }
    }
}
BENCHMARK_CAPTURE(BM_Commits, Bare, runBare)->UseRealTime()->Iterations(2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Commits, Counted, runCounted)->UseRealTime()->Iterations(2)->Unit(benchmark::kMillisecond);

} // namespace
