// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/household.h"
#include "tools/import_amounts.h"
#include "tools/import_dates.h"
#include "tools/import_source.h"

#include <array>
#include <functional>
#include <map>

namespace importing {

/// What the user decides about an import. What stands here at first is what is done without a word.
struct Choices {
    std::vector<Target> targets; ///< of the source's columns; those that it has found, where this is empty
    std::map<Inventory::Column, QString> otherwise; ///< what an asset has that has nothing in a field
    DateOrder dates = DateOrder::Unknown; ///< found out
    DecimalSign decimals = DecimalSign::Unknown; ///< found out
    bool cutsTexts = false; ///< what is too long is cut, instead of being wrong
    bool takesKnown = false; ///< assets that are there already come once more
    bool skipsWrong = false; ///< rows that can't go in don't keep the others out
};

/// The texts of a row of the inventory, by its columns; the number is the database's.
using Asset = std::array<QString, Inventory::WarrantyDescription + 1>;

/// A row that can't go in.
struct WrongRow {
    std::size_t row; ///< in the source
    qint64 line;
    QStringList reasons; ///< "Purchase Price: The Purchase Price Of The Asset Must Be Entered Before Saving!"
};

/// A row whose like is there already.
struct KnownRow {
    qint64 line;
    QString item;
};

struct AreaCount {
    QString area;
    int assets = 0;
    values::Currency sum;
};

/// A name that a list will learn.
struct NewName {
    QString area;
    Names::Column kind;
    QString name;
};

/// What an import will do to a household.
struct Plan {
    std::vector<Asset> assets;
    std::vector<WrongRow> wrong;
    std::vector<KnownRow> known; ///< left out, unless they are taken once more
    std::array<AreaCount, 3> areas;
    values::Currency sum;
    std::vector<NewName> newNames;
    QStringList notes; ///< what else is worth knowing: the order of dates, what no column gives, what is cut
    bool needsDateOrder = false; ///< it can't be found out, and has to be chosen
    bool needsDecimalSign = false; ///< the same

    /// Rows that the name tables get, in their order: Location, Category, Type.
    using NameRow = std::array<QString, 3>;
    std::map<QString, std::vector<NameRow>> nameRows; ///< by area

    std::vector<std::vector<QString>> accounts; ///< of an export, by the columns of the table
    int knownAccounts = 0;
    std::map<int, QString> household; ///< of an export: what is filled in, by the columns of the table

    qint64 generation = 0; ///< of the household that it was made for
    bool skipsWrong = false;

    /// Whether it would change anything, and whether no wrong row keeps it out.
    bool bringsAnything() const;
    bool isPossible() const { return wrong.empty() || skipsWrong; }
};

/// Told how many of how many steps are done; false cancels.
using Progress = std::function<bool(int done, int all)>;

/// Finds out what an import would do. Nothing is changed. Failures: Refusal, where the source is a damaged export;
/// Refusal (Declined), where it was cancelled.
Plan planned(const Source& source, const Choices& choices, const Household& today, const Progress& progress = {});

/// The plan in lines for a user: assets and sums by area, new names, rows left out; then the rows that are wrong.
QStringList summaryOf(const Plan& plan);
QStringList wrongLinesOf(const Plan& plan);

/// What comes beside assets out of an export, and what of it has come once the plan is carried out.
QStringList besidesAssetsOf(const Plan& plan);
QStringList broughtBesidesAssets(const Plan& plan);

/// What goes where: a line of heading, target and example for each column.
std::vector<QStringList> mapOf(const Source& source, const std::vector<Target>& targets);

} // namespace importing
