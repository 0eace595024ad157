// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/import_assets.h"

#include "data/asset_rules.h"
#include "data/name_markers.h"
#include "platform/values/csv.h"
#include "tools/printable.h"

#include <QRegularExpression>
#include <QStringTokenizer>

#include <algorithm>

using values::Date;

namespace importing {

namespace {

constexpr Inventory::Column defaulted[] = {Inventory::Year, Inventory::Make, Inventory::Model, Inventory::SerialVinId,
    Inventory::Purchased, Inventory::Receipt, Inventory::Description};

QString shown(const QString& text)
{
    constexpr qsizetype most = 40;
    return printable(text, most) + (text.size() > most ? QStringLiteral("...") : QString());
}

QString reason(Inventory::Column column, const QString& text, const QString& words)
{
    return QStringLiteral("%1 \"%2\": %3").arg(nameOf(column), shown(text), words);
}

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control && character != u'\n' && character != u'\t';
}

// How programs keep a spreadsheet from taking "0012" for a number: ="0012".
std::string_view withoutFormula(std::string_view cell)
{
    const bool isText = cell.size() >= 3 && cell.starts_with("=\"") && cell.find('"', 2) == cell.size() - 1;
    return isText ? cell.substr(2, cell.size() - 3) : cell;
}

// As a box takes it: what has one line has no breaks in it.
QString cleaned(const std::string& cell, bool hasLines)
{
    const std::string_view plain = withoutFormula(values::csv::withoutApostrophe(cell));
    QString text = QString::fromUtf8(plain.data(), static_cast<qsizetype>(plain.size()));
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    if (!hasLines)
        text.replace(u'\n', u' ').replace(u'\t', u' ');
    return text.trimmed();
}

/// Words that other lists have for a word of the asset screen.
struct Word {
    Inventory::Column column;
    const char* stored;
    const char* others;
};

constexpr Word words[] = {
    {Inventory::Area, "Indoor", "indoor indoors inside in"},
    {Inventory::Area, "Outdoor", "outdoor outdoors outside out"},
    {Inventory::Area, "Mobile", "mobile"},
    {Inventory::Receipt, "Yes", "yes y true x 1"},
    {Inventory::Receipt, "No", "no n false 0 -"},
    {Inventory::Purchased, "New", "new n"},
    {Inventory::Purchased, "Used", "used u second-hand secondhand refurbished"},
};

// Nothing for a word that is none of them.
QString storedWord(Inventory::Column column, const QString& text)
{
    const QString lower = text.toLower();
    for (const Word& word : words) {
        if (word.column != column)
            continue;
        for (const QLatin1String other : qTokenize(QLatin1String(word.others), u' '))
            if (other == lower)
                return QString::fromLatin1(word.stored);
    }
    return {};
}

QString faultOfWord(Inventory::Column column)
{
    if (column == Inventory::Area)
        return QStringLiteral("The Area Must Be Indoor, Outdoor Or Mobile");
    return column == Inventory::Receipt ? QStringLiteral("It Must Be Yes Or No")
                                        : QStringLiteral("It Must Be New Or Used");
}

// Of a receipt.
bool isPlace(const QString& text)
{
    const QString lower = text.toLower();
    return !text.isEmpty() && lower != "none" && lower != "n/a" && storedWord(Inventory::Receipt, text) != "No";
}

void readWord(Asset& asset, Inventory::Column column, QStringList& reasons)
{
    const QString stored = storedWord(column, asset[column]);
    if (stored.isEmpty())
        reasons += reason(column, asset[column], faultOfWord(column));
    else
        asset[column] = stored;
}

void require(const Asset& asset, QStringList& reasons)
{
    if (asset[Inventory::Area].isEmpty())
        reasons += QStringLiteral("The Area Of The Asset Must Be Selected Before Saving!");
    const QString& date = asset[Inventory::DatePurchased];
    const bool isUnread = !date.isEmpty() && !Date::tryParse(date); // which has been told
    const auto unread = isUnread ? Inventory::DatePurchased : Inventory::ID;
    auto missing = Inventory::ID; // of which no more is asked
    for (const asset_rules::Requirement& requirement : asset_rules::requirements()) {
        const Inventory::Column column = requirement.column;
        if (column == missing || column == unread || !requirement.isUnmet(asset[column]))
            continue;
        reasons += QString::fromLatin1(requirement.message);
        missing = column;
    }
    // In the tables of names this is the mark of a cell without one.
    for (const Inventory::Column column : {Inventory::Location, Inventory::Category})
        if (asset[column] == names::Blank)
            reasons += reason(column, asset[column], QStringLiteral("The Lists Can't Hold This Name"));
}

// "3.56938E+14" is what a spreadsheet shows, and saves, of a number of 15 digits.
bool isRounded(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^[0-9](?:[.,][0-9]+)?E\\+[0-9]{2}$"));
    return text.contains(QStringLiteral("E+")) && form.match(text).hasMatch();
}

bool isLabelOfTotal(const QString& text)
{
    static const QRegularExpression label(
        QStringLiteral(
            "^(?:(?:grand|sub|over-?all)[ -]?)?(?:totals?|sum|summe|gesamt(?:summe|wert)?|zwischensumme|somme)"
            "(?: (?:value|cost|price|amount|worth|(?:of|for) .*))?\\s*:?$|\\b(?:sub-?)?totals?\\s*:?$"),
        QRegularExpression::CaseInsensitiveOption);
    return label.match(text).hasMatch();
}

// Numbers alone beside a word for their sum. What all assets are given would make an asset of it.
bool isTotal(const Row& row)
{
    bool isLabelled = false, hasNumber = false;
    for (const std::string& cell : row.cells) {
        const QString text = cleaned(cell, false);
        if (text.isEmpty())
            continue;
        if (isLabelled ? !isAmount(text) : !isLabelOfTotal(text))
            return false;
        hasNumber = isLabelled;
        isLabelled = true;
    }
    return hasNumber;
}

// What an export holds has been on the screen once: it is taken as it stands.
Asset fromExport(const Row& row, QStringList& reasons)
{
    Asset asset;
    for (std::size_t i = Inventory::Area; i < asset.size(); ++i)
        asset[i] = QString::fromStdString(row.cells[i]);
    for (const Inventory::Column column : {Inventory::Area, Inventory::Receipt, Inventory::Purchased})
        if (!asset[column].isEmpty() && storedWord(column, asset[column]) != asset[column])
            reasons += reason(column, asset[column], faultOfWord(column));
    const QString& date = asset[Inventory::DatePurchased];
    if (!date.isEmpty() && !Date::tryParse(date))
        reasons += reason(Inventory::DatePurchased, date, QString::fromLatin1(asset_rules::InvalidDate));
    const QString& amount = asset[Inventory::Amount];
    if (!amount.isEmpty() && !values::Currency::tryParse(amount))
        reasons += reason(Inventory::Amount, amount, QStringLiteral("It Is No Amount"));
    asset[Inventory::Amount] = values::groupedByThrees(amount);
    return asset;
}

} // namespace

AssetRows::AssetRows(const Source& source, const Choices& choices)
    : source_(source)
    , choices_(choices)
    , targets_(choices.targets.empty() ? source.targets() : choices.targets)
    , dates_(choices.dates == DateOrder::Unknown ? DateReader(columnOf(Inventory::DatePurchased))
                                                 : DateReader(choices.dates))
    , amounts_(choices.decimals == DecimalSign::Unknown ? AmountReader(columnOf(Inventory::Amount))
                                                        : AmountReader(choices.decimals))
    , thisYear_(QString::number(values::Today().year()))
{
}

QString AssetRows::screenDefault(Inventory::Column column) const
{
    switch (column) {
    case Inventory::Year:
        return thisYear_;
    case Inventory::Make:
    case Inventory::Model:
    case Inventory::SerialVinId:
        return QStringLiteral("Unknown");
    case Inventory::Purchased:
        return QStringLiteral("New");
    case Inventory::Receipt:
        return QStringLiteral("No");
    default:
        return column >= Inventory::Description ? QStringLiteral("None") : QString();
    }
}

AssetRows::Read AssetRows::read(const Row& row) const
{
    Read read;
    Asset& asset = read.asset;
    QStringList& reasons = read.reasons;
    const bool isTable = source_.kind() == Source::Kind::Table;
    if (isTable && row.cells.size() != targets_.size()) {
        reasons += QStringLiteral("The Row Has %1 Cells Under %2 Headings").arg(row.cells.size()).arg(targets_.size());
        return read;
    }
    if (isTable && isTotal(row)) {
        reasons += QStringLiteral("The Row Holds A Total And No Asset");
        return read;
    }
    asset = isTable ? fromTable(row, reasons) : fromExport(row, reasons);
    fillIn(asset);
    if (isTable)
        readTyped(asset, reasons);
    require(asset, reasons);
    if (isTable)
        limit(read);
    return read;
}

// ---- a table

QStringList AssetRows::columnOf(Inventory::Column column) const
{
    QStringList texts;
    const auto found = std::find(targets_.begin(), targets_.end(), Target{Target::Field, column});
    if (found == targets_.end())
        return texts;
    const auto at = static_cast<std::size_t>(found - targets_.begin());
    for (const Row& row : source_.rows())
        if (at < row.cells.size())
            texts += cleaned(row.cells[at], false);
    return texts;
}

Asset AssetRows::fromTable(const Row& row, QStringList& reasons) const
{
    Asset asset;
    for (const auto kind : {Target::Field, Target::EndOfDescription})
        for (std::size_t at = 0; at < targets_.size(); ++at)
            if (targets_[at].kind == kind)
                takeCell(row, at, asset, reasons);
    return asset;
}

void AssetRows::takeCell(const Row& row, std::size_t at, Asset& asset, QStringList& reasons) const
{
    const bool isField = targets_[at].kind == Target::Field;
    const Inventory::Column column = isField ? targets_[at].column : Inventory::Description;
    const QString text =
        cleaned(row.cells[at], column == Inventory::Description || column == Inventory::WarrantyDescription);
    if (std::any_of(text.begin(), text.end(), isControl))
        reasons += reason(column, text, QStringLiteral("There Is A Control Character In It"));
    if (isField) {
        asset[column] = text;
    } else if (!text.isEmpty()) {
        QString& description = asset[Inventory::Description];
        description += (description.isEmpty() ? QString() : QStringLiteral("\n")) + source_.columns()[at].heading
            + QStringLiteral(": ") + text;
    }
}

// What is chosen for an empty field goes before what the screen has in it, but in an export, which comes as it is; a
// place for a receipt means that there is one.
void AssetRows::fillIn(Asset& asset) const
{
    const bool isTable = source_.kind() == Source::Kind::Table;
    for (const auto& [column, text] : choices_.otherwise)
        if (isTable && asset[column].isEmpty())
            asset[column] = text;
    if (asset[Inventory::Receipt].isEmpty() && isPlace(asset[Inventory::ReceiptLocation]))
        asset[Inventory::Receipt] = QStringLiteral("Yes");
    for (std::size_t i = Inventory::Area; i < asset.size(); ++i)
        if (asset[i].isEmpty())
            asset[i] = screenDefault(static_cast<Inventory::Column>(i));
}

void AssetRows::readTyped(Asset& asset, QStringList& reasons) const
{
    if (!asset[Inventory::Area].isEmpty())
        readWord(asset, Inventory::Area, reasons);
    readWord(asset, Inventory::Receipt, reasons);
    readWord(asset, Inventory::Purchased, reasons);
    for (const Inventory::Column column : {Inventory::Model, Inventory::SerialVinId})
        if (isRounded(asset[column]))
            reasons += reason(column, asset[column],
                QStringLiteral("The Spreadsheet Has Rounded It: Let The Column Show Whole Numbers"));
    const bool isNoReceipt = asset[Inventory::Receipt] == "No";
    QString& place = asset[Inventory::ReceiptLocation];
    place = asset_rules::receiptLocation(place, isNoReceipt && place.isEmpty()); // a text that stands there stays
    if (!asset[Inventory::DatePurchased].isEmpty())
        readDate(asset[Inventory::DatePurchased], reasons);
    for (const Inventory::Column column : {Inventory::Amount, Inventory::PartsAmount, Inventory::LaborAmount}) {
        QString& text = asset[column];
        if (text.isEmpty() || text == "None")
            continue;
        const AmountRead read = amounts_.read(text);
        if (!read.amount)
            reasons += reason(column, text, read.fault);
        text = read.amount ? read.amount->toText() : QStringLiteral("$0.00");
    }
}

// What can't be read is no longer asked for.
void AssetRows::readDate(QString& text, QStringList& reasons) const
{
    const DateRead read = dates_.read(text);
    if (!read.date)
        reasons += reason(Inventory::DatePurchased, text, read.fault);
    text = read.date ? read.date->toText() : values::Today().toText();
}

void AssetRows::limit(Read& read) const
{
    Asset& asset = read.asset;
    for (std::size_t i = Inventory::Location; i < asset.size(); ++i) {
        const auto column = static_cast<Inventory::Column>(i);
        const int most = asset_rules::limitOf(column);
        if (asset[i].size() <= most || asset[i] == screenDefault(column))
            continue;
        const bool isPair = asset[i][most].isLowSurrogate();
        const QString kept = asset[i].left(most - (isPair ? 1 : 0)).trimmed();
        if (choices_.cutsTexts)
            ++read.cutTexts;
        else
            read.reasons += reason(column, asset[i],
                QStringLiteral("The Text Has %1 Characters, And %2 Is The Most. \"%3\" Would Be Cut")
                    .arg(asset[i].size())
                    .arg(most)
                    .arg(shown(asset[i].sliced(kept.size()).trimmed())));
        asset[i] = kept;
    }
}

void AssetRows::describe(Plan& plan) const
{
    if (source_.kind() != Source::Kind::Table)
        return;
    if (dates_.order() != DateOrder::Unknown)
        plan.notes += QStringLiteral("Dates are read as %1.").arg(nameOf(dates_.order()));
    if (const QStringList currencies = currenciesIn(columnOf(Inventory::Amount)); currencies.size() > 1)
        plan.notes += QStringLiteral("There are several currencies, which are added up as one: %1.")
                          .arg(printable(currencies.join(QStringLiteral(", "))));
    plan.needsDateOrder = dates_.isAmbiguous();
    plan.needsDecimalSign = amounts_.isAmbiguous();
    QStringList missing;
    for (const Inventory::Column column : defaulted) {
        const bool isThere =
            std::find(targets_.begin(), targets_.end(), Target{Target::Field, column}) != targets_.end();
        if (!isThere && !choices_.otherwise.contains(column))
            missing += QStringLiteral("%1 (%2)").arg(nameOf(column), screenDefault(column));
    }
    if (!missing.isEmpty())
        plan.notes += QStringLiteral("In no column, and therefore as on an empty screen: %1.").arg(missing.join(", "));
}

} // namespace importing
