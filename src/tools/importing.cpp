// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/importing.h"

#include "data/asset_rules.h"
#include "data/places.h"
#include "platform/storage/row_writer.h"
#include "shared/areas.h"
#include "tools/exit_codes.h"
#include "tools/put_aside.h"

using values::Currency;

namespace importing {

namespace {

constexpr int RowsBetweenTellings = 256;

/// The rows of a plan, written through the program's own views; the assets without, for they may be many.
class Writing {
public:
    Writing(const Plan& plan, const Progress& progress)
        : plan_(plan)
        , progress_(progress)
        , all_(static_cast<int>(plan.assets.size() + plan.accounts.size()) + 1)
    {
        for (const auto& [area, rows] : plan.nameRows)
            all_ += static_cast<int>(rows.size());
    }

    void run(qint64 generation);

private:
    void step();
    void writeAssets();
    void writeNames();
    void writeAccounts();
    void writeHousehold();

    const Plan& plan_;
    const Progress& progress_;
    DataStore store_;
    int all_;
    int done_ = 0;
};

void Writing::run(qint64 generation)
{
    store_.Home.open(places::databaseFile(), databaseKey());
    if (storage::generationOf(store_.Home.handle()) != generation) // between the copy and this moment
        aside::refuseStale();
    for (storage::TableView* view :
        {&store_.rsGeneral, &store_.rsBank, &store_.rsIndoor, &store_.rsMobile, &store_.rsOutdoor})
        view->Open();
    storage::Transaction all(store_.Home.handle());
    writeAssets();
    writeNames();
    writeAccounts();
    writeHousehold();
    step();
    all.commit();
}

void Writing::step()
{
    const bool isTold = ++done_ % RowsBetweenTellings == 0 || done_ == all_;
    if (isTold && progress_ && !progress_(done_, all_))
        throw Refusal(exit_code::Declined, QStringLiteral("Cancelled. Nothing was changed."));
}

void Writing::writeAssets()
{
    storage::RowWriter assets(store_.Home.handle(), databaseTable("Inventory"));
    for (const Asset& asset : plan_.assets) {
        assets.add(asset);
        step();
    }
    asset_rules::moveAssetValue(store_.rsGeneral, {}, plan_.sum);
}

void Writing::writeNames()
{
    for (const auto& [area, rows] : plan_.nameRows) {
        storage::TableView& table = store_.*areas::ofName(area).names;
        for (const auto& [location, category, item] : rows) {
            asset_rules::addNames(table, location, category, item);
            step();
        }
    }
}

void Writing::writeAccounts()
{
    for (const std::vector<QString>& account : plan_.accounts) {
        store_.rsBank.AddNew();
        for (int column = Bank::FinancialInstitution; column <= Bank::State; ++column)
            store_.rsBank.Fields(column) = account[static_cast<std::size_t>(column)];
        store_.rsBank.Update();
        step();
    }
}

void Writing::writeHousehold()
{
    for (const auto& [column, text] : plan_.household)
        store_.rsGeneral.Fields(column) = text;
    store_.rsGeneral.Update();
}

} // namespace

Result carry_Out(const Plan& plan, const Progress& progress)
{
    if (!plan.isPossible())
        throw Refusal(exit_code::Unreadable, QStringLiteral("Nothing was changed: there are rows that can't go in."));
    Result result;
    const auto look = [&](const Household& today) {
        if (today.generation() != plan.generation)
            aside::refuseStale();
        const std::optional<Currency> total = today.total();
        result.summary =
            worth(today.assets() + static_cast<int>(plan.assets.size()), total ? *total + plan.sum : total);
    };
    result.putAside =
        aside::changeBehindCopy(look, [&](qint64 generation) { Writing(plan, progress).run(generation); });
    return result;
}

Result carry_Out(const Source& source, const Plan& plan, const QString& wrongFile, const Progress& progress)
{
    if (wrongFile.isEmpty())
        return carry_Out(plan, progress);
    write_Wrong_Rows(source, plan, wrongFile);
    try {
        return carry_Out(plan, progress);
    } catch (...) {
        remove_File(wrongFile);
        throw;
    }
}

} // namespace importing
