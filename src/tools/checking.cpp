// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/checking.h"

#include "core/data_store.h"
#include "platform/values/date.h"

#include <algorithm>

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

struct Rule {
    const char* table;
    int column;
    bool (*holds)(const QString& text);
    const char* otherwise;
};

constexpr Rule rules[] = {
    {"Personal_Info", General::PolicyExpiration, isDateOrNone, "is no date"},
    {"Personal_Info", General::PolicyCoverage, isAmountOrNone, "is no amount"},
    {"Personal_Info", General::PolicyNotify, isYesOrNo, "is neither Yes nor No"},
    {"Personal_Info", General::WarrantyCheck, isChecked, "is neither Checked nor Unchecked"},
    {"Personal_Info", General::ClearCheck, isChecked, "is neither Checked nor Unchecked"},
    {"Inventory", Inventory::Area, isArea, "is no area"},
    {"Inventory", Inventory::DatePurchased, isDate, "is no date"},
    {"Inventory", Inventory::Amount, isAmount, "is no amount"},
    {"Inventory", Inventory::Receipt, isYesOrNo, "is neither Yes nor No"},
    {"Inventory", Inventory::Purchased, isNewOrUsed, "is neither New nor Used"},
    {"Inventory", Inventory::PartsAmount, isAmountOrNone, "is no amount"},
    {"Inventory", Inventory::LaborAmount, isAmountOrNone, "is no amount"},
    {"Bank_Info", Bank::AvailableBalance, isAmountOrNone, "is no amount"},
    {"Bank_Info", Bank::AsOf, isDateOrNone, "is no date"},
    {"Indoor_Items", Names::Standard, isNumber, "is no number"},
    {"Outdoor_Items", Names::Standard, isNumber, "is no number"},
    {"Mobile_Items", Names::Standard, isNumber, "is no number"},
    {"Print", Print::ID, isNumber, "is no number"},
};

constexpr const char* nameTables[] = {"Indoor_Items", "Outdoor_Items", "Mobile_Items"};

// What stands in a file may be made to upset a terminal.
QString printable(const QString& text)
{
    QString shown = text.left(60);
    std::replace_if(
        shown.begin(), shown.end(), [](QChar character) { return !character.isPrint(); }, QChar(u'?'));
    return shown;
}

// Rows that the database numbers are told by their numbers, others are counted from 1.
QString placeOf(const Snapshot& table, int row, int column)
{
    const storage::TableDefinition& definition = table.definition();
    const bool isNumbered = definition.columns[0].type == storage::ColumnType::Identity;
    return QStringLiteral("%1 %2, %3")
        .arg(QString::fromUtf8(definition.name), isNumbered ? table.text(row, 0) : QString::number(row + 1),
            QString::fromUtf8(definition.columns[static_cast<std::size_t>(column)].name));
}

void follow(const Rule& rule, const Household& household, QStringList& odd)
{
    const Snapshot& table = household.table(rule.table);
    for (int row = 0; row < table.rowCount(); ++row)
        if (const QString text = table.text(row, rule.column); !rule.holds(text))
            odd.append(placeOf(table, row, rule.column)
                + QStringLiteral(": \"%1\" %2").arg(printable(text), QString::fromUtf8(rule.otherwise)));
}

// The first start finds no mark there, and leaves none but "1".
bool mayBeEmpty(const Snapshot& table, int column)
{
    return std::string_view(table.definition().name) == "Personal_Info" && column == General::Introduced;
}

// No entry is stored as an empty text: a mark stands in its place.
void findEmptyCells(const Snapshot& table, QStringList& odd)
{
    const int columns = static_cast<int>(table.definition().columns.size());
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 0; column < columns; ++column)
            if (table.utf8(row, column).empty() && !mayBeEmpty(table, column))
                odd.append(placeOf(table, row, column) + QStringLiteral(": empty, without the mark for that"));
}

bool isMarkerRow(const Snapshot& names, int row)
{
    return names.utf8(row, Names::Location) == "< Add/Edit Location >"
        && names.utf8(row, Names::Category) == "< Add/Edit Category >"
        && names.utf8(row, Names::Type) == "< Add/Edit Item >";
}

void findMarkerRow(const Snapshot& names, QStringList& odd)
{
    for (int row = 0; row < names.rowCount(); ++row)
        if (isMarkerRow(names, row))
            return;
    odd.append(QString::fromUtf8(names.definition().name) + QStringLiteral(": no row leads to the list editors"));
}

QString runningTotal(const Household& household)
{
    return household.table("Personal_Info").text(0, General::AssetValue);
}

QString sumOfAmounts(const Household& household)
{
    const std::optional<Currency> sum = household.total();
    return sum ? sum->toText() : QStringLiteral("more than can be counted");
}

void compareTotals(const Household& household, QStringList& odd)
{
    const std::optional<Currency> sum = household.total();
    const QString exact = sum ? QString::number(sum->tenThousandths()) : QString();
    if (household.table("Personal_Info").utf8(0, General::AssetValue) != exact.toStdString())
        odd.append(QStringLiteral("The running total is %1, the sum of the amounts %2")
                       .arg(printable(runningTotal(household)), sumOfAmounts(household)));
}

} // namespace

QStringList odd_Entries(const Household& household)
{
    QStringList odd;
    compareTotals(household, odd);
    if (const int rows = household.table("Personal_Info").rowCount(); rows != 1)
        odd.append(QStringLiteral("Personal_Info has %1 rows instead of one").arg(rows));
    for (const Rule& rule : rules)
        follow(rule, household, odd);
    for (const Snapshot& table : household.tables())
        findEmptyCells(table, odd);
    for (const char* table : nameTables)
        findMarkerRow(household.table(table), odd);
    return odd;
}

QString sums(const Household& household)
{
    return QStringLiteral("Sum of the amounts: %1\nRunning total: %2")
        .arg(sumOfAmounts(household), printable(runningTotal(household)));
}

} // namespace checking
