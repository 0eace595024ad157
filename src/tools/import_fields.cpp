// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_fields.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace importing {

namespace {

/// A field of the asset and warranty screens, and the words that other lists have for it, in small letters without
/// blanks and signs: first those that mean nothing else.
struct Known {
    const char* name;
    Inventory::Column column;
    const char* words;
};

constexpr Known fields[] = {
    {"Area", Inventory::Area, "area indooroutdoor zone"},
    {"Location", Inventory::Location, "location place room where roomlocation locationroom position"},
    {"Category", Inventory::Category, "category group class assetcategory itemcategory kind"},
    {"Item", Inventory::Type, "itemname name assetname asset object thing article product title type"},
    {"Year", Inventory::Year, "yearmade modelyear yearofmanufacture"},
    {"Make", Inventory::Make, "make brand manufacturer maker brandname makebrand"},
    {"Model", Inventory::Model, "model modelnumber modelno modelnr modelname"},
    {"Serial", Inventory::SerialVinId, "serialnumber serialno serialnr serialvinid serialid sn vin vinnumber vinnr"},
    {"New Or Used", Inventory::Purchased, "neworused newused condition purchased"},
    {"Purchase Date", Inventory::DatePurchased,
        "datepurchased dateofpurchase purchased purchasedon datebought boughton bought dateacquired acquisitiondate "
        "acquired date"},
    {"Purchase Price", Inventory::Amount,
        "pricepaid purchasecost purchaseamount purchasevalue originalprice originalcost costprice price cost amount "
        "paid value"},
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
constexpr const char* numbering = "id no nr row index line whatiswrong";

const QString EndName = QStringLiteral("End Of Description");
const QString OutName = QStringLiteral("Left Out");

// What a heading says of how its texts are written: "Price (USD)".
QString withoutHint(QString heading)
{
    static const QRegularExpression hint(
        QStringLiteral(
            "[(\\[]\\s*(?:[A-Z]{0,2}\\p{Sc}|USD|EUR|GBP|CAD|AUD|NZD|CHF|SEK|NOK|DKK|[DMY]{1,4}[-/.][DMY]{1,4}"
            "[-/.][DMY]{1,4}|yes\\s*/\\s*no|y\\s*/\\s*n|required|optional)\\s*[)\\]]"),
        QRegularExpression::CaseInsensitiveOption);
    return heading.remove(hint);
}

// "Item #" is no item but its number.
QString folded(const QString& heading)
{
    QString word;
    for (const QChar character : withoutHint(heading)) {
        if (character.isLetterOrNumber())
            word += character.toLower();
        else if (character == u'#')
            word += QStringLiteral("nr");
    }
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

// "Purchased" heads dates in most lists, and here whether a thing was new; "Condition" mostly how good it is.
bool fits(const Known& field, const QString& word, const ColumnSeen& column)
{
    if (word == "purchased")
        return (field.column == Inventory::Purchased) == isNewOrUsed(column.example);
    return word != "condition" || isNewOrUsed(column.example);
}

class Finding {
public:
    explicit Finding(const std::vector<ColumnSeen>& columns)
        : columns_(columns)
        , targets_(columns.size())
        , isFound_(columns.size())
    {
        for (const ColumnSeen& column : columns)
            words_.push_back(folded(column.heading));
    }

    std::vector<Target> run()
    {
        for (const Known& field : fields)
            find(field, ownNameOf(field));
        for (const Known& field : fields)
            for (const QString& word : QString::fromLatin1(field.words).split(u' '))
                find(field, word);
        for (std::size_t i = 0; i < columns_.size(); ++i)
            if (!isFound_[i] && columns_[i].filled > 0 && !isAmong(numbering, words_[i]))
                targets_[i].kind = Target::EndOfDescription;
        return targets_;
    }

private:
    // What heads two columns alike doesn't tell which of them is meant.
    void find(const Known& field, const QString& word)
    {
        const Target target{Target::Field, field.column};
        if (std::find(targets_.begin(), targets_.end(), target) != targets_.end())
            return;
        std::vector<std::size_t> headed;
        for (std::size_t i = 0; i < columns_.size(); ++i)
            if (!isFound_[i] && words_[i] == word && fits(field, word, columns_[i]))
                headed.push_back(i);
        if (headed.size() != 1)
            return;
        targets_[headed.front()] = target;
        isFound_[headed.front()] = true;
    }

    const std::vector<ColumnSeen>& columns_;
    std::vector<QString> words_; // of their headings
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
