// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_household.h"

#include "data/name_markers.h"
#include "platform/values/text.h"
#include "tools/exit_codes.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <initializer_list>
#include <utility>

using storage::Snapshot;

namespace importing {

namespace {

QString cell(const Row& row, int column)
{
    return QString::fromStdString(row.cells[static_cast<std::size_t>(column)]);
}

// What is filled in together, where nothing of it is there yet.
const std::initializer_list<int> groups[] = {
    {General::Last, General::First, General::Middle},
    {General::Address, General::City, General::State, General::ZIP},
    {General::HomePhone1, General::HomePhone2, General::HomePhone3},
    {General::WorkPhone1, General::WorkPhone2, General::WorkPhone3},
    {General::CellPhone1, General::CellPhone2, General::CellPhone3},
    {General::EMail},
    {General::PolicyNumber, General::PolicyExpiration, General::PolicyCoverage, General::PolicyCompany,
        General::PolicyNotify},
    {General::Introduced, General::WarrantyCheck, General::ClearCheck},
    {General::Spare1},
    {General::Spare2, General::Spare3, General::Spare4, General::Spare5, General::Spare6, General::Spare7},
};

// What tells that nobody has entered anything.
bool isUnset(int column, const QString& text)
{
    static const QSet<QString> marks{QString(), "None", "---", "----", "$0.00", "$.00"};
    if (column == General::Introduced)
        return text != "1";
    // These have one of two words at any time, and go with the others of their group.
    const bool isChoice =
        column == General::PolicyNotify || column == General::WarrantyCheck || column == General::ClearCheck;
    return isChoice || marks.contains(text);
}

bool isWithinReach(const QString& date)
{
    const auto day = values::Date::tryParse(date);
    return day && std::in_range<qint16>(*day - values::Today());
}

[[noreturn]] void refuse(const Source& source, const QString& why)
{
    throw Refusal(
        exit_code::Unreadable, QStringLiteral("%1 is a damaged export: in Personal_Info %2.").arg(source.path(), why));
}

void refuseStopping(const Source& source, const Row& record)
{
    const QString coverage = cell(record, General::PolicyCoverage);
    if (coverage != "None" && !coverage.isEmpty() && !values::Currency::tryParse(coverage))
        refuse(source, QStringLiteral("\"Policy Coverage\" is no amount"));
    const bool isAlertOn = values::equalUpper(cell(record, General::PolicyNotify), QStringLiteral("Yes"));
    if (isAlertOn && !isWithinReach(cell(record, General::PolicyExpiration)))
        refuse(source, QStringLiteral("\"Policy Expiration\" is no date that the alert can be given for"));
}

} // namespace

std::vector<Plan::NameRow> newNameRows(const Source& source, const Household& today, const char* namesTable)
{
    const Snapshot& table = today.table(namesTable);
    const auto identityOf = [](const Plan::NameRow& row) {
        return row[0] + QChar(0x1F) + row[1] + QChar(0x1F) + row[2];
    };
    QHash<QString, int> there;
    for (int row = 0; row < table.rowCount(); ++row)
        ++there[identityOf({table.text(row, 0), table.text(row, 1), table.text(row, 2)})];
    std::vector<Plan::NameRow> missing;
    for (const Row& row : source.rowsOf(namesTable)) {
        const Plan::NameRow named{cell(row, 0), cell(row, 1), cell(row, 2)};
        const bool isDead =
            std::all_of(named.begin(), named.end(), [](const QString& name) { return name == names::Blank; });
        if (!isDead && --there[identityOf(named)] < 0)
            missing.push_back(named);
    }
    return missing;
}

void takeAccounts(const Source& source, const Household& today, Plan& plan)
{
    const Snapshot& accounts = today.table("Bank_Info");
    QSet<QString> numbers;
    for (int row = 0; row < accounts.rowCount(); ++row)
        numbers.insert(accounts.text(row, Bank::AccountNumber));
    for (const Row& row : source.rowsOf("Bank_Info")) {
        if (numbers.contains(cell(row, Bank::AccountNumber))) {
            ++plan.knownAccounts;
            continue;
        }
        std::vector<QString>& account = plan.accounts.emplace_back();
        for (int column = Bank::ID; column <= Bank::State; ++column)
            account.push_back(cell(row, column));
    }
}

void takeHousehold(const Source& source, const Household& today, Plan& plan)
{
    const Row& record = source.rowsOf("Personal_Info").front();
    const Snapshot& now = today.table("Personal_Info");
    refuseStopping(source, record);
    for (const std::initializer_list<int>& group : groups) {
        const bool isFree = std::all_of(
            group.begin(), group.end(), [&now](int column) { return isUnset(column, now.text(0, column)); });
        const bool isTold = std::any_of(group.begin(), group.end(), [&record](int column) {
            return column != General::PolicyNotify && !isUnset(column, cell(record, column));
        });
        if (!isFree || !isTold)
            continue;
        for (const int column : group)
            if (cell(record, column) != now.text(0, column))
                plan.household[column] = cell(record, column);
    }
}

} // namespace importing
