// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/checking.h"

#include "data/data_store.h"
#include "data/name_markers.h"
#include "platform/values/date.h"
#include "platform/values/text.h"
#include "tools/printable.h"

#include <algorithm>
#include <limits>
#include <utility>

using storage::Snapshot;
using values::Currency;

namespace checking {

namespace {

bool isDate(const QString& text)
{
    return values::Date::tryParse(text).has_value();
}

bool isDateOrNone(const QString& text)
{
    return text == "None" || isDate(text);
}

bool isAmount(const QString& text)
{
    return Currency::tryParse(text).has_value();
}

bool isAmountOrNone(const QString& text)
{
    return text == "None" || isAmount(text);
}

bool isArea(const QString& text)
{
    return text == "Indoor" || text == "Outdoor" || text == "Mobile";
}

bool isYesOrNo(const QString& text)
{
    return text == "Yes" || text == "No";
}

bool isNewOrUsed(const QString& text)
{
    return text == "New" || text == "Used";
}

bool isNumber(const QString& text)
{
    bool isWhole = false;
    text.toLongLong(&isWhole);
    return isWhole;
}

bool isChecked(const QString& text)
{
    return text == "Checked" || text == "Unchecked";
}

// The program starts where the days until then fit into 16 bits.
bool isWithinReach(const QString& date)
{
    const std::optional<values::Date> day = values::Date::tryParse(date);
    return !day || std::in_range<qint16>(*day - values::Today());
}

bool isNumberOf16Bits(const QString& text)
{
    bool isWhole = false;
    return std::in_range<qint16>(text.toLongLong(&isWhole)) && isWhole;
}

// Where a user mends a cell.
constexpr const char* InsuranceScreen = "Personal Information, Insurance";
constexpr const char* PersonalScreen = "Personal Information";
constexpr const char* AssetScreen = "the asset's screen, Update Asset";
constexpr const char* WarrantyScreen = "the asset's screen, Warranty";
constexpr const char* AccountScreen = "the account's screen";
constexpr const char* ListEditor = "the list editors of the area";
constexpr const char* NextSearch = "nothing to do: the next search writes it anew";
constexpr const char* Backup = "no screen reaches it; a backup from before has it in order";
constexpr const char* Mend = "kestrill-check --mend";

// What a user sees of it who meets it.
constexpr const char* ValueEnds = "Value ends the program";
constexpr const char* OpeningEnds = "opening the asset, and Value, end the program";

struct Rule {
    const char* table;
    int column;
    bool (*holds)(const QString& text);
    const char* otherwise;
    const char* mendedAt;
    const char* stops = nullptr; // what it is that ends the program; none, where the entry is only odd
};

constexpr Rule rules[] = {
    {"Personal_Info", General::PolicyCoverage, isAmount, "is no amount", InsuranceScreen, ValueEnds},
    {"Personal_Info", General::PolicyNotify, isYesOrNo, "is neither Yes nor No", InsuranceScreen},
    {"Personal_Info", General::WarrantyCheck, isChecked, "is neither Checked nor Unchecked",
        "the asset screen, its box about warranties"},
    {"Personal_Info", General::ClearCheck, isChecked, "is neither Checked nor Unchecked",
        "the asset screen, its box about clearing"},
    {"Inventory", Inventory::ID, isNumberOf16Bits, "is beyond 32767", Backup, "opening the asset ends the program"},
    {"Inventory", Inventory::Area, isArea, "is no area", AssetScreen},
    {"Inventory", Inventory::DatePurchased, isDate, "is no date", AssetScreen},
    {"Inventory", Inventory::Amount, isAmount, "is no amount", Backup, OpeningEnds},
    {"Inventory", Inventory::Receipt, isYesOrNo, "is neither Yes nor No", AssetScreen},
    {"Inventory", Inventory::Purchased, isNewOrUsed, "is neither New nor Used", AssetScreen},
    {"Inventory", Inventory::PartsAmount, isAmountOrNone, "is no amount", WarrantyScreen},
    {"Inventory", Inventory::LaborAmount, isAmountOrNone, "is no amount", WarrantyScreen},
    {"Bank_Info", Bank::AvailableBalance, isAmountOrNone, "is no amount", AccountScreen},
    {"Bank_Info", Bank::AsOf, isDateOrNone, "is no date", AccountScreen},
    {"Indoor_Items", Names::Standard, isNumber, "is no number", Backup,
        "changing or deleting that name ends the program"},
    {"Outdoor_Items", Names::Standard, isNumber, "is no number", Backup,
        "closing ends with a failure, and no backup is made"},
    {"Mobile_Items", Names::Standard, isNumber, "is no number", Backup,
        "changing or deleting that name ends the program"},
    {"Print", Print::ID, isNumber, "is no number", NextSearch},
};

// The alert is given at the start, before any screen.
constexpr Rule alertRules[] = {
    {"Personal_Info", General::PolicyExpiration, isDate, "is no date, and the alert is on", Mend,
        "the program does not start"},
    {"Personal_Info", General::PolicyExpiration, isWithinReach, "is too far from today, and the alert is on", Mend,
        "the program does not start"},
};

constexpr Rule quietRule{"Personal_Info", General::PolicyExpiration, isDateOrNone, "is no date", InsuranceScreen};

// Rows that the database numbers are told by their numbers, others are counted from 1.
QString placeOf(const Snapshot& table, int row, int column)
{
    const storage::TableDefinition& definition = table.definition();
    const bool isNumbered = definition.columns[0].type == storage::ColumnType::Identity;
    return QStringLiteral("%1 %2, %3")
        .arg(QString::fromUtf8(definition.name), isNumbered ? table.text(row, 0) : QString::number(row + 1),
            QString::fromUtf8(definition.columns[static_cast<std::size_t>(column)].name));
}

Finding findingOf(const QString& what, const char* mendedAt, const char* stops = nullptr)
{
    const QString seen = stops ? QStringLiteral(" - STOPS: ") + QString::fromUtf8(stops) : QString();
    return {QStringLiteral("%1%2 (%3)").arg(what, seen, QString::fromUtf8(mendedAt)), stops != nullptr};
}

void follow(const Rule& rule, const Household& household, std::vector<Finding>& found)
{
    const Snapshot& table = household.table(rule.table);
    for (int row = 0; row < table.rowCount(); ++row)
        if (const QString text = table.text(row, rule.column); !rule.holds(text))
            found.push_back(findingOf(placeOf(table, row, rule.column)
                    + QStringLiteral(": \"%1\" %2").arg(printable(text), QString::fromUtf8(rule.otherwise)),
                rule.mendedAt, rule.stops));
}

bool isAlertOn(const Household& household)
{
    return values::equalUpper(household.table("Personal_Info").text(0, General::PolicyNotify), QStringLiteral("Yes"));
}

void checkAlert(const Household& household, std::vector<Finding>& found)
{
    if (!isAlertOn(household))
        return follow(quietRule, household, found);
    for (const Rule& rule : alertRules)
        follow(rule, household, found);
}

// What the screens count, they count in 16 bits.
void countRows(const Household& household, std::vector<Finding>& found)
{
    constexpr int most = std::numeric_limits<qint16>::max();
    if (const int rows = household.table("Inventory").rowCount(); rows > most)
        found.push_back(findingOf(QStringLiteral("Inventory has %1 rows, more than %2").arg(rows).arg(most),
            "delete assets", "Value, and a search that finds them all, end the program"));
}

// The first start finds no mark there, and leaves none but "1".
bool mayBeEmpty(const Snapshot& table, int column)
{
    return std::string_view(table.definition().name) == "Personal_Info" && column == General::Introduced;
}

const char* screenOf(std::string_view table, int column)
{
    if (table == "Personal_Info")
        return column < General::Spare1 ? PersonalScreen : InsuranceScreen;
    if (table == "Inventory")
        return column < Inventory::PartsType ? AssetScreen : WarrantyScreen;
    if (table == "Bank_Info")
        return AccountScreen;
    return table == "Print" ? NextSearch : ListEditor;
}

bool hasRule(std::string_view table, int column)
{
    const auto isOfCell = [&](const Rule& rule) { return table == rule.table && column == rule.column; };
    return isOfCell(quietRule) || std::ranges::any_of(rules, isOfCell);
}

// No entry is stored as an empty text: a mark stands in its place. What a rule looks at is told by it.
void findEmptyCells(const Snapshot& table, std::vector<Finding>& found)
{
    const auto& columns = table.definition().columns;
    const std::string_view name = table.definition().name;
    std::vector<int> looked;
    for (int column = 0; column < static_cast<int>(columns.size()); ++column)
        if (!mayBeEmpty(table, column) && !hasRule(name, column))
            looked.push_back(column);
    for (int row = 0; row < table.rowCount(); ++row)
        for (const int column : looked)
            if (table.utf8(row, column).empty())
                found.push_back(
                    findingOf(placeOf(table, row, column) + QStringLiteral(": empty, without the mark for that"),
                        screenOf(name, column)));
}

bool isMarkerRow(const Snapshot& table, int row)
{
    return table.text(row, Names::Location) == names::LocationMarker
        && table.text(row, Names::Category) == names::CategoryMarker
        && table.text(row, Names::Type) == names::ItemMarker;
}

// As it is stored, a count of ten-thousandths.
QString storedTotal(const Household& household)
{
    const std::string_view count = household.table("Personal_Info").utf8(0, General::AssetValue);
    return QString::fromUtf8(count.data(), static_cast<qsizetype>(count.size()));
}

QString runningTotal(const Household& household)
{
    return printable(household.table("Personal_Info").text(0, General::AssetValue));
}

QString sumOfAmounts(const Household& household)
{
    const std::optional<Currency> sum = household.total();
    return sum ? sum->toText() : QStringLiteral("more than can be counted");
}

void compareTotals(const Household& household, std::vector<Finding>& found)
{
    if (!household.total())
        found.push_back(
            findingOf(QStringLiteral("The sum of the amounts is more than can be counted"), AssetScreen, ValueEnds));
    if (!is_Total_Off(household))
        return;
    const bool isCounted = isNumber(storedTotal(household));
    found.push_back(findingOf(QStringLiteral("The running total is %1, the sum of the amounts %2")
                                  .arg(runningTotal(household), sumOfAmounts(household)),
        is_Sum_Known(household) ? Mend : "when all amounts can be read, kestrill-check --mend",
        isCounted ? nullptr : ValueEnds));
}

} // namespace

bool is_Total_Off(const Household& household)
{
    const std::optional<Currency> sum = household.total();
    return sum && storedTotal(household) != QString::number(sum->tenThousandths());
}

bool is_Sum_Known(const Household& household)
{
    const Snapshot& assets = household.table("Inventory");
    for (int row = 0; row < assets.rowCount(); ++row)
        if (!isAmount(assets.text(row, Inventory::Amount)))
            return false;
    return household.total().has_value();
}

bool does_Alert_Stop(const Household& household)
{
    const QString date = household.table("Personal_Info").text(0, General::PolicyExpiration);
    return isAlertOn(household) && !(isDate(date) && isWithinReach(date));
}

bool lacks_Marker_Row(const Snapshot& table)
{
    for (int row = 0; row < table.rowCount(); ++row)
        if (isMarkerRow(table, row))
            return false;
    return true;
}

std::vector<Finding> findings(const Household& household)
{
    std::vector<Finding> found;
    compareTotals(household, found);
    if (const int rows = household.table("Personal_Info").rowCount(); rows != 1)
        found.push_back(findingOf(QStringLiteral("Personal_Info has %1 rows instead of one").arg(rows), Backup));
    countRows(household, found);
    checkAlert(household, found);
    for (const Rule& rule : rules)
        follow(rule, household, found);
    for (const Snapshot& table : household.tables())
        findEmptyCells(table, found);
    for (const char* table : NameTables)
        if (lacks_Marker_Row(household.table(table)))
            found.push_back(
                findingOf(QString::fromUtf8(table) + QStringLiteral(": no row leads to the list editors"), Mend));
    return found;
}

QString sums(const Household& household)
{
    return QStringLiteral("Sum of the amounts: %1\nRunning total: %2")
        .arg(sumOfAmounts(household), runningTotal(household));
}

} // namespace checking
