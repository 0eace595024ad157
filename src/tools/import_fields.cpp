// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_fields.h"

#include <algorithm>
#include <iterator>

namespace importing {

namespace {

/// A field of the asset and warranty screens, and the words that other lists have for it, in small letters without
/// blanks and signs.
struct Known {
    const char* name;
    Inventory::Column column;
    const char* words;
};

constexpr Known fields[] = {
    {"Area", Inventory::Area, "area indooroutdoor zone"},
    {"Location", Inventory::Location, "location place room where roomlocation locationroom position"},
    {"Category", Inventory::Category, "category group class assetcategory itemcategory kind"},
    {"Item", Inventory::Type, "item type itemname name asset assetname object thing article product title"},
    {"Year", Inventory::Year, "year yearmade modelyear yearofmanufacture madein"},
    {"Make", Inventory::Make, "make brand manufacturer maker brandname makebrand"},
    {"Model", Inventory::Model, "model modelnumber modelno modelnr modelname"},
    {"Serial", Inventory::SerialVinId, "serial serialnumber serialno serialnr serialvinid serialid sn vin vinnumber"},
    {"New Or Used", Inventory::Purchased, "neworused newused condition purchased"},
    {"Purchase Date", Inventory::DatePurchased,
        "purchasedate datepurchased purchased date bought datebought dateofpurchase purchasedon boughton acquired "
        "dateacquired acquisitiondate"},
    {"Purchase Price", Inventory::Amount,
        "purchaseprice amount price cost value paid pricepaid purchasecost purchaseamount originalcost originalprice "
        "costprice purchasevalue"},
    {"Receipt On File", Inventory::Receipt, "receiptonfile receipt hasreceipt receiptyesno proofofpurchase"},
    {"Receipt Location", Inventory::ReceiptLocation, "receiptlocation receiptplace whereisthereceipt"},
    {"Description", Inventory::Description, "description notes note comments comment remarks remark details memo"},
    {"Parts Type", Inventory::PartsType, "partstype"},
    {"Parts Coverage", Inventory::PartsCoverage, "partscoverage"},
    {"Parts Amount", Inventory::PartsAmount, "partsamount"},
    {"Parts Month", Inventory::PartsMonth, "partsmonth"},
    {"Parts Day", Inventory::PartsDay, "partsday"},
    {"Parts Year", Inventory::PartsYear, "partsyear"},
    {"Labor Type", Inventory::LaborType, "labortype"},
    {"Labor Coverage", Inventory::LaborCoverage, "laborcoverage"},
    {"Labor Amount", Inventory::LaborAmount, "laboramount"},
    {"Labor Month", Inventory::LaborMonth, "labormonth"},
    {"Labor Day", Inventory::LaborDay, "laborday"},
    {"Labor Year", Inventory::LaborYear, "laboryear"},
    {"Warranty Terms", Inventory::WarrantyDescription,
        "warrantyterms warrantydescription warranty terms termsconditions guarantee"},
};

// What numbers the rows of a list, and what an import has said of them.
constexpr const char* numbering = "id no nr number row index line count whatiswrong";

const QString EndName = QStringLiteral("End Of Description");
const QString OutName = QStringLiteral("Left Out");

QString folded(const QString& heading)
{
    QString word;
    for (const QChar character : heading)
        if (character.isLetterOrNumber())
            word += character.toLower();
    return word;
}

bool isAmong(const char* words, const QString& word)
{
    return QString::fromLatin1(words).split(u' ').contains(word);
}

QString ownNameOf(const Known& field)
{
    return folded(QString::fromLatin1(field.name));
}

bool isNewOrUsed(const QString& text)
{
    const QString word = folded(text);
    return word == "new" || word == "used" || word == "secondhand";
}

// "Purchased" heads dates in most lists, and here whether a thing was new.
bool fits(const Known& field, const ColumnSeen& column)
{
    if (folded(column.heading) != "purchased")
        return true;
    return (field.column == Inventory::Purchased) == isNewOrUsed(column.example);
}

class Finding {
public:
    explicit Finding(const std::vector<ColumnSeen>& columns)
        : columns_(columns)
        , targets_(columns.size())
        , isFound_(columns.size())
    {
    }

    std::vector<Target> run()
    {
        for (std::size_t i = 0; i < columns_.size(); ++i)
            find(i, [](const Known& field, const QString& word) { return ownNameOf(field) == word; });
        for (std::size_t i = 0; i < columns_.size(); ++i)
            find(i, [](const Known& field, const QString& word) { return isAmong(field.words, word); });
        for (std::size_t i = 0; i < columns_.size(); ++i)
            if (!isFound_[i] && columns_[i].filled > 0 && !isNumbering(columns_[i].heading))
                targets_[i].kind = Target::EndOfDescription;
        return targets_;
    }

private:
    static bool isNumbering(const QString& heading)
    {
        return isAmong(numbering, folded(heading)) || heading.trimmed() == "#";
    }

    template <class Test>
    void find(std::size_t at, Test test)
    {
        const QString word = folded(columns_[at].heading);
        if (isFound_[at] || word.isEmpty())
            return;
        for (const Known& field : fields) {
            const Target target{Target::Field, field.column};
            const bool isTaken = std::find(targets_.begin(), targets_.end(), target) != targets_.end();
            if (isTaken || !test(field, word) || !fits(field, columns_[at]))
                continue;
            targets_[at] = target;
            isFound_[at] = true;
            return;
        }
    }

    const std::vector<ColumnSeen>& columns_;
    std::vector<Target> targets_;
    std::vector<bool> isFound_;
};

} // namespace

QStringList targetNames()
{
    QStringList names;
    for (const Known& field : fields)
        names.append(QString::fromLatin1(field.name));
    return names << EndName << OutName;
}

QString nameOf(const Target& target)
{
    if (target.kind == Target::Field)
        return nameOf(target.column);
    return target.kind == Target::EndOfDescription ? EndName : OutName;
}

QString nameOf(Inventory::Column column)
{
    const auto* found = std::find_if(
        std::begin(fields), std::end(fields), [column](const Known& field) { return field.column == column; });
    return found == std::end(fields) ? QStringLiteral("ID") : QString::fromLatin1(found->name);
}

std::optional<Target> targetNamed(const QString& name)
{
    const QString word = folded(name);
    if (word == folded(EndName) || word == folded(OutName))
        return Target{word == folded(EndName) ? Target::EndOfDescription : Target::LeftOut};
    for (const Known& field : fields)
        if (ownNameOf(field) == word)
            return Target{Target::Field, field.column};
    for (const Known& field : fields)
        if (isAmong(field.words, word))
            return Target{Target::Field, field.column};
    return {};
}

std::vector<Target> targetsOf(const std::vector<ColumnSeen>& columns)
{
    return Finding(columns).run();
}

bool isKnownHeading(const QString& heading)
{
    const QString word = folded(heading);
    return !word.isEmpty() && std::any_of(std::begin(fields), std::end(fields), [&word](const Known& field) {
        return ownNameOf(field) == word || isAmong(field.words, word);
    });
}

} // namespace importing
