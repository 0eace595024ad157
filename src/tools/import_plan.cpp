// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_plan.h"

#include "data/name_markers.h"
#include "platform/values/text.h"
#include "shared/areas.h"
#include "tools/exit_codes.h"
#include "tools/import_assets.h"
#include "tools/import_household.h"
#include "tools/printable.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using storage::Snapshot;
using values::Currency;

namespace importing {

namespace {

constexpr int RowsBetweenTellings = 256;

// By what an asset is known again.
constexpr Inventory::Column identifying[] = {
    Inventory::Area, Inventory::Location, Inventory::Type, Inventory::Make, Inventory::Model, Inventory::SerialVinId};

// A date and an amount may be written in several ways.
template <class TextOf>
QString identityOf(TextOf textOf)
{
    QString identity;
    for (const Inventory::Column column : identifying)
        identity += values::upper(textOf(column)) + QChar(0x1F);
    const QString date = textOf(Inventory::DatePurchased);
    const QString amount = textOf(Inventory::Amount);
    const auto day = values::Date::tryParse(date);
    return identity + (day ? day->toText() : date) + QChar(0x1F) + values::currencyFormat(amount);
}

/// The names that an area's lists know, in capitals, by the columns of the table.
using KnownNames = std::array<QSet<QString>, 3>;

KnownNames namesIn(const Snapshot& table)
{
    KnownNames known;
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = Names::Location; column <= Names::Type; ++column)
            known[static_cast<std::size_t>(column)].insert(values::upper(table.text(row, column)));
    return known;
}

class Planning {
public:
    Planning(const Source& source, const Choices& choices, const Household& today, const Progress& progress)
        : source_(source)
        , choices_(choices)
        , today_(today)
        , progress_(progress)
    {
    }

    Plan run();

private:
    void lookAtToday();
    void take(std::size_t at, const AssetRows& rows);
    bool isKnown(const Asset& asset);
    void count(const Asset& asset, QStringList& reasons);
    void learn(const Asset& asset);
    void noteNew(const QString& area, const Plan::NameRow& row);
    void takeExport();

    const Source& source_;
    const Choices& choices_;
    const Household& today_;
    const Progress& progress_;
    Plan plan_;
    QHash<QString, int> there_; // how many assets of an identity are there already
    std::map<QString, KnownNames> names_;
    qint64 lastNumber_ = 0;
    int cutTexts_ = 0; // in the assets that come
    Currency runningTotal_;
    Currency total_;
};

void Planning::lookAtToday()
{
    const Snapshot& assets = today_.table("Inventory");
    lastNumber_ = today_.lastAsset();
    for (int row = 0; row < assets.rowCount(); ++row) {
        ++there_[identityOf([&](Inventory::Column column) { return assets.text(row, column); })];
        lastNumber_ = std::max(lastNumber_, assets.text(row, Inventory::ID).toLongLong());
    }
    const Snapshot& general = today_.table("Personal_Info");
    runningTotal_ = Currency::tryParse(general.text(0, General::AssetValue)).value_or(Currency());
    total_ = today_.total().value_or(Currency());
    for (std::size_t i = 0; i < plan_.areas.size(); ++i) {
        const areas::Area& area = areas::all()[i];
        plan_.areas[i].area = area.name;
        names_[area.name] = namesIn(today_.table(area.namesTable));
    }
    plan_.generation = today_.generation();
    plan_.skipsWrong = choices_.skipsWrong;
}

Plan Planning::run()
{
    lookAtToday();
    if (source_.isExport())
        takeExport();
    const AssetRows rows(source_, choices_);
    const auto all = static_cast<int>(source_.rows().size());
    for (int at = 0; at < all; ++at) {
        if (at % RowsBetweenTellings == 0 && progress_ && !progress_(at, all))
            throw Refusal(exit_code::Declined, QStringLiteral("Cancelled. Nothing was changed."));
        take(static_cast<std::size_t>(at), rows);
    }
    rows.describe(plan_);
    if (cutTexts_ > 0)
        plan_.notes += ::counted(cutTexts_, "text is", "texts are") + QStringLiteral(" too long and will be cut.");
    return std::move(plan_);
}

void Planning::take(std::size_t at, const AssetRows& rows)
{
    const Row& row = source_.rows()[at];
    auto [asset, reasons, cutTexts] = rows.read(row);
    if (reasons.isEmpty() && isKnown(asset)) {
        plan_.known.push_back({row.line, asset[Inventory::Type]});
        if (!choices_.takesKnown)
            return;
    }
    if (reasons.isEmpty())
        count(asset, reasons);
    if (!reasons.isEmpty()) {
        plan_.wrong.push_back({at, row.line, reasons});
        return;
    }
    learn(asset);
    cutTexts_ += cutTexts;
    plan_.assets.push_back(asset);
}

// As often as it is there, so that two of a kind in the source are two.
bool Planning::isKnown(const Asset& asset)
{
    const auto found = there_.find(identityOf([&asset](Inventory::Column column) { return asset[column]; }));
    if (found == there_.end() || *found == 0)
        return false;
    --*found;
    return true;
}

// What the screens count and sum has to stay within its bounds.
void Planning::count(const Asset& asset, QStringList& reasons)
{
    if (lastNumber_ + static_cast<qint64>(plan_.assets.size()) >= MostRows) {
        reasons += QStringLiteral("The Asset Would Get A Number Beyond %1").arg(MostRows);
        return;
    }
    const Currency amount = Currency::parse(asset[Inventory::Amount]);
    try {
        const Currency runningTotal = runningTotal_ + amount;
        const Currency total = total_ + amount;
        plan_.sum += amount;
        runningTotal_ = runningTotal;
        total_ = total;
    } catch (const values::RuntimeFailure&) {
        reasons += QStringLiteral("The Sum Of All Assets Would Be More Than Can Be Counted");
        return;
    }
    for (AreaCount& area : plan_.areas)
        if (area.area == asset[Inventory::Area]) {
            ++area.assets;
            area.sum += amount;
        }
}

// As "Add Asset" does: a row of all three where one of them is in no row yet. An export's own tables tell what the
// lists knew.
void Planning::learn(const Asset& asset)
{
    const QString& area = asset[Inventory::Area];
    if (source_.isExport() || today_.table(areas::ofName(area).namesTable).rowCount() == 0)
        return;
    const Plan::NameRow row{asset[Inventory::Location], asset[Inventory::Category], asset[Inventory::Type]};
    const KnownNames& known = names_[area];
    const bool isKnown = known[Names::Location].contains(values::upper(row[Names::Location]))
        && known[Names::Category].contains(values::upper(row[Names::Category]))
        && known[Names::Type].contains(values::upper(row[Names::Type]));
    if (isKnown)
        return;
    plan_.nameRows[area].push_back(row);
    noteNew(area, row);
}

void Planning::noteNew(const QString& area, const Plan::NameRow& row)
{
    for (std::size_t i = 0; i < row.size(); ++i) {
        QSet<QString>& known = names_[area][i];
        const QString upper = values::upper(row[i]);
        if (row[i] == names::Blank || known.contains(upper))
            continue;
        known.insert(upper);
        plan_.newNames.push_back({area, static_cast<Names::Column>(i), row[i]});
    }
}

void Planning::takeExport()
{
    takeAccounts(source_, today_, plan_);
    takeHousehold(source_, today_, plan_);
    for (const areas::Area& area : areas::all()) {
        for (const Plan::NameRow& row : newNameRows(source_, today_, area.namesTable)) {
            plan_.nameRows[area.name].push_back(row);
            noteNew(area.name, row);
        }
    }
}

// ---- words

QString counted(qsizetype count, const char* one, const char* many)
{
    return ::counted(static_cast<int>(count), QString::fromLatin1(one), QString::fromLatin1(many));
}

QString accountsOf(const Plan& plan)
{
    return counted(static_cast<qsizetype>(plan.accounts.size()), "account", "accounts");
}

QString entriesOf(const Plan& plan)
{
    return counted(static_cast<qsizetype>(plan.household.size()), "entry", "entries")
        + QStringLiteral(" of the personal information and the policy");
}

QStringList newNamesOf(const Plan& plan)
{
    constexpr qsizetype most = 8; // of a kind, in words
    static const char* const kinds[] = {"locations", "categories", "items"};
    QStringList lines;
    for (const AreaCount& area : plan.areas) {
        for (int kind = Names::Location; kind <= Names::Type; ++kind) {
            QStringList names;
            for (const NewName& name : plan.newNames)
                if (name.area == area.area && name.kind == kind)
                    names += printable(name.name);
            if (names.isEmpty())
                continue;
            const QString further =
                names.size() > most ? QStringLiteral(" and %1 more").arg(names.size() - most) : QString();
            lines += QStringLiteral("New %1 %2: %3%4")
                         .arg(area.area, QString::fromLatin1(kinds[kind]), names.mid(0, most).join(", "), further);
        }
    }
    return lines;
}

} // namespace

bool Plan::bringsAnything() const
{
    return !assets.empty() || !nameRows.empty() || !accounts.empty() || !household.empty();
}

Plan planned(const Source& source, const Choices& choices, const Household& today, const Progress& progress)
{
    return Planning(source, choices, today, progress).run();
}

QStringList besidesAssetsOf(const Plan& plan)
{
    QStringList lines;
    if (!plan.accounts.empty())
        lines += accountsOf(plan) + QStringLiteral(" to come");
    if (plan.knownAccounts > 0)
        lines += counted(plan.knownAccounts, "account is", "accounts are") + QStringLiteral(" there already");
    if (!plan.household.empty())
        lines += entriesOf(plan) + QStringLiteral(" to be filled in");
    return lines;
}

QStringList broughtBesidesAssets(const Plan& plan)
{
    QStringList brought;
    if (!plan.accounts.empty())
        brought += accountsOf(plan);
    if (!plan.household.empty())
        brought += entriesOf(plan);
    return brought;
}

QStringList summaryOf(const Plan& plan)
{
    QStringList lines;
    for (const AreaCount& area : plan.areas)
        if (area.assets > 0)
            lines += QStringLiteral("%1: %2").arg(area.area, worth(area.assets, area.sum));
    lines += QStringLiteral("To come: %1").arg(worth(static_cast<int>(plan.assets.size()), plan.sum));
    lines += besidesAssetsOf(plan);
    lines += newNamesOf(plan);
    if (!plan.known.empty())
        lines += counted(static_cast<qsizetype>(plan.known.size()), "asset is", "assets are")
            + QStringLiteral(" there already, from line %1 on").arg(plan.known.front().line);
    if (!plan.wrong.empty())
        lines += counted(static_cast<qsizetype>(plan.wrong.size()), "row", "rows") + QStringLiteral(" can't go in");
    return lines + plan.notes;
}

QStringList wrongLinesOf(const Plan& plan)
{
    QStringList lines;
    for (const WrongRow& row : plan.wrong)
        lines += QStringLiteral("Line %1: %2").arg(row.line).arg(row.reasons.join(QStringLiteral("; ")));
    return lines;
}

std::vector<QStringList> mapOf(const Source& source, const std::vector<Target>& targets)
{
    std::vector<QStringList> map;
    for (std::size_t i = 0; i < source.columns().size(); ++i) {
        const ColumnSeen& column = source.columns()[i];
        const Target target = targets.empty() ? source.targets()[i] : targets[i];
        map.push_back({printable(column.heading), nameOf(target), printable(column.example)});
    }
    return map;
}

} // namespace importing
