// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/places.h"
#include "platform/system/paths.h"
#include "tools/commands.h"
#include "tools/exit_codes.h"
#include "tools/importing.h"
#include "tools/restoring.h"
#include "tools/terminal.h"

#include <QCommandLineParser>

#include <algorithm>
#include <map>

namespace commands {

namespace {

using namespace importing;

constexpr std::size_t LinesOfWrongRows = 20; // on the error output; all of them stand in their file

[[noreturn]] void refuseUsage(const QString& words)
{
    throw Refusal(exit_code::Usage, words + QStringLiteral("; see --help."));
}

/// What stands before a sign, and what stands behind.
std::pair<QString, QString> pairAt(qsizetype at, const QString& argument, const QString& option)
{
    if (at < 0)
        refuseUsage(QStringLiteral("\"%1\" has no \"=\" for %2").arg(argument, option));
    if (at == 0)
        refuseUsage(QStringLiteral("\"%1\" has nothing before its \"=\" for %2").arg(argument, option));
    return {argument.first(at).simplified(), argument.sliced(at + 1).trimmed()};
}

Target fieldNamed(const QString& name)
{
    const std::optional<Target> target = targetNamed(name);
    if (!target)
        refuseUsage(QStringLiteral("There is no field \"%1\": there are %2").arg(name, targetNames().join(", ")));
    return *target;
}

struct Mapped {
    QString heading;
    Target target;
};

std::vector<Mapped> mappedIn(const QStringList& arguments)
{
    std::vector<Mapped> mapped;
    for (const QString& argument : arguments) {
        // A heading may hold the sign itself.
        const auto [heading, field] = pairAt(argument.lastIndexOf(u'='), argument, QStringLiteral("--map"));
        mapped.push_back({heading, fieldNamed(field)});
    }
    return mapped;
}

std::map<Inventory::Column, QString> fillingIn(const QStringList& arguments)
{
    std::map<Inventory::Column, QString> filling;
    for (const QString& argument : arguments) {
        const auto [field, text] = pairAt(argument.indexOf(u'='), argument, QStringLiteral("--set"));
        const Target target = fieldNamed(field);
        if (target.kind != Target::Field)
            refuseUsage(QStringLiteral("\"%1\" is no field that --set can fill").arg(field));
        if (std::any_of(text.begin(), text.end(), [](QChar c) { return c.category() == QChar::Other_Control; }))
            refuseUsage(QStringLiteral("There is a control character in what --set gives to \"%1\"").arg(field));
        filling[target.column] = text;
    }
    return filling;
}

std::size_t columnOf(const Source& source, const QString& heading)
{
    const auto& columns = source.columns();
    const auto found = std::find_if(columns.begin(), columns.end(),
        [&heading](const ColumnSeen& column) { return column.heading.compare(heading, Qt::CaseInsensitive) == 0; });
    if (found == columns.end())
        refuseUsage(QStringLiteral("No column is headed \"%1\"").arg(heading));
    return static_cast<std::size_t>(found - columns.begin());
}

// A field that is given to a column is taken from the one that had it.
std::vector<Target> targetsWith(const Source& source, const std::vector<Mapped>& mapped)
{
    std::vector<Target> targets = source.targets();
    std::vector<bool> isChosen(targets.size());
    for (const auto& [heading, target] : mapped) {
        const std::size_t at = columnOf(source, heading);
        if (isChosen[at])
            refuseUsage(QStringLiteral("The column \"%1\" can't go to two fields").arg(heading));
        for (std::size_t other = 0; other < targets.size(); ++other) {
            if (other == at || target.kind != Target::Field || targets[other] != target)
                continue;
            if (isChosen[other])
                refuseUsage(QStringLiteral("Two columns can't go to \"%1\"").arg(nameOf(target)));
            targets[other] = {Target::EndOfDescription};
        }
        targets[at] = target;
        isChosen[at] = true;
    }
    return targets;
}

template <class Value, class Named>
Value chosen(const QCommandLineParser& parser, const QCommandLineOption& option, Named named)
{
    if (!parser.isSet(option))
        return {};
    const std::optional<Value> value = named(parser.value(option));
    if (!value)
        refuseUsage(QStringLiteral("\"%1\" is no %2 for --%3")
                        .arg(parser.value(option), option.valueName().toLower(), option.names().first()));
    return *value;
}

void tellSource(const Source& source, const Choices& choices)
{
    terminal::print(source.described());
    for (const QStringList& column : mapOf(source, choices.targets))
        terminal::print(
            QStringLiteral("  %1 -> %2%3")
                .arg(column[0], column[1], column[2].isEmpty() ? QString() : QStringLiteral("  (%1)").arg(column[2])));
}

void tellWrong(const Plan& plan)
{
    const QStringList lines = wrongLinesOf(plan);
    for (const QString& line : lines.mid(0, LinesOfWrongRows))
        terminal::complain(line);
    if (lines.size() > static_cast<qsizetype>(LinesOfWrongRows))
        terminal::complain(QStringLiteral("And %1 more.").arg(lines.size() - static_cast<qsizetype>(LinesOfWrongRows)));
}

void refuseWrong(const Plan& plan)
{
    if (plan.isPossible())
        return;
    throw Refusal(exit_code::Unreadable,
        QStringLiteral(
            "Nothing was changed: %1 can't go in. --skip-wrong FILE puts them into a file and takes the others.")
            .arg(counted(static_cast<int>(plan.wrong.size()), QStringLiteral("row"), QStringLiteral("rows"))));
}

void refuseUnconfirmed(bool isSaid)
{
    if (isSaid)
        return;
    if (!terminal::isAttended())
        throw Refusal(exit_code::Declined, QStringLiteral("Nothing was changed. --yes confirms the import."));
    if (!terminal::isConfirmed(QStringLiteral("Import this?")))
        throw Refusal(exit_code::Declined, QStringLiteral("Nothing was changed."));
}

Plan lookedThrough(const Source& source, const Choices& choices)
{
    terminal::Count count;
    Plan plan = planned(source, choices, Household(places::databaseFile()),
        [&count](int done, int all) { return count.tell(done, all); });
    count.clear();
    return plan;
}

void carryOut(const Source& source, const Plan& plan, const QString& wrongFile)
{
    const QString file = plan.wrong.empty() ? QString() : wrongFile;
    terminal::Count count;
    const Result result = carry_Out(source, plan, file, [&count](int done, int all) { return count.tell(done, all); });
    count.clear();
    terminal::print(QStringLiteral("Imported: %1").arg(result.summary));
    terminal::print(QStringLiteral("To go back: kestrill-restore --restore %1").arg(result.putAside));
    if (!file.isEmpty())
        terminal::print(QStringLiteral("Wrong rows: %1").arg(sys::absolutePath(file)));
}

// What is wrong with all of the rows can be mended, too.
int tellNothing(const Source& source, const Plan& plan, const QString& wrongFile)
{
    if (!plan.wrong.empty())
        write_Wrong_Rows(source, plan, wrongFile);
    terminal::print(QStringLiteral("There is nothing to import."));
    if (!plan.wrong.empty())
        terminal::print(QStringLiteral("Wrong rows: %1").arg(sys::absolutePath(wrongFile)));
    return exit_code::Done;
}

struct Order {
    QString file;
    std::vector<Mapped> mapped;
    Choices choices;
    QString wrongFile;
    bool isDryRun = false;
    bool isSaid = false;
};

int bringIn(Order order)
{
    restoring::refuse_While_Running();
    QStringList headings;
    for (const Mapped& mapped : order.mapped)
        headings += mapped.heading;
    const Source source(order.file, headings);
    const bool isTold = !order.mapped.empty() || !order.choices.otherwise.empty();
    if (isTold && source.kind() != Source::Kind::Table)
        refuseUsage(QStringLiteral("An export of Kestrill comes as it is, without --map and --set"));
    order.choices.targets = targetsWith(source, order.mapped);
    const Plan plan = lookedThrough(source, order.choices);
    tellSource(source, order.choices);
    for (const QString& line : summaryOf(plan))
        terminal::print(line);
    tellWrong(plan);
    if (plan.needsDateOrder)
        terminal::complain(
            QStringLiteral("The dates can be read in two ways: tell their order by --dates mdy, dmy or ymd."));
    if (plan.needsDecimalSign)
        terminal::complain(QStringLiteral("The amounts can be read in two ways: tell by --decimal point or comma."));
    if (order.isDryRun)
        return plan.isPossible() ? exit_code::Done : exit_code::Unreadable;
    refuseWrong(plan);
    if (!plan.bringsAnything())
        return tellNothing(source, plan, order.wrongFile);
    refuseUnconfirmed(order.isSaid);
    carryOut(source, plan, order.wrongFile);
    return exit_code::Done;
}

} // namespace

int importAll(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Brings assets in from a CSV table of any program, or all of an export of Kestrill. Today's file "
        "is put aside before. Without arguments, and on a display, in a window."));
    parser.addPositionalArgument(
        QStringLiteral("FILE"), QStringLiteral("A CSV table, kestrill.json or an export's folder."));
    const QCommandLineOption dryRun(
        QStringLiteral("dry-run"), QStringLiteral("Tells what would come, and what is wrong; changes nothing."));
    const QCommandLineOption map(QStringLiteral("map"),
        QStringLiteral("Puts the column of that heading into a field; may be given several times."),
        QStringLiteral("HEADING=FIELD"));
    const QCommandLineOption set(QStringLiteral("set"),
        QStringLiteral("Gives a field to all assets that have nothing in it; may be given several times."),
        QStringLiteral("FIELD=TEXT"));
    const QCommandLineOption dates(
        QStringLiteral("dates"), QStringLiteral("The order of dates: mdy, dmy or ymd."), QStringLiteral("ORDER"));
    const QCommandLineOption decimals(
        QStringLiteral("decimal"), QStringLiteral("The decimal sign: point or comma."), QStringLiteral("SIGN"));
    const QCommandLineOption cut(QStringLiteral("cut"), QStringLiteral("Cuts texts that are too long."));
    const QCommandLineOption again(
        QStringLiteral("again"), QStringLiteral("Takes assets that are there already once more."));
    const QCommandLineOption skip(QStringLiteral("skip-wrong"),
        QStringLiteral("Takes the other rows, and writes those that can't go in to a new file."),
        QStringLiteral("FILE"));
    const QCommandLineOption yes(QStringLiteral("yes"), QStringLiteral("Doesn't ask."));
    const QCommandLineOption sample(QStringLiteral("template"),
        QStringLiteral("Writes a table with all headings and two lines of example to a new file."),
        QStringLiteral("FILE"));
    parser.addOptions({dryRun, map, set, dates, decimals, cut, again, skip, yes, sample});
    return terminal::run(parser, arguments, [&] {
        const QStringList files = parser.positionalArguments();
        if (parser.isSet(sample) && files.isEmpty()) {
            write_Template(parser.value(sample));
            return exit_code::Done;
        }
        if (files.size() != 1 || parser.isSet(sample))
            refuseUsage(QStringLiteral("Give the file to import, or --template FILE"));
        Order order;
        order.file = files.first();
        order.mapped = mappedIn(parser.values(map));
        order.wrongFile = parser.value(skip);
        order.isDryRun = parser.isSet(dryRun);
        order.isSaid = parser.isSet(yes);
        order.choices.dates = chosen<DateOrder>(parser, dates, dateOrderNamed);
        order.choices.decimals = chosen<DecimalSign>(parser, decimals, decimalSignNamed);
        order.choices.cutsTexts = parser.isSet(cut);
        order.choices.takesKnown = parser.isSet(again);
        order.choices.skipsWrong = parser.isSet(skip);
        order.choices.otherwise = fillingIn(parser.values(set));
        return bringIn(std::move(order));
    });
}

} // namespace commands
